#include "search/quick_search.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/focus.h"
#include "card/mask_transfer.h"
#include "card/notice.h"
#include "platform/store.h"
#include "platform/text_files.h"
#include "search/search_fields.h"
#include "settings/form_places.h"

#include <QStringList>

namespace mk {

namespace {

const QString kZeilenumbruch = QStringLiteral("\r\n");
const QString kTab = QStringLiteral("\t");
constexpr int kHinweisdauer = 2000;

// The three layouts of the result list, by the heading word of the field.
enum class Klasse { Firma, Name, Andere };

Klasse klasseVon(int feld)
{
    const QString wort = Suchfeldueberschrift(feld);
    if (wort == QLatin1String("Firma:"))
        return Klasse::Firma;
    if (wort == QLatin1String("Name:"))
        return Klasse::Name;
    return Klasse::Andere;
}

QString ueberschrift(Klasse klasse, bool mitNummer)
{
    switch (klasse) {
    case Klasse::Firma:
        return QString(mitNummer ? QStringLiteral("LF-NR. | ") : QString())
            + QStringLiteral("Gefundener Text | Abteilung | Vorname-Nachname | Telefon");
    case Klasse::Name:
        return QString(mitNummer ? QStringLiteral("LF-NR.. | ") : QString())
            + QStringLiteral("Gefundener Text | Nachname | Titel | Firma | Tel.: Telefon | Strasse");
    case Klasse::Andere:
        break;
    }
    return QString(mitNummer ? QStringLiteral("LF-NR.. | ") : QString())
        + QStringLiteral("Gefundener Text | Firma | Vorname-Nachname | Telefon");
}

bool nummerAnzeigen(const Merkkartelle& app) { return app.config.Check3D11.checked(); }

// One column of the current card, Null as a blank value.
QString wert(Recordset& satz, const QString& spalte)
{
    QString text;
    underIgnoredErrors([&] { text = satz.Fields(spalte).text(); });
    return text;
}

// The line of the current card in the layout of its class.
QString ergebniszeile(Merkkartelle& app, Recordset& satz, int feld, Klasse klasse)
{
    const auto& c = app.config;
    const auto w = [&](const char* spalte) { return wert(satz, QString::fromLatin1(spalte)); };
    const QString gefunden = Kuerzen(app, wert(satz, ohneKlammern(Suchfeldspalte(feld))), c.Text12.Text);
    const QString person = w("Vorname") + QLatin1Char(' ') + w("Nachname");
    const QString telefon = QStringLiteral("Tel.: ") + w("Telefon");
    QStringList spalten;
    switch (klasse) {
    case Klasse::Firma:
        spalten = {gefunden, Kuerzen(app, w("Departament"), c.Text13.Text), Kuerzen(app, person, c.Text14.Text), telefon};
        break;
    case Klasse::Name:
        spalten = {gefunden, Kuerzen(app, w("Nachname"), c.Text13.Text), Kuerzen(app, w("Titel"), c.Text14.Text),
                   w("Firma"), telefon, w("Strasse")};
        break;
    case Klasse::Andere:
        spalten = {gefunden, Kuerzen(app, w("Firma"), c.Text13.Text), Kuerzen(app, person, c.Text14.Text), telefon};
        break;
    }
    QString zeile = spalten.join(kTab);
    if (nummerAnzeigen(app)) {
        QString nummer = w("Laufendenummer");
        if (nummer.isEmpty())
            nummer = klasse == Klasse::Andere ? QStringLiteral(" >>> Registiernummer fehlt  <<< ")
                                              : QStringLiteral(" >>> Registiernummer fehlt <<< ");
        zeile = nummer + kTab + zeile;
    }
    return zeile;
}

long nummerVon(Recordset& satz)
{
    return long(Val(wert(satz, QStringLiteral("Laufendenummer"))));
}

// The places of the two forms in the settings table.
constexpr Formplatz kSchnellsuchenPlatz{58, 59, 0, 0};
constexpr Formplatz kSuchergebnisPlatz{60, 61, 15, 14};

void schnellsuchenPositionMerken(Merkkartelle& app) { FormplatzMerken(app, app.Schnellsuchen, kSchnellsuchenPlatz); }

void suchergebnisPositionMerken(Merkkartelle& app) { FormplatzMerken(app, app.Suchergebnis, kSuchergebnisPlatz); }

void schnellsuchenSchliessen(Merkkartelle& app)
{
    schnellsuchenPositionMerken(app);
    app.LetzterSuchtext = app.Schnellsuchen.Suchbegriff.Text;
    unloadForm(app, app.Schnellsuchen);
}

// The direct jump of the number button: found at once, without the result list.
void nummerSuchen(Merkkartelle& app)
{
    const QString text = app.Schnellsuchen.Suchbegriff.Text;
    if (!KarteFinden(app, text)) {
        app.ui.MsgBox(QStringLiteral("Eintrag exsitiert nicht !"));
        return;
    }
    DatenInMaske(app);
    PositionAnzeigen(app);
    app.Suchfeld = 0;
    app.Hauptmaske.Label9.Caption = kZweiundzwanzigLeer;
    schnellsuchenSchliessen(app);
}

void suchergebnisSchliessen(Merkkartelle& app)
{
    suchergebnisPositionMerken(app);
    hideForm(app, app.Suchergebnis);
}

// The look of the list by "Vorschau": with it, the button closes and the card shown stays.
void vorschauAnzeigen(Merkkartelle& app, const QString& schliessen)
{
    auto& f = app.Suchergebnis;
    const bool vorschau = f.Check1.checked();
    f.Command1.Caption = vorschau ? schliessen : QStringLiteral("Abbrechen");
    f.ok.Visible = !vorschau;
}

}  // namespace

QString NichtGefundenText(int feld, const QString& text)
{
    const QString anfang = QStringLiteral("Suchtext  ") + text.toUpper() + QStringLiteral("...  im Feld  ");
    if (feld == 16)
        return anfang + QStringLiteral(" Bild") + kZeilenumbruch + QStringLiteral(" nicht gefunden !");
    if (feld == 20)
        return anfang + QStringLiteral(" Wert") + kZeilenumbruch + QStringLiteral(" nicht gefunden !");
    return anfang + ohneKlammern(Suchfeldspalte(feld)).toUpper() + kZeilenumbruch + QStringLiteral("  nicht gefunden !");
}

QString SuchergebnisTitel(int feld, const QString& text)
{
    return QStringLiteral("Ergebniss der Suche:  ") + text.toUpper() + QStringLiteral("...  im Feld  ")
        + ohneKlammern(Suchfeldspalte(feld)).toUpper();
}

QString Kuerzen(const Merkkartelle& app, const QString& text, const QString& laenge)
{
    // A width of 0 means 20, as for the serial-letter list.
    int n = int(Val(laenge));
    if (n <= 0)
        n = 20;
    if (text.size() <= n)
        return text;
    return text.left(n) + app.config.Text8.Text;
}

void ZurueckZumSuchbookmark(Merkkartelle& app)
{
    if (app.Suchbookmark.isEmpty())
        return;
    underIgnoredErrors([&] { kartensatz(app).setBookmark(app.Suchbookmark); });
    DatenInMaske(app);
}

void GewaehlteKarteZeigen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    if (app.GewaehlteNummer != m.LaufendeNummer.Caption)
        m.dataold.Caption = m.datalabel.Caption;
    underIgnoredErrors([&] {
        kartensatz(app).FindFirst(QStringLiteral("[Laufendenummer] LIKE ") + QString::number(long(Val(app.GewaehlteNummer))));
    });
    DatenInMaske(app);
    PositionAnzeigen(app);
}

