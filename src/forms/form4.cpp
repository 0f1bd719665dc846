#include "forms/form4.h"

namespace mk {

form4::form4()
{
    Caption = QStringLiteral("Vorschau");
    KeyPreview = true;
    BackColor = colour::White;
    Image1.Visible = false;
    nameControls(*this, "form4");
}

malaview::malaview()
{
    Caption = QStringLiteral("Druck");
    Width = 5200;
    Height = 2400;
    KeyPreview = true;
    Command1.Caption = QStringLiteral("Vorschau");
    Command2.Caption = QStringLiteral("Abbrechen");
    Command2.Enabled = false;
    Command3.Caption = QStringLiteral("Schliessen");
    Command4.Caption = QStringLiteral("Drucken");
    Command5.Caption = QStringLiteral("Alle");
    Command5.Enabled = false;
    Command6.Caption = QStringLiteral("Teile");
    Text1.Text = QStringLiteral("0");
    Label3.Visible = false;
    Label7.Visible = false;
    nameControls(*this, "malaview");
}

}  // namespace mk
