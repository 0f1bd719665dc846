#include "forms/etiquet.h"

namespace mk {

namespace {

void box(TextBox& t, const char* text, const char* hint = "")
{
    t.Text = QString::fromUtf8(text);
    t.Hint = QString::fromUtf8(hint);
}

void check(CheckBox& c, const char* caption, const char* hint = "")
{
    c.Caption = QString::fromUtf8(caption);
    c.Hint = QString::fromUtf8(hint);
}

void bar(ScrollBar& s, int min, int max, int value, int small, int large)
{
    s.Min = min;
    s.Max = max;
    s.Value = value;
    s.SmallChange = small;
    s.LargeChange = large;
}

void swatch(Label& l, long colour, const char* hint)
{
    l.BackColor = colour;
    l.Hint = QString::fromUtf8(hint);
    l.Width = 375;
}

}  // namespace

etiquet::etiquet()
{
    Caption = QStringLiteral("Einstellungen der Etiketten");
    Width = 11000;
    Height = 8000;
    KeyPreview = true;

    box(Text5, "0", "Abstand des Rahmens von links X");
    box(Text6, "0", "Abstand des Rahmens von oben Y");
    box(Text3, "0.3", "Textzeilenabstand zum Rahmen X");
    box(Text4, "0.3", "Textzeilenabstand zum Rahmen Y");
    box(tabh, "4.5", "Abstand zwischen den Textzeilen");
    box(Text1, "3", "Breite der Etiketten");
    box(Text2, "3", "Höhe der Etiketten");
    box(dishor, "0.1", "Vertikaler Abstand zwischen den Etiketten Y");
    box(disver, "0.1", "Horizontaler abstand zwischen den Etiketten X");
    box(Quantidade, "1", "Anzahl der Etiketten horizontal");
    box(colunas, "1", "Anzahl der Etiketten vertikal");
    bar(HScroll1, 1, 999, 1, 1, 1);
    bar(HScroll2, 1, 999, 1, 1, 1);
    box(impbordavertical, "");
    box(impborda, "");
    box(Text9, "27.0", "Comprimento da pagina verifique a configuração da sua impressora");
    box(Text12, "0");
    box(paginas, "1");

    box(Text7, "12", "Tamanho da fonte");
    box(Text8, "ARIAL", "Clique para escolher a fonte para o texto geral da etiqueta");
    check(Check1, "Negrito", "Fonte negrita");
    check(Check2, "Italico", "Fonte italico");
    swatch(Campoforecolor, colour::Black, "Textfarbe für die 5 Felder der Etiketten auswählen");
    Combo1 = ControlArray<ComboBox>(0, 4, [](ComboBox& c, int) {
        c.Hint = QStringLiteral("Escolha os items para a impressão");
    });
    box(Text10, "Tel.:");
    box(Text15, "Cel.:");
    check(Check5, "Bemerkung Drucken");
    box(InfoFontname, "ARIAL", "Clique para escolher uma fonte para o texto da Bemerkung");
    box(InfoFontsize, "10");
    swatch(Infoforecolor, colour::Blue, "Textfarbe für die Bemerkung auswählen");
    check(Check10, "Negrito");
    check(Check20, "Italico");
    check(Check6, "Trennlinie");
    box(Text13, "0", "Distancia entre endereço e Bemerkung");

    check(Check3, "Horizontale Linie");
    check(Check4, "Mit Rahmen");
    swatch(bordercolor, colour::Black, "Rahmenfarbe auswählen");
    check(Check7, "Bild");
    Label32.Caption = QStringLiteral("0");
    Label33.Caption = QStringLiteral("5000");
    Label34.Caption = QStringLiteral("0");
    bar(HScroll3, -10000, 10000, 0, 50, 500);
    bar(HScroll4, 0, 30000, 5000, 100, 1000);
    bar(HScroll5, -10000, 10000, 0, 50, 500);
    Label38.Caption = QStringLiteral("0");

    Label17.Hint = QStringLiteral("Escolha os items para a impressão");
    SSPanel1.Hint = QStringLiteral("Clique para redesenhar");
    // The buttons showed pictures; their words here are the keys' meanings.
    Command1.Caption = QStringLiteral("Laden");
    Command2.Caption = QStringLiteral("Speichern");
    Command3.Caption = QStringLiteral("Drucken");
    Command3D2.Caption = QStringLiteral("Schliessen");
    Command3D12.Caption = QStringLiteral("Eintrag...");
    SSPanel1.Caption = QStringLiteral("Vorschau");
    Command1.Hint = QStringLiteral("Etiketteneinstellung laden");
    Command2.Hint = QStringLiteral("Etiketteneinstellung speichern");
    Command4.Caption = QStringLiteral("Drucker Einstellen");
    Command4.Hint = QStringLiteral("Drucker einstellen");
    Command3D2.Hint = QStringLiteral("Etiketteneinstellungen schliessen");
    Command3D12.Hint = QStringLiteral("Eintrag auswählen");

    nameControls(*this, "etiquet");
}

}  // namespace mk
