#include "history/connections.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "platform/files.h"
#include "platform/text_files.h"
#include "settings/form_places.h"

namespace mk {

namespace {

using M = Merkkartelle;

// The columns the options choose, by option index.
const char* const kSuchspalten[Aform::kSuchfelder] = {
    "Laufendenummer", "Schluessel", "Titel", "Vorname", "Nachname", "Firma", "Departament", "Strasse",
    "Stadteil", "PLZ", "Stadt", "Staat", "Land", "Landescod", "Telefon",
};

// The columns the Infolabel fields show, by index.
const char* const kInfospalten[Aform::kInfofelder] = {
    "Schluessel", "Titel", "Vorname", "Nachname", "Firma", "Strasse", "Stadteil", "PLZ",
    "Stadt", "Staat", "Departament", "Land", "Landescod", "Telefon", "Laufendenummer",
};
constexpr int kInfoNummer = Aform::kInfofelder - 1;  // the Infolabel of the running number

// The card's picture lives in the column the mask shows in feld(16).
const QString kBildspalte = QStringLiteral("Telex");
const QString kLeer = QStringLiteral("*");

// Settings records of the form: Top and Left, then the values of the first four options.
const Formplatz kVerknuepfungenPlatz{126, 127};
constexpr int kErsteOption = 128;

constexpr int kBreiteKlein = 7800;
constexpr int kBreiteGross = 12600;

constexpr int kObjectNotSet = 91;

// The browser's own cursor. Raises 91 while there is none, so a step under ignored errors
// fails as one on a closed cursor does.
Recordset& browser(M& app)
{
    if (!app.Zweitsatz)
        throw RuntimeError(kObjectNotSet, QStringLiteral("Objektvariable oder With-Blockvariable nicht festgelegt"));
    return *app.Zweitsatz;
}

bool browserZeigtKarte(M& app)
{
    bool zeigt = false;
    underIgnoredErrors([&] { zeigt = !browser(app).IsEOF() && !browser(app).IsBOF() && browser(app).RecordCount() > 0; });
    return zeigt;
}

QString browserNummer(M& app)
{
    QString nummer;
    if (browserZeigtKarte(app))
        underIgnoredErrors([&] { nummer = browser(app).Fields(QStringLiteral("Laufendenummer")).text(); });
    return nummer;
}

int aktiveOption(M& app)
{
    for (auto& [i, option] : app.Aform.SuchOption)
        if (option.Value)
            return i;
    return 0;
}

// The browser opened afresh on the card table, sorted by column, on its first card.
void browserOeffnen(M& app, const QString& spalte)
{
    app.Aform.Label6.Caption = spalte;
    underIgnoredErrors([&] {
        if (!app.Zweitdatenbank)
            throw RuntimeError(kObjectNotSet, QStringLiteral("Objektvariable nicht festgelegt"));
        RecordsetPtr basis = app.Zweitdatenbank->createDynaset(app.Tabellenname);
        basis->Sort = QLatin1Char('[') + spalte + QLatin1Char(']');
        app.Zweitsatz = basis->createDynaset();
    });
    underIgnoredErrors([&] { browser(app).MoveFirst(); });
    InfolabelFuellen(app);
}

// Slot i (1 to 10) takes the browser's current card.
void slotFuellen(M& app, int slot)
{
    underIgnoredErrors([&] {
        Recordset& satz = browser(app);
        app.Aform.FeldA[slot].Text = Verknuepfungsname(satz.Fields(QStringLiteral("Vorname")).Value(),
                                                       satz.Fields(QStringLiteral("Nachname")).Value());
        app.Aform.feldB[slot].Text = satz.Fields(QStringLiteral("Laufendenummer")).text();
    });
}

// The criterion of the find buttons: the chosen column against the text of Text1.
QString browserKriterium(M& app)
{
    const QString text = app.Aform.Text1.Text;
    return QStringLiteral("LEFT([") + Suchspalte(aktiveOption(app)) + QStringLiteral("],") + QString::number(text.size())
        + QStringLiteral(") = '") + text + QLatin1Char('\'');
}

// ---- the form -----------------------------------------------------------------------------------

void Aform_Load(M& app)
{
    // Sorted as the main cursor is, so that browsing reads like leafing through the mask.
    browserOeffnen(app, app.Sortierfeld.isEmpty() ? QStringLiteral("Laufendenummer") : app.Sortierfeld);
}

void lageSpeichern(M& app)
{
    FormplatzMerken(app, app.Aform, kVerknuepfungenPlatz);
    for (int i = 0; i < 4; ++i)
        app.Einstellungsliste[std::size_t(kErsteOption + i)] =
            app.Aform.SuchOption[i].Value ? QStringLiteral("True") : QStringLiteral("False");
}

void schriftGeben(M& app)
{
    const FontSpec& schrift = app.Hauptmaske.feld[0].Font;
    for (auto& [i, feld] : app.Aform.FeldA)
        feld.Font = schrift;
    for (auto& [i, feld] : app.Aform.feldB)
        feld.Font = schrift;
}

// The option the settings keep: the first of the four stored values that is true. It chooses
// the column of the find buttons; the browser keeps its order until an option is clicked.
void optionAusEinstellungen(M& app)
{
    for (int i = 0; i < 4; ++i) {
        bool wahr = false;
        if (!underIgnoredErrors([&] { wahr = toBoolean(app.Einstellungsliste[std::size_t(kErsteOption + i)]); }) || !wahr)
            continue;
        if (!app.Aform.SuchOption[i].Value)
            app.forms.chooseOption(app.forms.control(QStringLiteral("Aform"), QStringLiteral("SuchOption"), i));
        return;
    }
}

void Aform_QueryUnload(M& app, EventArgs& args)
{
    lageSpeichern(app);
    // Closed by the user: the form hides, its browser stays with it.
    if (args.UnloadMode == 0) {
        args.Cancel = 1;
        hideForm(app, app.Aform);
    }
}

void Command7_Click(M& app)  // larger or smaller
{
    Aform& f = app.Aform;
    const bool gross = !f.Frame1.Visible;
    f.Frame1.Visible = gross;
    f.Width = gross ? kBreiteGross : kBreiteKlein;
    f.Command7.Caption = gross ? QStringLiteral("..<") : QStringLiteral("grösser...");
}

// ---- the slots ---------------------------------------------------------------------------------

void Suchtext_Change(M& app, int i)
{
    if (!bearbeitungOffen(app))
        return;
    const int slot = i + 1;
    const QString nummer = app.Aform.Suchtext[i].Text.trimmed();
    if (nummer.isEmpty()) {
        app.Aform.FeldA[slot].Text.clear();
        app.Aform.feldB[slot].Text.clear();
        return;
    }
    bool gefunden = false;
    underIgnoredErrors([&] {
        browser(app).FindFirst(KarteFindenKriterium(nummer));
        gefunden = !browser(app).NoMatch();
    });
    if (!gefunden)
        return;  // no such card: the slot stays as it was
    slotFuellen(app, slot);
    InfolabelFuellen(app);
}

void Suchtext_DblClick(M& app, int i)
{
    if (!bearbeitungOffen(app) || !browserZeigtKarte(app))
        return;
    slotFuellen(app, i + 1);
}

void Suchtext_MouseMove(M& app, int i)
{
    app.Aform.Suchtext[i].Hint = browserZeigtKarte(app) ? QStringLiteral("Doppelklick um den aktuellen Eintrag hinzuzufügen ")
                                                        : QStringLiteral("Laufende Eintragsnummer eingeben");
}

// A name typed by hand stays within its column, its left part kept.
void FeldA_Change(M& app, int slot)
{
    int groesse = 60;
    underIgnoredErrors([&] {
        const int s = kartensatz(app).Fields(QStringLiteral("A%1").arg(slot)).Size();
        if (s > 0)
            groesse = s;
    });
    QString& text = app.Aform.FeldA[slot].Text;
    if (text.size() > groesse)
        text = text.left(groesse);
}

void feldB_Click(M& app, int slot)
{
    Aform& f = app.Aform;
    f.Label5.Caption = QString::number(slot);
    const QString nummer = f.feldB[slot].Text.trimmed();
    if (nummer.isEmpty())
        return;
    f.Text1.Text = nummer;
    if (aktiveOption(app) != 0) {
        app.forms.chooseOption(app.forms.control(QStringLiteral("Aform"), QStringLiteral("SuchOption"), 0));
        browserOeffnen(app, Suchspalte(0));
    }
    f.Command6.Hint = QStringLiteral("Eintrag: ") + nummer + QStringLiteral(" aktivieren");
    bool gefunden = false;
    underIgnoredErrors([&] {
        browser(app).FindFirst(KarteFindenKriterium(nummer));
        gefunden = !browser(app).NoMatch();
    });
    if (gefunden)
        InfolabelFuellen(app);
}

// ---- the browser --------------------------------------------------------------------------------

void SuchOption_Click(M& app, int i)
{
    app.Aform.SuchOption[i].Hint = QStringLiteral("Aktives Suchfeld: ") + app.Aform.SuchOption[i].Caption;
    browserOeffnen(app, Suchspalte(i));
}

void SuchOption_MouseMove(M& app, int i)
{
    app.Aform.SuchOption[i].Hint = QStringLiteral("Aktives Suchfeld: ") + app.Aform.SuchOption[i].Caption;
}

enum class Suche { Erste, Naechste, Vorige, Letzte };

void finden(M& app, Suche art)
{
    const QString kriterium = browserKriterium(app);
    QByteArray lesezeichen;
    const bool hatLesezeichen = underIgnoredErrors([&] { lesezeichen = browser(app).Bookmark(); });
    bool gefunden = false;
    underIgnoredErrors([&] {
        Recordset& satz = browser(app);
        switch (art) {
        case Suche::Erste: satz.FindFirst(kriterium); break;
        case Suche::Naechste: satz.FindNext(kriterium); break;
        case Suche::Vorige: satz.FindPrevious(kriterium); break;
        case Suche::Letzte: satz.FindLast(kriterium); break;
        }
        gefunden = !satz.NoMatch();
    });
    if (gefunden) {
        InfolabelFuellen(app);
    } else if (hatLesezeichen && (art == Suche::Naechste || art == Suche::Vorige)) {
        underIgnoredErrors([&] { browser(app).setBookmark(lesezeichen); });
    }
}

enum class Zug { Erster, Voriger, Naechster, Letzter };

void bewegen(M& app, Zug zug)
{
    underIgnoredErrors([&] {
        Recordset& satz = browser(app);
        if (satz.RecordCount() == 0)
            return;
        switch (zug) {
        case Zug::Erster: satz.MoveFirst(); break;
        case Zug::Letzter: satz.MoveLast(); break;
        case Zug::Voriger:
            satz.MovePrevious();
            if (satz.IsBOF())
                satz.MoveFirst();
            break;
        case Zug::Naechster:
            satz.MoveNext();
            if (satz.IsEOF())
                satz.MoveLast();
            break;
        }
    });
    InfolabelFuellen(app);
}

void browserHinweise(M& app)
{
    Aform& f = app.Aform;
    const QString kriterium = browserKriterium(app);
    f.Command2.Hint = QStringLiteral("Ersten Eintrag finden: ") + kriterium;
    f.Command3.Hint = QStringLiteral("Nächsten Eintrag finden; ") + kriterium;
    f.Command4.Hint = QStringLiteral("Vorherigen Eintrag finden: ") + kriterium;
    f.Command5.Hint = QStringLiteral("Letzten Eintrag finden: ") + kriterium;
    const QString sortierung = f.Label6.Caption;
    f.Command9.Hint = QStringLiteral("Erster Eintrag - Sortierung: ") + sortierung;
    f.Command10.Hint = QStringLiteral("Vorheriger Eintrag -  Sortierung: ") + sortierung;
    f.Command11.Hint = QStringLiteral("Nächster Eintrag - Sortierung: ") + sortierung;
    f.Command12.Hint = QStringLiteral("Letzter Eintrag - Sortierung: ") + sortierung;
    f.Command8.Hint = QStringLiteral("Zu diesem Eintrag wechsel: ") + browserNummer(app);
}

void Infolabel_MouseMove(M& app, int i)
{
    Label& info = app.Aform.Infolabel[i];
    info.Hint = info.Caption.isEmpty() || info.Caption == kLeer ? QStringLiteral("Leeres Feld") : QString();
}

// ---- following a connection ------------------------------------------------------------------------

// The main mask to the card with that number, when there is one.
void hauptmaskeZu(M& app, const QString& nummer)
{
    if (nummer.trimmed().isEmpty() || bearbeitungOffen(app))
        return;
    auto& m = app.Hauptmaske;
    const QString vorher = m.LaufendeNummer.Caption;
    if (!KarteFinden(app, nummer.trimmed()))
        return;  // a connected card that is gone: nothing to show
    if (Val(vorher) != Val(nummer))
        m.dataold.Caption = m.datalabel.Caption;
    DatenInMaske(app);
    PositionAnzeigen(app);
}

void Command8_Click(M& app) { hauptmaskeZu(app, browserNummer(app)); }

void Command6_Click(M& app)
{
    const int slot = int(Val(app.Aform.Label5.Caption));
    if (!app.Aform.feldB.exists(slot))
        return;
    hauptmaskeZu(app, app.Aform.feldB[slot].Text);
}

}  // namespace

QString Suchspalte(int option)
{
    if (option < 0 || option >= Aform::kSuchfelder)
        option = 0;
    return QString::fromLatin1(kSuchspalten[option]);
}

QString Verknuepfungsname(const QVariant& vorname, const QVariant& nachname)
{
    const auto teil = [](const QVariant& v) { return v.isValid() ? v.toString() : kLeer; };
    return teil(vorname) + QLatin1Char(' ') + teil(nachname);
}

void InfolabelFuellen(Merkkartelle& app)
{
    Aform& f = app.Aform;
    if (!browserZeigtKarte(app)) {
        browserHinweise(app);
        return;  // no card: the labels keep what they showed
    }
    for (int i = 0; i < Aform::kInfofelder; ++i) {
        QString wert = kLeer;
        underIgnoredErrors([&] {
            const Field feld = browser(app).Fields(QString::fromLatin1(kInfospalten[i]));
            wert = feld.isNull() ? kLeer : feld.text();
        });
        f.Infolabel[i].Caption = wert;
    }
    QString bild;
    underIgnoredErrors([&] { bild = browser(app).Fields(kBildspalte).text(); });
    QString gefunden;
    if (!bild.isEmpty())
        underIgnoredErrors([&] { gefunden = Dir(bild); });
    f.Image1.Picture = gefunden.isEmpty() ? QString() : resolvePath(bild);
    browserHinweise(app);
}

void Command3_Click(Merkkartelle& app)
{
    if (bildschutzSichtbar(app))
        return;
    Aform& f = app.Aform;
    if (f.Visible) {
        lageSpeichern(app);
        hideForm(app, f);
        return;
    }
    loadForm(app, f);
    FormplatzNehmen(app, f, kVerknuepfungenPlatz);
    schriftGeben(app);
    optionAusEinstellungen(app);
    showForm(app, f);
}

void registerConnectionHandlers(HandlerTable& table)
{
    const QString form = QStringLiteral("Aform");
    const QString click = QStringLiteral("Click");
    const QString move = QStringLiteral("MouseMove");
    table.onForm(form, QStringLiteral("Load"), [](M& app, EventArgs&) { Aform_Load(app); });
    table.onForm(form, QStringLiteral("QueryUnload"), Aform_QueryUnload);
    table.on(form, QStringLiteral("Suchtext"), QStringLiteral("Change"), Suchtext_Change);
    table.on(form, QStringLiteral("Suchtext"), QStringLiteral("DblClick"), Suchtext_DblClick);
    table.on(form, QStringLiteral("Suchtext"), move, Suchtext_MouseMove);
    table.on(form, QStringLiteral("FeldA"), QStringLiteral("Change"), FeldA_Change);
    table.on(form, QStringLiteral("feldB"), click, feldB_Click);
    table.on(form, QStringLiteral("SuchOption"), click, SuchOption_Click);
    table.on(form, QStringLiteral("SuchOption"), move, SuchOption_MouseMove);
    table.on(form, QStringLiteral("Infolabel"), move, Infolabel_MouseMove);
    table.on(form, QStringLiteral("Text1"), QStringLiteral("Change"), browserHinweise);
    table.on(form, QStringLiteral("Command2"), click, [](M& app, EventArgs&) { finden(app, Suche::Erste); });
    table.on(form, QStringLiteral("Command3"), click, [](M& app, EventArgs&) { finden(app, Suche::Naechste); });
    table.on(form, QStringLiteral("Command4"), click, [](M& app, EventArgs&) { finden(app, Suche::Vorige); });
    table.on(form, QStringLiteral("Command5"), click, [](M& app, EventArgs&) { finden(app, Suche::Letzte); });
    table.on(form, QStringLiteral("Command9"), click, [](M& app, EventArgs&) { bewegen(app, Zug::Erster); });
    table.on(form, QStringLiteral("Command10"), click, [](M& app, EventArgs&) { bewegen(app, Zug::Voriger); });
    table.on(form, QStringLiteral("Command11"), click, [](M& app, EventArgs&) { bewegen(app, Zug::Naechster); });
    table.on(form, QStringLiteral("Command12"), click, [](M& app, EventArgs&) { bewegen(app, Zug::Letzter); });
    table.on(form, QStringLiteral("Command6"), click, Command6_Click);
    table.on(form, QStringLiteral("Command7"), click, Command7_Click);
    table.on(form, QStringLiteral("Command8"), click, Command8_Click);

    table.on(QStringLiteral("Hauptmaske"), QStringLiteral("Command3"), click, Command3_Click);
}

}  // namespace mk
