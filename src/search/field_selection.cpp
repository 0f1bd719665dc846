#include "search/field_selection.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/card_record.h"
#include "card/mask_transfer.h"
#include "platform/paths.h"
#include "platform/store.h"
#include "platform/text_files.h"

#include <QHash>

namespace mk {

namespace {

const QString kZeilenumbruch = QStringLiteral("\r\n");
const QString kMulti = QStringLiteral("Multiselektierung");

// How the form was left: the button decides what Command3D23 does afterwards.
const QString kMitOk = QStringLiteral("ok");
const QString kMitDeaktivieren = QStringLiteral("Deaktivieren");

bool multi(const Merkkartelle& app) { return app.Selektierung.Check1.checked(); }

QString ausgewaehlteZeile(const Merkkartelle& app) { return app.Selektierung.Abfragetexte.Text(); }

// The condition text of the state as the form left it: the selected line, or all lines.
QString neuerFilter(const Merkkartelle& app) { return multi(app) ? app.Selektionsfilter : ausgewaehlteZeile(app); }

// Jet compares text without regard to case or trailing blanks: so do the counts.
QString vergleichsform(const QString& text)
{
    QString s = text.toCaseFolded();
    while (s.endsWith(QLatin1Char(' ')))
        s.chop(1);
    return s;
}

// The cursor afresh on the card table, with a filter and the ascending sort; the steps of the
// type filter, each under ignored errors.
void kartensatzOhneFilter(Merkkartelle& app)
{
    const QString pfad = joinPath(app.Arbeitsverzeichnis, app.Datenbankdatei);
    const bool nurLesen = app.NurLesen != QStringLiteral("0");
    underIgnoredErrors([&] { app.Kartendatenbank = Database::open(pfad, nurLesen, nurLesen); });
    underIgnoredErrors([&] {
        if (app.Kartendatenbank)
            app.Kartensatz = app.Kartendatenbank->createDynaset(app.Tabellenname);
    });
    underIgnoredErrors([&] { kartensatz(app).Filter = QString(); });
    underIgnoredErrors([&] { kartensatz(app).Sort = QLatin1Char('[') + app.Sortierfeld + QLatin1Char(']'); });
    underIgnoredErrors([&] { app.Kartensatz = kartensatz(app).createDynaset(); });
}

void karteNeuLaden(Merkkartelle& app)
{
    DatenInMaske(app);
    PositionAnzeigen(app);
}

void selektierungSchliessen(Merkkartelle& app, const QString& wie)
{
    app.Selektierung.Tag = wie;
    hideForm(app, app.Selektierung);
}

void zusammensetzen(Merkkartelle& app)
{
    auto& f = app.Selektierung;
    f.Label5.Caption = Selektionsbedingung(f.Label4.Caption, f.Operatoren.Text(), f.Wert1.Text);
}

// The count of cards whose field equals each value, in one walk over a clone.
std::vector<long> kartenJeWert(Merkkartelle& app, const QString& spalte, const QStringList& werte)
{
    QHash<QString, long> zaehler;
    underIgnoredErrors([&] {
        const RecordsetPtr klon = kartensatz(app).clone();
        if (klon->RecordCount() > 0)
            for (klon->MoveFirst(); !klon->IsEOF(); klon->MoveNext())
                ++zaehler[vergleichsform(klon->Fields(spalte).text())];
        klon->close();
    });
    std::vector<long> anzahl;
    for (const QString& wert : werte)
        anzahl.push_back(zaehler.value(vergleichsform(wert)));
    return anzahl;
}

}  // namespace

QStringList Selektionsspalten()
{
    // The columns of the card, less the connections and the linked files.
    QStringList spalten;
    for (const karte::Spalte& spalte : karte::kSpalten)
        if (spalte.ort != karte::Ort::FeldA && spalte.ort != karte::Ort::feldB && spalte.ort != karte::Ort::prog)
            spalten << karte::text(spalte.name);
    return spalten;
}

QString Selektionsbedingung(const QString& spalte, const QString& op, const QString& wert)
{
    const QString w = op == QLatin1String("BETWEEN") ? wert : QLatin1Char('\'') + wert + QLatin1Char('\'');
    return QLatin1Char('[') + spalte + QStringLiteral("] ") + op + QLatin1Char(' ') + w;
}

// ---- the transitions ---------------------------------------------------------------------------

void KeineSelektion(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    kartensatzOhneFilter(app);
    karteNeuLaden(app);
    m.Selektiert.Caption = kKeineSelektion;
    m.Selektiert.Tag.clear();
    m.Label19.Caption.clear();
    m.Label18.Caption.clear();
    SerienbriefVeraltet(app);
}

void SelektionAussetzen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    if (m.Selektiert.Caption == kSelektierungDeaktiviert)
        return;
    kartensatzOhneFilter(app);
    m.Selektiert.Caption = kSelektierungDeaktiviert;
    m.Selektiert.Tag.clear();
    karteNeuLaden(app);
    SerienbriefVeraltet(app);
}