// ---- the field search ----------------------------------------------------------------------

void NachAdresseSuchen_Click(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    if (bildschutzSichtbar(app))
        return;
    const QString caption = m.NachAdresseSuchen.Caption;
    m.NachAdresseSuchen.Caption.clear();
    const auto ende = [&] { m.NachAdresseSuchen.Caption = caption; };

    underIgnoredErrors([&] { app.Suchbookmark = kartensatz(app).Bookmark(); });
    m.Text1.Text = app.LetzterSuchtext;
    if (kartenzahl(app) == 0)
        return ende();
    m.Label9.Caption = kReplayOn;
    app.SuchErgebnis = 0;

    showForm(app, app.Schnellsuchen, true);
    if (app.Suchfeld == 0)
        return ende();

    app.Suchkriterium = Praefixbedingung(Suchfeldspalte(app.Suchfeld), app.Suchtext);
    bool gefunden = false;
    // A text with a quote breaks the condition: the failed find reads as no match.
    underIgnoredErrors([&] {
        kartensatz(app).FindFirst(app.Suchkriterium);
        gefunden = !kartensatz(app).NoMatch();
    });
    if (!gefunden) {
        ShowMessage(app, NichtGefundenText(app.Suchfeld, app.Suchtext), kSuchfarbe, kHinweisdauer);
        if (app.SuchErgebnis == 0)
            ZurueckZumSuchbookmark(app);
        return ende();
    }
    app.Suchergebnis.Caption = SuchergebnisTitel(app.Suchfeld, app.Suchtext);
    showForm(app, app.Suchergebnis, true);
    if (app.SuchErgebnis == 0)
        ZurueckZumSuchbookmark(app);
    ende();
}

