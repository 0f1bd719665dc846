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
    Command2.Caption = QStringLiteral("Sortierung");
    AZCHECK.Caption = QStringLiteral("Z - A");
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
    SSCommand1.Caption = QStringLiteral("Drucken");
    Command3D1.Caption = QStringLiteral("Schliessen");
    Command3D3.Caption = QStringLiteral("Druckmodus beenden");
    Command3d4.Caption = QStringLiteral("Etiketten");
    Command3D2.Visible = false;
    for (Label* l : {&Label5, &Label15, &Label17, &Label18, &Label19})
        l->Visible = false;
    nameControls(*this, "mala");
}

}  // namespace mk