void SelektionAnwenden(Merkkartelle& app, const QString& filter)
{
    auto& m = app.Hauptmaske;
    if (m.Selektiert.Caption == kSelektierungAktiv && m.Selektiert.Tag == filter)
        return;
    // The panels say that the selection is being changed until the new cursor stands.
    m.Selektiert.Caption = kSelektierungWirdGeaendert;
    app.Selektierung.SSPanel1.Caption = QStringLiteral("Selektierung ändern...");
    // The condition is parsed when the cursor opens: a broken one fails there, and the card
    // file falls back to all cards.
    try {
        if (!app.Kartendatenbank)
            throw RuntimeError(91, QStringLiteral("Objektvariable nicht festgelegt"));
        RecordsetPtr basis = app.Kartendatenbank->createDynaset(app.Tabellenname);
        basis->Filter = filter;
        basis->Sort = QLatin1Char('[') + app.Sortierfeld + QLatin1Char(']');
        RecordsetPtr neu = basis->createDynaset();
        app.Kartensatz = neu;
        underIgnoredErrors([&] { kartensatz(app).MoveFirst(); });
    } catch (const RuntimeError& fehler) {
        app.ui.MsgBox(QString::number(fehler.Number) + kZeilenumbruch + QStringLiteral("Selektierung war erfolglos"));
        app.Selektierung.SSPanel1.Caption = QStringLiteral("Info");
        KeineSelektion(app);
        return;
    }
    SerienbriefVeraltet(app);
    m.Selektiert.Caption = kSelektierungAktiv;
    m.Selektiert.Tag = filter;
    app.Selektierung.SSPanel1.Caption = QStringLiteral("Info");
    karteNeuLaden(app);
}

void SelektionBearbeiten(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    auto& f = app.Selektierung;
    f.Tag.clear();
    showForm(app, f, true);
    if (f.Tag.isEmpty())
        return;  // left with abbruch: the selection stays as it was

    // In single mode the selected line stands in the filter variable the type filter uses;
    // in multi mode ok has joined the lines into Selektionsfilter.
    if (!multi(app))
        app.Typfilter = ausgewaehlteZeile(app);

    if (f.Abfragetexte.ListCount() == 0)
        return KeineSelektion(app);
    if (f.Tag == kMitDeaktivieren)
        return SelektionAussetzen(app);
    const QString filter = neuerFilter(app);
    m.Label18.Caption = multi(app) ? QString::number(f.Abfragetexte.ListCount())
                                   : QString::number(f.Abfragetexte.ListIndex + 1);
    SelektionAnwenden(app, filter);
}

// ---- the form ------------------------------------------------------------------------------------

void Selektierung_Load(Merkkartelle& app)
{
    auto& f = app.Selektierung;
    f.Datenfelder.Clear();
    for (const QString& spalte : Selektionsspalten())
        f.Datenfelder.AddItem(spalte);
}

void Selektierung_Datenfelder_Click(Merkkartelle& app)
{
    auto& f = app.Selektierung;
    if (f.Datenfelder.ListIndex < 0)
        return;
    const QString spalte = f.Datenfelder.Text();
    f.SSPanel1.Caption = spalte + kZeilenumbruch + QStringLiteral("Lade liste...") + QStringLiteral("...");
    f.Label4.Caption = spalte;
    f.Abfragetexte.Clear();

    // The saved value list of the column: one value a line, empty lines passed over.
    QStringList werte;
    underIgnoredErrors([&] {
        TextReader datei(joinPath(app.Arbeitsverzeichnis, spalte + QStringLiteral(".txt")));
        while (!datei.atEnd()) {
            const QString wert = datei.next();
            if (!wert.isEmpty())
                werte << wert;
        }
    });
    const std::vector<long> anzahl = kartenJeWert(app, spalte, werte);
    for (int i = 0; i < werte.size(); ++i) {
        const int neu = f.Abfragetexte.AddItem(Selektionsbedingung(spalte, QStringLiteral("LIKE"), werte[i]));
        f.Abfragetexte.setItemData(neu, anzahl[std::size_t(i)]);
    }
    f.SSPanel1.Caption = QStringLiteral("Info");
    zusammensetzen(app);
}

