#include "maintenance/card_transfer.h"

#include "card/app_state.h"
#include "card/mask_transfer.h"
#include "card/session.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <exception>

namespace mk {

namespace {

// Cards per transaction of the target: large enough to be fast, small enough that a run
// that dies loses little of the target's work.
constexpr long kStapel = 2000;
constexpr long kAnzeigeSchritt = 64;  // cards between two refreshes of the progress display

// Columns written only when the source card has a value: a Null stays Null in the target.
const QStringList& nurMitWert()
{
    static const QStringList spalten = {
        QStringLiteral("rectime"), QStringLiteral("recdate"), QStringLiteral("Datum"), QStringLiteral("Zeit"),
        QStringLiteral("Campo1"), QStringLiteral("Campo2"), QStringLiteral("CampoM1"), QStringLiteral("CampoM2"),
        QStringLiteral("Video"), QStringLiteral("Imagem"), QStringLiteral("Som"),
    };
    return spalten;
}

// Steps 1 to 3 of both: the target chosen in a dialog; "" when cancelled.
QString zielWaehlen(Merkkartelle& app)
{
    ArbeitsverzeichnisSetzen(app);
    FileDialog dialog;
    dialog.Filter = QStringLiteral("Datenbank (*.mdb)|*.mdb|merkkartelle.mdb (merkkartelle.mdb)|merkkartelle.mdb|");
    dialog.DialogTitle = QStringLiteral("Zieldatenbank aussuchen...");
    const FileChoice wahl = app.ui.ShowOpen(dialog);
    return wahl.cancelled ? QString() : wahl.FileName;
}

// Step 4: the notice with its words and the picture of the target's drive.
void hinweisZeigen(Merkkartelle& app, const QString& ziel, const QString& text, bool fortschritt)
{
    loadForm(app, app.Message);
    auto& m = app.Message;
    m.Label1.Caption = text;
    m.Label1.ForeColor = colour::Black;
    m.Timer1.Enabled = false;
    const QString laufwerk = ziel.left(2).toUpper();
    const bool diskette = laufwerk == QStringLiteral("A:") || laufwerk == QStringLiteral("B:");
    m.Image2.Visible = diskette;
    m.Image1.Visible = !diskette;
    m.picAusgabe.Visible = fortschritt;
    m.Label2.Visible = fortschritt;
    showForm(app, app.Message);
}

void hinweisSchliessen(Merkkartelle& app)
{
    auto& m = app.Message;
    for (Control* c : std::initializer_list<Control*>{&m.Image1, &m.Image2, &m.picAusgabe, &m.Label2})
        c->Visible = false;
    hideForm(app, app.Message);
}

void fortschrittZeigen(Merkkartelle& app, long zahl, long gesamt)
{
    auto& m = app.Message;
    const int prozent = gesamt > 0 ? int(zahl * 100 / gesamt) : 100;
    m.picAusgabe.Min = 0;
    m.picAusgabe.Max = 100;
    m.picAusgabe.Value = prozent;
    m.Label2.Caption = QString::number(zahl) + QStringLiteral(" / ") + QString::number(gesamt);
}

// The columns of nurMitWert in the source and the target that both have.
struct NurMitWert {
    std::vector<std::pair<Field, Field>> paare;
    NurMitWert(Recordset& quelle, Recordset& ziel)
    {
        for (const QString& spalte : nurMitWert())
            underIgnoredErrors([&] { paare.emplace_back(quelle.Fields(spalte), ziel.Fields(spalte)); });
    }
};

// The mask's card into the target's buffer; the columns kept Null where the source is.
void karteSchreiben(Merkkartelle& app, NurMitWert& spalten, Recordset& ziel)
{
    MaskeInDatenMulti(app, ziel);
    for (auto& [quelle, ziel] : spalten.paare) {
        underIgnoredErrors([&] {
            if (quelle.isNull())
                ziel.setValue(QVariant());
        });
    }
}

struct Ziel {
    DatabasePtr datenbank;
    RecordsetPtr satz;
    void schliessen()
    {
        underIgnoredErrors([&] {
            if (satz)
                satz->close();
        });
        underIgnoredErrors([&] {
            if (datenbank)
                datenbank->close();
        });
    }
};

// A target whose table lacks columns of the card would refuse every card, each with a box
// of its own: it is refused once, before any card is written.
// It is no run-time error, so that the run's ignoring of errors lets it through.
class FehlendeSpalten : public std::exception {
public:
    explicit FehlendeSpalten(const QStringList& spalten)
        : Description(QStringLiteral("Der Zieldatenbank fehlen die Felder: ") + spalten.join(QStringLiteral(", ")))
    {
    }
    const char* what() const noexcept override { return "missing columns"; }
    QString Description;
};

void spaltenPruefen(Recordset& quelle, Recordset& ziel)
{
    QStringList vorhanden;
    for (const FieldDef& f : ziel.fieldDefs())
        vorhanden << f.Name;
    QStringList fehlend;
    for (const FieldDef& f : quelle.fieldDefs())
        if (!vorhanden.contains(f.Name, Qt::CaseInsensitive))
            fehlend << f.Name;
    if (!fehlend.isEmpty())
        throw FehlendeSpalten(fehlend);
}

// Step 5: the target's cursor, at its last card.
Ziel zielOeffnen(Merkkartelle& app, const QString& pfad)
{
    Ziel ziel;
    ziel.datenbank = Database::open(resolvePath(pfad));
    ziel.satz = ziel.datenbank->createDynaset(app.Tabellenname);
    spaltenPruefen(*app.Kartensatz, *ziel.satz);
    if (ziel.satz->RecordCount() != 0)
        ziel.satz->MoveLast();
    return ziel;
}

// The run under ignored errors, but for a target of another structure, which is told.
template <class Lauf>
void kopieren(Merkkartelle& app, Lauf&& lauf)
{
    try {
        underIgnoredErrors(std::forward<Lauf>(lauf));
    } catch (const FehlendeSpalten& fehler) {
        hinweisSchliessen(app);
        app.ui.MsgBox(fehler.Description, vbExclamation);
    }
}

}  // namespace

void copiardb_Click(Merkkartelle& app)
{
    const QString pfad = zielWaehlen(app);
    if (pfad.isEmpty() || !app.Kartensatz)
        return;
    hinweisZeigen(app, pfad, QStringLiteral("Daten werden kopiert...."), false);
    Ziel ziel;
    // A target without the table, or a card the target refuses, is passed over without a word.
    kopieren(app, [&] {
        ziel = zielOeffnen(app, pfad);
        ziel.satz->AddNew();
        NurMitWert spalten(*app.Kartensatz, *ziel.satz);
        karteSchreiben(app, spalten, *ziel.satz);
        ziel.satz->Update();
    });
    ziel.schliessen();
    hinweisSchliessen(app);
}

long AlleKartenKopieren(Merkkartelle& app, const QString& pfad)
{
    Recordset& quelle = *app.Kartensatz;
    Ziel ziel = zielOeffnen(app, pfad);
    Recordset& satz = *ziel.satz;
    NurMitWert spalten(quelle, satz);
    const long gesamt = quelle.RecordCount();
    long geschrieben = 0;
    long imStapel = 0;
    bool offen = false;

    const auto karte = [&] {
        if (!offen) {
            ziel.datenbank->BeginTrans();
            offen = true;
        }
        KarteInMaskenfelder(app);
        // A card the target refuses is passed over; the run goes on with the next.
        if (underIgnoredErrors([&] {
                satz.AddNew();
                karteSchreiben(app, spalten, satz);
                satz.Update();
            }))
            ++geschrieben;
        else
            underIgnoredErrors([&] { satz.CancelUpdate(); });
        if (++imStapel == kStapel) {
            ziel.datenbank->CommitTrans();
            offen = false;
            imStapel = 0;
        }
    };

    try {
        if (gesamt > 0) {
            quelle.MoveFirst();
            karte();
            fortschrittZeigen(app, 1, gesamt);
            for (long n = 2; n <= gesamt; ++n) {
                quelle.MoveNext();
                if (quelle.IsEOF())
                    break;
                karte();
                if (n % kAnzeigeSchritt == 0 || n == gesamt) {
                    fortschrittZeigen(app, n, gesamt);
                    app.ui.DoEvents();
                }
            }
        }
        if (offen)
            ziel.datenbank->CommitTrans();
        DatenInMaske(app);  // the mask shows the last card of the run
    } catch (...) {
        if (offen)
            underIgnoredErrors([&] { ziel.datenbank->Rollback(); });
        ziel.schliessen();
        throw;
    }
    ziel.schliessen();
    return geschrieben;
}

void Multicopy_Click(Merkkartelle& app)
{
    const QString pfad = zielWaehlen(app);
    if (pfad.isEmpty() || !app.Kartensatz)
        return;
    hinweisZeigen(app, pfad, QStringLiteral("Copiando dados...."), true);
    // A target without the table gives no message, and nothing is copied.
    kopieren(app, [&] { AlleKartenKopieren(app, pfad); });
    hinweisSchliessen(app);
}

void registerCardTransferHandlers(HandlerTable& table)
{
    const QString haupt = QStringLiteral("Hauptmaske");
    table.on(haupt, QStringLiteral("copiardb"), QStringLiteral("Click"), copiardb_Click);
    table.on(haupt, QStringLiteral("Multicopy"), QStringLiteral("Click"), Multicopy_Click);
}

}  // namespace mk
