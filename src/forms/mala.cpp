#include "forms/mala.h"

namespace mk {

mala::mala()
{
    Width = 9000;
    Height = 6000;
    KeyPreview = true;
    AZCHECK.Ribbon = true;
    Option3D1 = ControlArray<OptionButton>(0, 28);
    Check1.Caption = QStringLiteral("Drucken in der Farbe der Liste");
    Command1.Caption = QStringLiteral("Schrift");
    Command3.Caption = QStringLiteral("Back");
    Command4.Caption = QStringLiteral("Text");
    Command3D2.Caption = QStringLiteral("Druck Abbrechen");
    Label4.Caption = QStringLiteral("Listindex:");
    noat1.Caption = QStringLiteral("Laufende-Nr.:");
    Label5.Caption = QStringLiteral("Colunas:");
    Label15.Caption = QStringLiteral("Paginas:");
    Label14.Caption = QStringLiteral("FIRST");
    Label14.Visible = false;
    Label9.Visible = false;
    Label7.Visible = false;
    Label20.Caption = QStringLiteral("Nome / Sobrenome / Firma");
    nameControls(*this, "mala");
}

}  // namespace mk
