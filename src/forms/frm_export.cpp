#include "forms/frm_export.h"

namespace mk {

frmExport::frmExport()
{
    Caption = QStringLiteral("Datenbank Export");
    Width = 7200;
    Height = 5400;
    Check3D1.Caption = QStringLiteral("Horizontal");
    Check3D1.BooleanValue = true;
    nameControls(*this, "frmExport");
}

}  // namespace mk
