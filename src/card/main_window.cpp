#include "card/main_window.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/edit_clipboard.h"
#include "card/field_checks.h"
#include "card/key_map.h"
#include "card/mask_transfer.h"
#include "card/screen_guard.h"

#include <algorithm>
#include <array>

namespace mk {

namespace {

// ---- the four panels --------------------------------------------------------------------------

struct PanelPaar {
    Panel Hauptmaske::*panel;
    Button Hauptmaske::*knopf;
};

constexpr std::array<PanelPaar, 4> kPanels = {{
    {&Hauptmaske::Bankverbindung, &Hauptmaske::Command1},
    {&Hauptmaske::Morephones, &Hauptmaske::Command3d4},
    {&Hauptmaske::Numbers, &Hauptmaske::Command4},
    {&Hauptmaske::Conexted, &Hauptmaske::Command3D2},
}};

// ---- the layout, in twips ------------------------------------------------------------------------

constexpr int kRand = 120;          // margin inside a panel
constexpr int kRahmenBreite = 120;  // the window's borders
constexpr int kRahmenHoehe = 900;   // caption, menu bar and borders
constexpr int kKopfHoehe = 660;     // Panel3D4, the bar of buttons on top
constexpr int kStatusHoehe = 330;   // Panel3D3 and the clock beside it
constexpr int kUhrBreite = 3000;    // Panel3D1: date and time
constexpr int kBildBreite = 2880;   // Panel3D2: the card's picture
constexpr int kBeschriftung = 1400; // the label in front of a slot
constexpr int kZeile = 330;         // one row of slots
constexpr int kErsteZeile = 600;
constexpr int kZeilenJeSpalte = 12;
constexpr int kKnopfBreite = 1215;
constexpr int kKnopfHoehe = 375;

void setzen(Control& c, int left, int top, int width, int height)
{
    c.Left = left;
    c.Top = top;
    c.Width = std::max(width, 0);
    c.Height = std::max(height, 0);
}

// The place of the notes inside SSPanel2, below the slots; shared by the notes and the four
// panels.
struct Rechteck {
    int left, top, width, height;
};

Rechteck notizPlatz(const Hauptmaske& m)
{
    const int top = kErsteZeile + kZeilenJeSpalte * kZeile + kRand;
    return {kRand, top, m.SSPanel2.Width - 2 * kRand, m.SSPanel2.Height - top - kRand};
}

Rechteck ganzesPanel(const Hauptmaske& m) { return {0, 0, m.SSPanel2.Width, m.SSPanel2.Height}; }

bool notizVergroessert(const Hauptmaske& m) { return m.SSCommand3.Value; }

void notizenPlatzieren(Hauptmaske& m)
{
    const Rechteck r = notizVergroessert(m) ? ganzesPanel(m) : notizPlatz(m);
    setzen(m.Bemerkung, r.left, r.top, r.width, r.height);
}

void panelsPlatzieren(Hauptmaske& m)
{
    const Rechteck r = notizPlatz(m);
    for (const PanelPaar& p : kPanels)
        setzen(m.*p.panel, r.left, r.top, r.width, r.height);
    // CampoM2 fills its panel below the three short extra fields.
    const int oben = 4 * kZeile;
    setzen(m.Text15, kRand, oben, r.width - 2 * kRand, r.height - oben - kRand);
}

// ---- hints -------------------------------------------------------------------------------------

struct HinweisEintrag {
    const char* control;
    int index;  // -1: the control itself, or every element of its array
    const char* text;
};

// The fixed hints of the mask. Those that change with the state are worked out in Hinweis.
constexpr HinweisEintrag kHinweise[] = {
    {"Datum", -1, "Datum der letzten änderung"},
    {"Zeit", -1, "Uhrzeit der letzten änderung"},
    {"recdate", -1, "Erstellungsdatum des Eintrags"},
    {"rectime", -1, "Erstellungsuhrzeit des Eintrags"},
    {"currentindex", -1, "Ordem - valor numérico"},
    {"datalabel", -1, "Atueller Eintrag"},
    {"dataold", -1, "Vorherigen Eintrag aufrufen"},
    {"SortiertNach", -1, "Sortierng der Datenbank"},
    {"Label8", -1, "Bearbeitungsstatus"},
    {"Panel3d5", -1, "Systemzeit"},
    {"panel3d7", -1, "Systemdatum"},
    {"Label16", -1, "Grösse de Bilddatei (Pixel: b x h) "},
    {"Label32", -1, "Breite des Bildes in Pixel"},
    {"Label33", -1, "Altura da Imagen em pixel"},
    {"tel1", -1, "Zusatz Telefonnummer 1"},
    {"tel2", -1, "Zusatz Telefonnummer 2"},
    {"tel3", -1, "Zusatz Telefonnummer 3"},
    {"tel4", -1, "Zusatz Telefonnummer 4"},
    {"Text12", -1, "Zusatz 1"},
    {"Text13", -1, "Zusatz 2"},
    {"Text14", -1, "Zusatz 3"},
    {"Text15", -1, "Zusatzinformationen (Beliebig grosser Text)"},
    {"Ramal", -1, "Vorwahl"},
    {"feldnum", 0, "E-Mail 1"},
    {"feldnum", 1, "E-Mail 2"},
    {"feldnum", 2, "Homepage"},
    {"feldnum", 3, "KFZ-nummer"},
    {"Command1", -1, "Informationen zur Bankverbindung"},
    {"Command3d4", -1, "zusätzliche Telefone"},
    {"Command3D2", -1, "Verknüpfte Dokumente"},
    {"Command3", -1, "Verknüpfte Adressen"},
    {"Bemerkung", -1, "Rechter Mouseknopf"},
};

// The dual buttons: picture and hint while browsing, and while a card is open.
struct DoppelKnopf {
    const char* control;
    Button Hauptmaske::*knopf;
    Image Hauptmaske::*bildBlaettern;
    const char* hinweisBlaettern;
    Image Hauptmaske::*bildBearbeiten;
    const char* hinweisBearbeiten;
};

constexpr std::array<DoppelKnopf, 4> kDoppelKnoepfe = {{
    {"Command3D23", &Hauptmaske::Command3D23, &Hauptmaske::bildselect, " Eintragsfreigabe nach Feldauswahlstext",
     &Hauptmaske::bildrecortar, "Ausschneiden"},
    {"Command3D24", &Hauptmaske::Command3D24, &Hauptmaske::bildordem, " Datenbanksortierung ",
     &Hauptmaske::bildcopy, "Kopieren"},
    {"Command3D25", &Hauptmaske::Command3D25, &Hauptmaske::bildwinword, "Datenbank Export",
     &Hauptmaske::bildpaste, "Einfügen"},
    {"Command3D13", &Hauptmaske::Command3D13, &Hauptmaske::bildwinfile, "Etiketten konfigurieren",
     &Hauptmaske::bildbild, "Bild aussuchen"},
}};

bool gleich(const QString& a, const char* b) { return a.compare(QLatin1String(b), Qt::CaseInsensitive) == 0; }

// The Numbers panel is named after the fields it holds, as their labels say now.
QString numbersHinweis(const Hauptmaske& m)
{
    QStringList namen;
    for (int i = 0; i <= 3; ++i) {
        QString name = m.beschreibungnum[i].Caption.trimmed();
        if (name.endsWith(u':'))
            name.chop(1);
        namen << name;
    }
    return namen.join(QStringLiteral(" - "));
}

}  // namespace

// ---- panels ------------------------------------------------------------------------------------

long panelKnopfNeutral() { return Button{}.BackColor; }
long panelKnopfAktiv() { return rgb(255, 255, 192); }

void PanelsSchliessen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    for (const PanelPaar& p : kPanels) {
        (m.*p.panel).Visible = false;
        (m.*p.knopf).BackColor = panelKnopfNeutral();
    }
    m.beschreibung[16].Caption = kNotizen;
    m.Bemerkung.Visible = true;
}

