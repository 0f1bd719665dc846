#include "forms/frm_export.h"

namespace mk {

frmExport::frmExport()
{
    Caption = QStringLiteral("Datenbank Export");
    Width = 7200;
    Height = 5400;
    KeyPreview = true;
    Check3D1.Caption = QStringLiteral("Horizontal");
    Check3D1.BooleanValue = true;
    Infozeile.Alignment = vbLeftJustify;
    Übernehmen.Caption = QStringLiteral("hinzufügen >>");
    Rückgängig.Caption = QStringLiteral("löschen <<");
    Command1.Caption = QStringLiteral("alle >>");
    Command2.Caption = QStringLiteral("alle <<");
    Export.Caption = QStringLiteral("Exportieren...");
    Export.Enabled = false;
    Command3D1.Caption = QStringLiteral("Schliessen");
    nameControls(*this, "frmExport");
}

}  // namespace mk
