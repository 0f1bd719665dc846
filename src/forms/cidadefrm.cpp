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
    nameControls(*this, "Cidadefrm");
}

}  // namespace mk