void PanelUmschalten(Merkkartelle& app, Panel& panel, Button& knopf)
{
    auto& m = app.Hauptmaske;
    if (bildschutzSichtbar(app))
        return;
    for (const PanelPaar& p : kPanels) {
        Panel& andere = m.*p.panel;
        if (&andere != &panel && andere.Visible) {
            andere.Visible = false;
            (m.*p.knopf).BackColor = panelKnopfNeutral();
        }
    }
    if (!panel.Visible) {
        panel.Visible = true;
        m.Bemerkung.Visible = false;
        m.beschreibung[16].Caption = panel.Caption;
        knopf.BackColor = panelKnopfAktiv();
    } else {
        panel.Visible = false;
        knopf.BackColor = panelKnopfNeutral();
        m.beschreibung[16].Caption = kNotizen;
        m.Bemerkung.Visible = true;
    }
    panelsPlatzieren(m);
    notizenPlatzieren(m);
}

void Command1_Click(Merkkartelle& app) { PanelUmschalten(app, app.Hauptmaske.Bankverbindung, app.Hauptmaske.Command1); }
void Command3d4_Click(Merkkartelle& app) { PanelUmschalten(app, app.Hauptmaske.Morephones, app.Hauptmaske.Command3d4); }
void Command4_Click(Merkkartelle& app) { PanelUmschalten(app, app.Hauptmaske.Numbers, app.Hauptmaske.Command4); }
void Command3D2_Click(Merkkartelle& app) { PanelUmschalten(app, app.Hauptmaske.Conexted, app.Hauptmaske.Command3D2); }

