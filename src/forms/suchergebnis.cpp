#include "forms/suchergebnis.h"

namespace mk {

Suchergebnis::Suchergebnis()
{
    Caption = QStringLiteral("Suchergebniss");
    Width = 7200;
    Height = 4800;
    KeyPreview = true;
    Command1.Caption = QStringLiteral("Abbrechen");
    Check1.Caption = QStringLiteral("Vorschau");
    Label2.Visible = false;
    nameControls(*this, "Suchergebnis");
}

Procurar::Procurar()
{
    Caption = QStringLiteral("Suchergebniss");
    Width = 7200;
    Height = 4800;
    KeyPreview = true;
    Command1.Caption = QStringLiteral("Abbrechen");
    Command2.Caption = QStringLiteral("Abbrechen");
    nameControls(*this, "Procurar");
}

}  // namespace mk