void Selektierung_Abfragetexte_Click(Merkkartelle& app)
{
    auto& f = app.Selektierung;
    if (f.Abfragetexte.ListIndex >= 0)
        f.Label5.Caption = f.Abfragetexte.Text();
}

// A condition as composed in Label5 joins the list.
void Selektierung_Command2_Click(Merkkartelle& app)
{
    auto& f = app.Selektierung;
    if (f.Label4.Caption.isEmpty())
        return app.ui.Beep();
    zusammensetzen(app);
    f.Abfragetexte.ListIndex = f.Abfragetexte.AddItem(f.Label5.Caption);
    f.ok.Enabled = true;
    f.abbruch.Enabled = true;
    f.Löschen.Enabled = true;
}

void Selektierung_Loeschen_Click(Merkkartelle& app)
{
    auto& liste = app.Selektierung.Abfragetexte;
    if (liste.ListIndex < 0)
        return app.ui.Beep();
    liste.RemoveItem(liste.ListIndex);
    liste.ListIndex = -1;
}

void Selektierung_ok_Click(Merkkartelle& app)
{
    auto& f = app.Selektierung;
    auto& m = app.Hauptmaske;
    QString filter;
    for (const ListItem& zeile : f.Abfragetexte.Items) {
        if (!filter.isEmpty())
            filter += QStringLiteral(" OR ");
        filter += zeile.Text;
    }
    app.Selektionsfilter = filter;
    const bool gefuellt = f.Abfragetexte.ListCount() > 0;
    f.ok.Enabled = gefuellt;
    f.abbruch.Enabled = gefuellt;
    f.Löschen.Enabled = gefuellt;
    if (multi(app)) {
        m.Label19.Caption = kMulti;
    } else {
        const QString zeile = ausgewaehlteZeile(app);
        const int klammer = zeile.indexOf(QLatin1Char(']'));
        m.Label19.Caption = klammer >= 0 ? zeile.mid(klammer + 1) : QString();
    }
    selektierungSchliessen(app, kMitOk);
}

void Selektierung_Command1_Click(Merkkartelle& app) { selektierungSchliessen(app, kMitDeaktivieren); }

void Selektierung_abbruch_Click(Merkkartelle& app) { selektierungSchliessen(app, QString()); }

void Selektierung_Check1_Click(Merkkartelle& app)
{
    app.Selektierung.Label3.Caption = multi(app) ? QStringLiteral("Multi filter") : QString();
}

void Selektierung_KeyDown(Merkkartelle& app, EventArgs& args)
{
    if (args.KeyCode == vbKeyEscape)
        Selektierung_abbruch_Click(app);
    else if (args.KeyCode == vbKeyF1)
        app.ui.MsgBox(QStringLiteral(" \r\nFunções do teclado\r\n \r\nESC = Sair "));
}

void registerFieldSelectionHandlers(HandlerTable& table)
{
    const QString form = QStringLiteral("Selektierung");
    const QString click = QStringLiteral("Click");
    table.onForm(form, QStringLiteral("Load"), [](Merkkartelle& app, EventArgs&) { Selektierung_Load(app); });
    table.onForm(form, QStringLiteral("KeyDown"), &Selektierung_KeyDown);
    table.on(form, QStringLiteral("Datenfelder"), click, &Selektierung_Datenfelder_Click);
    table.on(form, QStringLiteral("Abfragetexte"), click, &Selektierung_Abfragetexte_Click);
    table.on(form, QStringLiteral("Operatoren"), click, [](Merkkartelle& app, EventArgs&) { zusammensetzen(app); });
    table.on(form, QStringLiteral("Wert1"), QStringLiteral("Change"), [](Merkkartelle& app, EventArgs&) { zusammensetzen(app); });
    table.on(form, QStringLiteral("Command2"), click, &Selektierung_Command2_Click);
    table.on(form, QStringLiteral("Löschen"), click, &Selektierung_Loeschen_Click);
    table.on(form, QStringLiteral("ok"), click, &Selektierung_ok_Click);
    table.on(form, QStringLiteral("Command1"), click, &Selektierung_Command1_Click);
    table.on(form, QStringLiteral("abbruch"), click, &Selektierung_abbruch_Click);
    table.on(form, QStringLiteral("Check1"), click, &Selektierung_Check1_Click);
}

}  // namespace mk
