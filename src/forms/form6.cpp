#include "forms/form6.h"

namespace mk {

Form6::Form6()
{
    Width = 9000;
    Height = 7500;
    KeyPreview = true;
    impinf.Caption = QStringLiteral("Bemerkung");
    impinf.BooleanValue = true;
    Impsoc.Caption = QStringLiteral("Conected");
    Impsoc.BooleanValue = true;
    Command1.Caption = QStringLiteral("+");  // the picture factor up and down by one
    Command7.Caption = QStringLiteral("-");
    Command2.Caption = QStringLiteral("Farbe");
    Command3.Caption = QStringLiteral("Schliessen");
    Command4.Caption = QStringLiteral("Drucken");
    Command5.Caption = QStringLiteral("Schrift");
    Command6.Caption = QStringLiteral("Drucker E.");
    Command8.Caption = QStringLiteral("Suchen");
    nameControls(*this, "Form6");
}

}  // namespace mk