// ---- dual buttons -------------------------------------------------------------------------------

void BildsatzSchalten(Merkkartelle& app, bool bearbeiten)
{
    auto& m = app.Hauptmaske;
    for (const DoppelKnopf& d : kDoppelKnoepfe) {
        Button& knopf = m.*d.knopf;
        knopf.Picture = (m.*(bearbeiten ? d.bildBearbeiten : d.bildBlaettern)).Picture;
        knopf.Hint = QString::fromUtf8(bearbeiten ? d.hinweisBearbeiten : d.hinweisBlaettern);
    }
}

void BildsatzSchalten(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    BildsatzSchalten(app, m.Command3D23.Picture != m.bildrecortar.Picture);
}

// ---- the notes -----------------------------------------------------------------------------------

void SSCommand3_Click(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    m.SSCommand3.Value = !m.SSCommand3.Value;
    m.SSCommand3.Hint = notizVergroessert(m) ? kNotizVerkleinern : kNotizVergroessern;
    notizenPlatzieren(m);
    app.Hauptmaske.Panel3D3.Caption = m.SSCommand3.Hint;
}

// ---- hints ----------------------------------------------------------------------------------------

QString Hinweis(Merkkartelle& app, const QString& control, int index)
{
    auto& m = app.Hauptmaske;
    if (gleich(control, "LaufendeNummer"))
        return LaufendeNummerHinweis(app);
    if (gleich(control, "Command4"))
        return numbersHinweis(m);
    if (gleich(control, "SSCommand3"))
        return notizVergroessert(m) ? kNotizVerkleinern : kNotizVergroessern;
    for (const DoppelKnopf& d : kDoppelKnoepfe)
        if (gleich(control, d.control))
            return QString::fromUtf8(bearbeitungOffen(app) ? d.hinweisBearbeiten : d.hinweisBlaettern);
    // While a card is open the typing slots offer their pick lists instead.
    const QString schreibfeld = SchreibfeldHinweis(app, control, index);
    if (!schreibfeld.isEmpty())
        return schreibfeld;
    for (const HinweisEintrag& h : kHinweise)
        if (gleich(control, h.control) && (h.index < 0 || h.index == index))
            return QString::fromUtf8(h.text);
    return {};
}

void HinweisZeigen(Merkkartelle& app, const QString& control, int index)
{
    const QString text = Hinweis(app, control, index);
    QString& hint = app.forms.control(QStringLiteral("Hauptmaske"), control, index).control->Hint;
    QString& status = app.Hauptmaske.Panel3D3.Caption;
    if (text.isEmpty()) {
        // A slot's hint of the edit state does not outlive it.
        if (!hint.isEmpty() && status == hint)
            status.clear();
        hint.clear();
        return;
    }
    hint = text;
    status = text;
}

QString LaufendeNummerHinweis(const Merkkartelle& app)
{
    return QStringLiteral("Laufende Nummer ") + app.Hauptmaske.LaufendeNummer.Caption
           + QStringLiteral("  (Datenbankregistriernummer)");
}

void Hauptmaske_MouseMove(Merkkartelle& app) { app.Hauptmaske.Panel3D3.Caption.clear(); }

// ---- size ------------------------------------------------------------------------------------------

