#include "forms/gitter.h"

namespace mk {

Gitter::Gitter()
{
    Caption = QStringLiteral("Gittersuche");
    Width = 11400;
    Height = 6600;
    KeyPreview = true;
    grid1.setCols(8);
    grid1.setRows(2);
    grid1.FixedCols = 0;
    grid1.FixedRows = 1;
    grid1.Width = 11000;
    grid1.Height = 5000;
    Command1.Caption = QStringLiteral("Suchen");
    Command2.Caption = QStringLiteral("Schliessen              X");
    Command3.Caption = QStringLiteral("Stop");
    Command3.Visible = false;
    Label1.Visible = false;
    Label2.Caption = QStringLiteral("Einträge gefunden");
    Label5.Caption = QStringLiteral("0");
    Label8.Caption = QStringLiteral("0");
    nameControls(*this, "Gitter");
}

}  // namespace mk
