#include "forms/cidadefrm.h"

namespace mk {

Cidadefrm::Cidadefrm()
{
    Width = 4800;
    Height = 5400;
    List3.Visible = false;
    Label1.Caption = QStringLiteral("Feldtext hinzufügen:");
    Label2.Visible = false;
    Label3.Visible = false;
    Command1.Caption = QStringLiteral("Hinzufügen");
    Command2.Caption = QStringLiteral("Abbrechen");
    Command3.Caption = QStringLiteral("Löschen");
    Command4.Caption = QStringLiteral("Laden");
    Command5.Caption = QStringLiteral("Auswählen");
    Command3.Enabled = false;  // until a text is chosen
    Command5.Enabled = false;
    nameControls(*this, "Cidadefrm");
}

}  // namespace mk
