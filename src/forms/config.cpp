#include "forms/config.h"

namespace mk {

namespace {

void option(CheckBox& box, const char* caption, int left, int top)
{
    box.Caption = QString::fromUtf8(caption);
    box.BooleanValue = true;
    box.Left = left;
    box.Top = top;
    box.Width = 4200;
    box.Height = 255;
}

void entry(TextBox& box, int left, int top, int width)
{
    box.Left = left;
    box.Top = top;
    box.Width = width;
}

void caption(Label& label, const char* text, int left, int top, int width = 1800)
{
    label.Caption = QString::fromUtf8(text);
    label.Left = left;
    label.Top = top;
    label.Width = width;
}

void button(Button& b, const char* text, int left, int top, int width = 1455)
{
    b.Caption = QString::fromUtf8(text);
    b.Left = left;
    b.Top = top;
    b.Width = width;
}

}  // namespace

config::config()
{
    Caption = QStringLiteral("Einstellungen");
    Width = 9600;
    Height = 8400;
    KeyPreview = true;

    // Options, left column.
    constexpr int L = 240;
    option(SSCheck4, "Warnsignal zum bearbeiten", L, 360);
    option(SSCheck5, "Standartknopf Ja beim Löschen", L, 660);
    option(SSCheck2, "Keine doppelten Eintäge", L, 960);
    option(SSCheck6, "Notiz als EMAIL anhang", L, 1260);
    option(SSCheck7, "Programmsounds abspielen", L, 1560);
    option(SSCheck3, "Sound des Eintrags abspielen", L, 1860);
    option(SSCheck8, "Programmschutz aktivieren", L, 2160);
    option(SSCheck1, "Foto des Eintrags vergrössern", L, 2460);
    option(SSCheck9, "Bilder zeigen", L, 2760);
    option(Check3D8, "Bilder anpassen", L, 3060);
    option(SSCheck10, "Global Manager OFF", L, 3360);
    option(Check3D3, "Geburtstage bei programmstart anzeigen", L, 3660);
    option(Check3D5, "Verlauf speichern", L, 3960);
    option(Check3D10, "Weisse Felder während des bearbeitens", L, 4260);
    option(Check3D11, "Registiernummer bei Suchergebnissen anzeigen", L, 4560);
    option(Check3D12, "Cursor am Ende der Texte", L, 4860);
    option(SSCheck11, "Gittersuche", L, 5160);
    option(Check3D9, "", L + 240, 5460);
    Check3D9.Caption = kGittersuchSchluessel;
    Check3D9.Visible = false;  // shown while SSCheck11 is ticked
    option(Check3D13, "Einstellungen speichern", L, 5760);
    option(Check3D6, "", L, 6060);
    Check3D6.Width = 255;
    option(Check3D7, "", L + 360, 6060);
    Check3D7.Width = 255;

    Frame1.Caption = QStringLiteral("Optionen");
    Frame1.Left = 120;
    Frame1.Top = 120;
    Frame1.Width = 4560;
    Frame1.Height = 6300;

    // Presets of a new card and the other texts, right column.
    constexpr int C = 4920;  // captions
    constexpr int B = 6840;  // boxes
    Frame2.Caption = QStringLiteral("Neuer Eintrag");
    Frame2.Left = 4800;
    Frame2.Top = 120;
    Frame2.Width = 4560;
    Frame2.Height = 3300;
    prelabel = ControlArray<Label>(0, 3, [](Label& l, int i) {
        static const char* const texts[] = {"Schluessel:", "Titel:", "Firma:", "Geburtstag:"};
        caption(l, texts[i], C, 390 + i * 330);
    });
    prefeld = ControlArray<TextBox>(0, 3, [](TextBox& t, int i) { entry(t, B, 360 + i * 330, 2400); });
    caption(Label1, "Strasse:", C, 1710);
    entry(Text20, B, 1680, 2400);
    caption(Label2, "Stadteil:", C, 2040);
    entry(Text21, B, 2010, 2400);
    caption(Label3, "Ort:", C, 2370);
    entry(Text15, B, 2340, 2400);
    caption(Label4, "Staat:", C, 2700);
    entry(Text16, B, 2670, 2400);
    caption(Label5, "Land:", C, 3030);
    entry(Text17, B, 3000, 2400);

    Frame3.Caption = QStringLiteral("Listen");
    Frame3.Left = 4800;
    Frame3.Top = 3480;
    Frame3.Width = 4560;
    Frame3.Height = 1400;
    caption(Label6, "1. Spalte", C, 3750, 900);
    entry(Text12, C + 900, 3720, 600);
    caption(Label7, "2. Spalte", C + 1620, 3750, 900);
    entry(Text13, C + 2520, 3720, 600);
    caption(Label8, "3. Spalte", C, 4080, 900);
    entry(Text14, C + 900, 4050, 600);
    caption(Label9, "Leerraum", C + 1620, 4080, 900);
    entry(Text8, C + 2520, 4050, 600);

    caption(Label10, "Standart Eintrag", C, 5010);
    entry(Text1, B, 4980, 2400);
    caption(Label11, "Standort (Vorwahl)", C, 5340);
    entry(Text2, B, 5310, 2400);
    Text2.Text = QStringLiteral("02132");
    caption(Label12, "Standart Betreff text für E-MAIL1 + 2", C, 5670, 4400);
    entry(Text9, C, 5940, 4400);
    caption(Label13, "Verknüpftes Programm", C, 6300, 4400);
    entry(Text18, C, 6570, 4400);

    // Colours and fonts.
    Frame4.Caption = QStringLiteral("Farben");
    Frame4.Left = 120;
    Frame4.Top = 6480;
    Frame4.Width = 4560;
    Frame4.Height = 1380;
    caption(Label14, "Felder", L, 6720, 1000);
    caption(Label15, "Maske", L, 7080, 1000);
    Label16.Visible = false;
    Label17.Visible = false;
    button(Command1, "Felder", 1200, 6690, 1000);
    button(Command2, "Text", 2280, 6690, 1000);
    button(Command3, "Schrift", 3360, 6690, 1200);
    button(Command6, "Hintergrund", 1200, 7050, 1000);
    caption(Label34, "Benennung Focusfarbe", 2280, 7080, 2280);
    Label34.BackColor = colour::Black;
    Label34.ForeColor = colour::Red;
    Label34.Alignment = vbCenter;
    button(Command8, "Standart Grau", 1200, 7440, 1600);
    button(Command9, "Standart Schwarz", 2880, 7440, 1680);

    // The file and the form.
    button(Command7, "Gelöschte Einträge wiederherstellen", 4920, 7020, 4440);
    button(Command4, "Öffnen", 4920, 7440);
    button(Command5, "Sichern", 6420, 7440);
    button(Command3d1, "Schliessen", 7920, 7440);

    CMDialog1.FileName = QStringLiteral("merkkartelle.cfg");

    nameControls(*this, "config");
}

}  // namespace mk