// ---- Schnellsuchen -------------------------------------------------------------------------------

void Schnellsuchen_Load(Merkkartelle& app)
{
    FormplatzNehmen(app, app.Schnellsuchen, kSchnellsuchenPlatz);
    app.Schnellsuchen.Suchbegriff.Text = app.LetzterSuchtext;
}

void Schnellsuchen_Activate(Merkkartelle& app)
{
    auto& box = app.Schnellsuchen.Suchbegriff;
    box.SelStart = 0;
    box.SelLength = int(box.Text.size());
    underIgnoredErrors([&] { SetFocus(app, QStringLiteral("Schnellsuchen.Suchbegriff")); });
}

void Schnellsuchen_Command1_Click(Merkkartelle& app, int feld)
{
    if (feld == kSuchfeldNummer)
        return nummerSuchen(app);
    const QString text = app.Schnellsuchen.Suchbegriff.Text;
    app.Suchtext = text;
    app.Suchfeld = feld;
    schnellsuchenSchliessen(app);
}

void Schnellsuchen_abbruch_Click(Merkkartelle& app)
{
    app.Suchfeld = 0;
    app.Hauptmaske.Label9.Caption = kZweiundzwanzigLeer;
    schnellsuchenSchliessen(app);
}

void Schnellsuchen_KeyUp(Merkkartelle& app, EventArgs& args)
{
    // The function keys stand for the fields the user looks up most.
    static const int felder[] = {3, 11, 1, 2, 8, 4, 15, 25, 24, 26, 27};  // F2 to F12
    if (args.KeyCode == vbKeyEscape)
        return Schnellsuchen_abbruch_Click(app);
    if (args.KeyCode == vbKeyF1) {
        app.ui.MsgBox(QStringList{QStringLiteral(" "), QStringLiteral("Funções do teclado para a procura"),
                                  QStringLiteral(" "), QStringLiteral(" F2 = Nome "), QStringLiteral(" F3 = Nachname "),
                                  QStringLiteral(" F4 = Firma "), QStringLiteral(" F5 = Schluessel "),
                                  QStringLiteral(" F6 = Strasse "), QStringLiteral(" F7 = Telefon"),
                                  QStringLiteral(" F8 = Telefax "), QStringLiteral(" F9 = Inscrição estadual "),
                                  QStringLiteral("F10 = Firmenregisternummer "), QStringLiteral("F11 = Passportnummer "),
                                  QStringLiteral("F12 = Postfach ")}
                          .join(kZeilenumbruch));
        return;
    }
    if (args.KeyCode >= vbKeyF2 && args.KeyCode <= vbKeyF12)
        raiseEvent(app, QStringLiteral("Schnellsuchen.Command1(%1)").arg(felder[args.KeyCode - vbKeyF2]),
                   QStringLiteral("Click"));
}

void Schnellsuchen_Suchbegriff_KeyPress(Merkkartelle& app, EventArgs& args)
{
    if (args.KeyAscii != vbKeyReturn)
        return;
    args.KeyAscii = 0;
    raiseEvent(app, QStringLiteral("Schnellsuchen.Command1(3)"), QStringLiteral("Click"));
}

// ---- Suchergebnis ------------------------------------------------------------------------------

void Suchergebnis_Load(Merkkartelle& app) { FormplatzNehmen(app, app.Suchergebnis, kSuchergebnisPlatz); }

void Suchergebnis_Activate(Merkkartelle& app)
{
    auto& f = app.Suchergebnis;
    vorschauAnzeigen(app, QStringLiteral("Beenden"));
    f.Label2.Caption.clear();
    f.ok.Enabled = false;
    f.Suchergebnisliste.Font = app.Hauptmaske.feld[0].Font;

    const Klasse klasse = klasseVon(app.Suchfeld);
    auto& liste = f.Suchergebnisliste;
    liste.Clear();
    underIgnoredErrors([&] {
        Recordset& satz = kartensatz(app);
        satz.FindFirst(app.Suchkriterium);
        while (!satz.NoMatch()) {
            const int neu = liste.AddItem(ergebniszeile(app, satz, app.Suchfeld, klasse));
            liste.setItemData(neu, nummerVon(satz));
            satz.FindNext(app.Suchkriterium);
        }
    });
    f.Label6.Caption = QString::number(liste.ListCount());
    f.Label1.Caption = ueberschrift(klasse, nummerAnzeigen(app));
}

