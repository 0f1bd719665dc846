#include "printing/card_printing.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "platform/profile.h"
#include "platform/text_files.h"
#include "printing/label_printing.h"

#include <QRegularExpression>

namespace mk {

namespace {

using M = Merkkartelle;

// Label, Tab(20), value: the tab stands in the printed text and the device sets the value
// at the twentieth column.
void zeile(Surface& s, const QString& label, const QString& wert)
{
    if (!wert.isEmpty())
        s.Print(label + QLatin1Char('\t') + wert);
}

// The bars show a tenth of their value, with the locale's comma made a point.
QString zehntel(int wert)
{
    QString text = QString::number(wert / 10.0, 'g', 10);
    underIgnoredErrors([&] { decimalconvertor(text); });
    return text;
}

bool wahr(const QString& text)
{
    bool wert = false;
    underIgnoredErrors([&] { wert = toBoolean(text); });
    return wert;
}

}  // namespace

void KarteAufSeite(M& app, Surface& s)
{
    auto& f = app.Form6;
    auto& m = app.Hauptmaske;
    const double bildBreite = Val(QString::number(m.Image1.Width)) / 567;
    const double bildHoehe = Val(QString::number(m.Image1.Height)) / 567;
    const double faktor1 = Val(f.Label4.Caption);
    underIgnoredErrors([&] { s.Scale(Val(f.Text2.Text), -Val(f.Text3.Text), -20, 20); });
    underIgnoredErrors([&] {
        s.PaintPicture(m.Image1.Picture, -bildBreite * faktor1, bildHoehe * faktor1, Val(f.Text2.Text), -Val(f.Text3.Text));
    });
    s.FontName = f.Font.Name;
    s.FontSize = f.Font.Size;
    s.FontBold = f.Font.Bold;
    s.FontItalic = f.Font.Italic;
    s.ForeColor = f.ForeColor;
    s.CurrentY = bildHoehe * faktor1;
    s.Print();
    for (int i = 0; i <= 15; ++i)
        zeile(s, m.beschreibung[i].Caption, m.feld[i].Text);
    const TextBox* telefone[] = {&m.tel1, &m.tel2, &m.tel3, &m.tel4};
    for (int i = 0; i < 4; ++i)
        zeile(s, m.TEL_LBL[i].Caption, telefone[i]->Text);
    for (int i : {17, 18})
        zeile(s, m.beschreibung[i].Caption, m.feld[i].Text);
    if (!m.feld[16].Text.isEmpty()) {
        zeile(s, QStringLiteral("Imagen:"), m.feld[16].Text);
        s.Print();
    }
    for (int i = 19; i <= 22; ++i)
        zeile(s, m.beschreibung[i].Caption, m.feld[i].Text);
    s.Print();
    for (int i = 0; i < 4; ++i)
        zeile(s, app.Einstellungsliste[std::size_t(128 + i)], m.feldnum[i].Text);
    s.Print();
    if (f.Impsoc.checked()) {
        for (int i = 1; i <= 10; ++i) {
            const QString text = app.Aform.FeldA.exists(i) ? app.Aform.FeldA[i].Text : QString();
            zeile(s, QStringLiteral("%1. ").arg(i, 2, 10, QLatin1Char('0')), text);
        }
        s.Print();
    }
    for (int i = 0; i <= 2; ++i)
        zeile(s, m.beschreibungbank[i].Caption, m.feldbank[i].Text);
    s.Print();
    if (f.impinf.checked() && !m.Bemerkung.Text.isEmpty())
        s.Print(m.Bemerkung.Text);
}

void KarteZeichnen(M& app)
{
    RecordingSurface& s = app.printing.form(QStringLiteral("Form6"));
    s.beginDrawing(QStringLiteral("Form6"));
    s.Cls();
    KarteAufSeite(app, s);
    s.ScaleTwips();
    if (app.printing.formChanged)
        app.printing.formChanged(QStringLiteral("Form6"));
}

void KarteDrucken(M& app)
{
    if (app.ui.MsgBox(QStringLiteral("Atuelle Seite Drucken ?"), vbYesNo, QStringLiteral("Drucken")) != vbYes)
        return;
    loadForm(app, app.Message);
    app.Message.Label1.Caption = QStringLiteral(" Druckvorgang ... ");
    app.Message.Label1.ForeColor = rgb(0, 0, 128);
    app.Message.Timer1.Enabled = false;
    showForm(app, app.Message);
    Surface& s = app.printing.printer();
    KarteAufSeite(app, s);
    underIgnoredErrors([&] {
        if (s.CurrentY >= s.Height() / 567)
            s.NewPage();
    });
    s.EndDoc();
    s.ScaleTwips();
    unloadForm(app, app.Message);
}

namespace {

void balkenText(M& app)
{
    auto& f = app.Form6;
    f.Text2.Text = zehntel(f.HScroll2.Value);
    f.Text3.Text = zehntel(f.HScroll3.Value);
    f.Label3.Caption = zehntel(f.HScroll1.Value);
    f.Label4.Caption = zehntel(f.HScroll4.Value);
}

void infoprint_Click(M& app)
{
    auto& f = app.Form6;
    loadForm(app, f);
    if (f.WindowState == vbMinimized)
        f.WindowState = vbNormal;
    const auto& e = app.Einstellungsliste;
    const auto bar = [](ScrollBar& b, const QString& slot) {
        underIgnoredErrors([&] { b.Value = std::clamp(int(Val(slot) * 10), b.Min, b.Max); });
    };
    bar(f.HScroll2, e[141]);
    bar(f.HScroll3, e[142]);
    f.impinf.Value = int(wahr(e[143]));
    if (!e[144].isEmpty())
        f.Font.Name = e[144];
    if (Val(e[145]) > 0)
        f.Font.Size = Val(e[145]);
    f.Font.Bold = wahr(e[146]);
    f.Font.Italic = wahr(e[147]);
    if (!e[148].isEmpty())
        f.ForeColor = long(Val(e[148]));
    bar(f.HScroll1, e[149]);
    f.Impsoc.Value = int(wahr(e[150]));
    balkenText(app);
    showForm(app, f);
}

void Command3_Click(M& app)  // "Schliessen"
{
    auto& f = app.Form6;
    auto& e = app.Einstellungsliste;
    e[141] = f.Text2.Text;
    e[142] = f.Text3.Text;
    e[143] = f.impinf.checked() ? QStringLiteral("#TRUE#") : QStringLiteral("#FALSE#");
    e[144] = f.Font.Name;
    e[145] = QString::number(f.Font.Size);
    e[146] = f.Font.Bold ? QStringLiteral("#TRUE#") : QStringLiteral("#FALSE#");
    e[147] = f.Font.Italic ? QStringLiteral("#TRUE#") : QStringLiteral("#FALSE#");
    e[148] = QString::number(f.ForeColor);
    e[149] = f.Label3.Caption;
    e[150] = f.Impsoc.checked() ? QStringLiteral("#TRUE#") : QStringLiteral("#FALSE#");
    hideForm(app, f);
}

void Command8_Click(M& app)  // "Suchen"
{
    QString aktuell;
    underIgnoredErrors([&] { aktuell = kartensatz(app).Fields(QStringLiteral("Laufendenummer")).text(); });
    const QString wert = app.ui.InputBox(QStringLiteral("Digite o numero do cadastro desejado"), QStringLiteral("Escolher cadastro"), aktuell);
    if (wert.isEmpty())
        return;
    app.Form6.Label6.Caption = wert;
    const bool gefunden = NummernpraefixFinden(app, wert);
    if (!gefunden) {
        app.ui.MsgBox(QStringLiteral("Eintrag nicht gefunden !"));
        return;
    }
    DatenInMaske(app);
    KarteZeichnen(app);
}

void richtextDrucken(M& app, const QString& titel, const RichText& feld)
{
    PrinterDialog p;
    p.DialogTitle = titel;
    p.Flags = feld.SelLength == 0 ? cdlPDAllPages : cdlPDSelection;
    const PrinterChoice choice = app.ui.ShowPrinter(p);
    if (choice.cancelled)
        return;
    DruckereinrichtungUebernehmen(app, choice);
    Surface& s = app.printing.printer();
    const QString text = (choice.Flags & cdlPDSelection) ? selectedText(feld.Text, feld) : feld.Text;
    s.CurrentX = s.CurrentY = 0;
    for (const QString& line : text.split(QRegularExpression(QStringLiteral("\r\n|\r|\n"))))
        s.Print(line);
    s.EndDoc();
}

void confimp_Click(M& app)
{
    app.Hauptmaske.Label7.Caption = GetProfileString(QStringLiteral("windows"), QStringLiteral("spooler"), QString());
    PrinterDialog d;
    d.DialogTitle = QStringLiteral("Druckereinrichtung");
    const PrinterChoice choice = app.ui.ShowPrinter(d);
    if (!choice.cancelled)
        DruckereinrichtungUebernehmen(app, choice);
}

void redraw(M& app, EventArgs&) { KarteZeichnen(app); }

}  // namespace

void registerCardPrintingHandlers(HandlerTable& table)
{
    const QString f = QStringLiteral("Form6");
    const QString click = QStringLiteral("Click");
    table.onForm(f, QStringLiteral("Activate"), redraw);
    table.onForm(f, QStringLiteral("Paint"), redraw);
    table.onForm(f, QStringLiteral("KeyDown"), [](M& app, EventArgs& a) {
        if (a.KeyCode == vbKeyEscape)
            hideForm(app, app.Form6);
    });
    for (const char* bar : {"HScroll1", "HScroll2", "HScroll3", "HScroll4"})
        for (const char* event : {"Change", "Scroll"})
            table.on(f, QString::fromLatin1(bar), QString::fromLatin1(event), [](M& app, EventArgs&) {
                balkenText(app);
                KarteZeichnen(app);
            });
    table.on(f, QStringLiteral("impinf"), click, redraw);
    table.on(f, QStringLiteral("Impsoc"), click, redraw);
    table.on(f, QStringLiteral("Command1"), click, [](M& app, EventArgs&) {
        app.Form6.HScroll4.setValue(app.Form6.HScroll4.Value + 10);
        balkenText(app);
        KarteZeichnen(app);
    });
    table.on(f, QStringLiteral("Command7"), click, [](M& app, EventArgs&) {
        app.Form6.HScroll4.setValue(app.Form6.HScroll4.Value - 10);
        balkenText(app);
        KarteZeichnen(app);
    });
    table.on(f, QStringLiteral("Command2"), click, [](M& app, EventArgs&) {
        const ColorChoice c = app.ui.ShowColor(app.Form6.ForeColor);
        if (c.cancelled)
            return;
        app.Form6.ForeColor = c.Color;
        KarteZeichnen(app);
    });
    table.on(f, QStringLiteral("Command5"), click, [](M& app, EventArgs&) {
        const FontSpec& font = app.Form6.Font;
        const FontChoice c = app.ui.ShowFont({false, font.Name, font.Size, font.Bold, font.Italic});
        if (c.cancelled)
            return;
        app.Form6.Font = FontSpec{c.Name, c.Size, c.Bold, c.Italic};
        KarteZeichnen(app);
    });
    table.on(f, QStringLiteral("Command3"), click, Command3_Click);
    table.on(f, QStringLiteral("Command4"), click, KarteDrucken);
    table.on(f, QStringLiteral("Command6"), click, confimp_Click);
    table.on(f, QStringLiteral("Command8"), click, Command8_Click);

    const QString main = QStringLiteral("Hauptmaske");
    table.on(main, QStringLiteral("infoprint"), click, infoprint_Click);
    table.on(main, QStringLiteral("confimp"), click, confimp_Click);
    table.on(main, QStringLiteral("BemDruck"), click, [](M& app, EventArgs&) {
        richtextDrucken(app, QStringLiteral("Druckvorgang"), app.Hauptmaske.Bemerkung);
    });
    table.on(main, QStringLiteral("printzusatzdaten"), click, [](M& app, EventArgs&) {
        richtextDrucken(app, QStringLiteral("Druckvorgang - Zusatzdaten"), app.Hauptmaske.Text15);
    });
}

}  // namespace mk