void Hauptmaske_Resize(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    if (m.WindowState == vbMinimized)
        return;
    const int breite = std::max(m.Width - kRahmenBreite, 0);
    const int hoehe = std::max(m.Height - kRahmenHoehe, kKopfHoehe + kStatusHoehe);

    // The frame of the mask.
    setzen(m.Panel3D4, 0, 0, breite, kKopfHoehe);
    setzen(m.SSPanel2, 0, kKopfHoehe, breite, hoehe - kKopfHoehe - kStatusHoehe);
    setzen(m.Panel3D1, breite - kUhrBreite, hoehe - kStatusHoehe, kUhrBreite, kStatusHoehe);
    setzen(m.Panel3D3, 0, hoehe - kStatusHoehe, breite - kUhrBreite, kStatusHoehe);
    setzen(m.Panel3D2, m.SSPanel2.Width - kBildBreite - kRand, kRand, kBildBreite, kBildBreite);

    // The buttons at the right edge of the bar, and the history flag beside them.
    const int knopfOben = (kKopfHoehe - kKnopfHoehe) / 2;
    setzen(m.Command3D1, breite - kKnopfBreite - kRand, knopfOben, kKnopfBreite, kKnopfHoehe);
    setzen(m.SSCommand1, m.Command3D1.Left - kKnopfHoehe - kRand, knopfOben, kKnopfHoehe, kKnopfHoehe);
    setzen(m.Label9, m.SSCommand1.Left - kKnopfBreite - kRand, knopfOben + 60, kKnopfBreite, 255);
    const Rechteck notiz = notizPlatz(m);
    setzen(m.Command3D2, notiz.left + notiz.width - kKnopfBreite, notiz.top - kKnopfHoehe, kKnopfBreite,
           kKnopfHoehe);

    // The notes and the slots: two columns of label and slot left of the picture.
    notizenPlatzieren(m);
    const int spalten = m.SSPanel2.Width - kBildBreite - 4 * kRand;
    const int slotBreite = std::max(spalten / 2 - kBeschriftung, 0);
    for (auto& [i, slot] : m.feld) {
        const int spalte = i < kZeilenJeSpalte ? 0 : 1;
        const int zeile = i % kZeilenJeSpalte;
        setzen(slot, kRand + kBeschriftung + spalte * (kBeschriftung + slotBreite + kRand),
               kErsteZeile + zeile * kZeile, slotBreite, slot.Height);
    }
    // Partido closes the second column.
    const TextBox& letzter = m.feld[22];
    setzen(m.Partido, letzter.Left, letzter.Top + kZeile, slotBreite, m.Partido.Height);

    // The pictures, then the panels in the place of the notes.
    BildEinpassen(m.Image1, m.Panel3D2);
    setzen(m.Image2, kRand, (kKopfHoehe - 480) / 2, 480, 480);
    panelsPlatzieren(m);
    if (m.Bildschutz.Visible)
        BildschutzEinpassen(app);
}

// ---- the handler table ----------------------------------------------------------------------------

void registerMainWindowHandlers(HandlerTable& table)
{
    const QString main = QStringLiteral("Hauptmaske");
    const QString click = QStringLiteral("Click");
    const QString mouseMove = QStringLiteral("MouseMove");

    table.onForm(main, QStringLiteral("KeyDown"), Hauptmaske_KeyDown);
    table.onForm(main, mouseMove, [](Merkkartelle& app, EventArgs&) { Hauptmaske_MouseMove(app); });
    table.onForm(main, QStringLiteral("Resize"), [](Merkkartelle& app, EventArgs&) { Hauptmaske_Resize(app); });

    table.on(main, QStringLiteral("Command1"), click, Command1_Click);
    table.on(main, QStringLiteral("Command3d4"), click, Command3d4_Click);
    table.on(main, QStringLiteral("Command4"), click, Command4_Click);
    table.on(main, QStringLiteral("Command3D2"), click, Command3D2_Click);
    table.on(main, QStringLiteral("SSCommand3"), click, SSCommand3_Click);

    // Hints. The move buttons keep theirs with the moves.
    QStringList mitHinweis;
    for (const HinweisEintrag& h : kHinweise)
        if (!mitHinweis.contains(QLatin1String(h.control)))
            mitHinweis << QString::fromUtf8(h.control);
    for (const DoppelKnopf& d : kDoppelKnoepfe)
        mitHinweis << QString::fromUtf8(d.control);
    mitHinweis << QStringLiteral("LaufendeNummer") << QStringLiteral("Command4") << QStringLiteral("SSCommand3")
               << QStringLiteral("feld") << QStringLiteral("feldbank") << QStringLiteral("Partido");
    for (const QString& control : mitHinweis)
        table.on(main, control, mouseMove,
                 [control](Merkkartelle& app, EventArgs& args) { HinweisZeigen(app, control, args.Index); });

    registerEditClipboardHandlers(table);
    registerFieldCheckHandlers(table);
    registerScreenGuardHandlers(table);
}

}  // namespace mk
