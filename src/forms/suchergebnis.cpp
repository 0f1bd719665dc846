#include "forms/suchergebnis.h"

namespace mk {

Suchergebnis::Suchergebnis()
{
    Caption = QStringLiteral("Suchergebniss");
    Width = 10800;  // room for four columns of the list side by side
    Height = 6000;
    KeyPreview = true;
    Command1.Caption = QStringLiteral("Abbrechen");
    Check1.Caption = QStringLiteral("Vorschau");
    ok.Caption = QStringLiteral("OK");
    ok.Enabled = false;
    Label2.Visible = false;
    SSCommand1.Visible = false;  // printing the list comes with the printing
    nameControls(*this, "Suchergebnis");
}

Procurar::Procurar()
{
    Caption = QStringLiteral("Suchergebniss");
    Width = 10800;  // room for four columns of the list side by side
    Height = 6000;
    KeyPreview = true;
    Command1.Caption = QStringLiteral("OK");
    Command1.Enabled = false;
    Command2.Caption = QStringLiteral("Abbrechen");
    SSCommand1.Visible = false;  // printing the list comes with the printing
    nameControls(*this, "Procurar");
}

}  // namespace mk