void Suchergebnis_Liste_Click(Merkkartelle& app)
{
    auto& f = app.Suchergebnis;
    auto& liste = f.Suchergebnisliste;
    if (liste.ListIndex < 0)
        return;
    app.GewaehlteNummer = QString::number(liste.ItemData(liste.ListIndex));
    f.ok.Enabled = true;
    if (!f.Check1.checked())
        return;
    // The preview shows the card at once; leaving the list then keeps it.
    underIgnoredErrors([&] { kartensatz(app).FindFirst(QStringLiteral("[Laufendenummer] LIKE ") + app.GewaehlteNummer); });
    DatenInMaske(app);
    PositionAnzeigen(app);
    f.Label2.Caption = QStringLiteral("CHANGED");
    app.SuchErgebnis = 1;
}

void Suchergebnis_ok_Click(Merkkartelle& app)
{
    auto& liste = app.Suchergebnis.Suchergebnisliste;
    if (liste.ListIndex < 0)
        return;
    app.GewaehlteNummer = QString::number(liste.ItemData(liste.ListIndex));
    suchergebnisPositionMerken(app);
    app.SuchErgebnis = 1;
    GewaehlteKarteZeigen(app);
    hideForm(app, app.Suchergebnis);
}

void Suchergebnis_Command1_Click(Merkkartelle& app)
{
    if (!app.Suchergebnis.Check1.checked())
        app.SuchErgebnis = 0;
    suchergebnisSchliessen(app);
}

void Suchergebnis_Check1_Click(Merkkartelle& app) { vorschauAnzeigen(app, QStringLiteral("Schliessen")); }

void Suchergebnis_KeyDown(Merkkartelle& app, EventArgs& args)
{
    if (args.KeyCode == vbKeyEscape)
        Suchergebnis_Command1_Click(app);
    else if (args.KeyCode == vbKeyF1)
        app.ui.MsgBox(QStringLiteral(" \r\nFunções do teclado\r\n \r\nESC = Sair "));
}

void Suchergebnis_Liste_KeyPress(Merkkartelle& app, EventArgs& args)
{
    if (args.KeyAscii != vbKeyReturn)
        return;
    args.KeyAscii = 0;
    Suchergebnis_ok_Click(app);
}

void registerQuickSearchHandlers(HandlerTable& table)
{
    const QString click = QStringLiteral("Click");
    table.on(QStringLiteral("Hauptmaske"), QStringLiteral("NachAdresseSuchen"), click, &NachAdresseSuchen_Click);

    const QString schnell = QStringLiteral("Schnellsuchen");
    table.onForm(schnell, QStringLiteral("Load"), [](Merkkartelle& app, EventArgs&) { Schnellsuchen_Load(app); });
    table.onForm(schnell, QStringLiteral("Activate"), [](Merkkartelle& app, EventArgs&) { Schnellsuchen_Activate(app); });
    table.onForm(schnell, QStringLiteral("KeyUp"), &Schnellsuchen_KeyUp);
    table.on(schnell, QStringLiteral("Command1"), click, &Schnellsuchen_Command1_Click);
    table.on(schnell, QStringLiteral("abbruch"), click, &Schnellsuchen_abbruch_Click);
    table.on(schnell, QStringLiteral("Suchbegriff"), QStringLiteral("KeyPress"), &Schnellsuchen_Suchbegriff_KeyPress);

    const QString liste = QStringLiteral("Suchergebnis");
    table.onForm(liste, QStringLiteral("Load"), [](Merkkartelle& app, EventArgs&) { Suchergebnis_Load(app); });
    table.onForm(liste, QStringLiteral("Activate"), [](Merkkartelle& app, EventArgs&) { Suchergebnis_Activate(app); });
    table.onForm(liste, QStringLiteral("KeyDown"), &Suchergebnis_KeyDown);
    table.on(liste, QStringLiteral("Suchergebnisliste"), click, &Suchergebnis_Liste_Click);
    table.on(liste, QStringLiteral("Suchergebnisliste"), QStringLiteral("DblClick"), &Suchergebnis_ok_Click);
    table.on(liste, QStringLiteral("Suchergebnisliste"), QStringLiteral("KeyPress"), &Suchergebnis_Liste_KeyPress);
    table.on(liste, QStringLiteral("ok"), click, &Suchergebnis_ok_Click);
    table.on(liste, QStringLiteral("Command1"), click, &Suchergebnis_Command1_Click);
    table.on(liste, QStringLiteral("Check1"), click, &Suchergebnis_Check1_Click);
}

}  // namespace mk
