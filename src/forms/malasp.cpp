#include "forms/malasp.h"

namespace mk {

malasp::malasp()
{
    Width = 9000;
    Height = 6000;
    KeyPreview = true;
    Command2.Caption = QStringLiteral("Monat");
    Command5.Caption = QStringLiteral("Tag");
    Command6.Caption = QStringLiteral("Jahr");
    Command3D2.Caption = QStringLiteral("Drucken Abbrechen");
    AZCHECK.Ribbon = true;
    Label9.Visible = false;
    nameControls(*this, "malasp");
}

}  // namespace mk
