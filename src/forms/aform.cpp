#include "forms/aform.h"

namespace mk {

Aform::Aform()
{
    Caption = QStringLiteral("Conections");
    Width = 7800;
    Height = 5400;
    FeldA = ControlArray<TextBox>(1, 10, [](TextBox& t, int i) { t.Hint = QStringLiteral("Feld %1. Conected").arg(i); });
    feldB = ControlArray<TextBox>(1, 10);
    Suchtext = ControlArray<TextBox>(0, 9);
    SuchOption = ControlArray<OptionButton>(0, 3);
    Command6.Caption = QStringLiteral("Conected");
    Command7.Caption = QStringLiteral("grösser...");
    Command8.Caption = QStringLiteral("Eintrag aktivieren");
    Label5.Visible = false;
    nameControls(*this, "Aform");
}

}  // namespace mk
