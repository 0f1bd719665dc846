#include "forms/form5.h"

namespace mk {

Form5::Form5()
{
    Caption = QStringLiteral("Sicherheitskopie");
    Width = 6600;
    Height = 3600;
    Label5.Caption = QStringLiteral("Programm beenden ?");
    Label5.Font.Size = 14;
    Label5.Font.Bold = true;
    Label5.Alignment = vbCenter;
    Label3.Caption = QStringLiteral("Aktuelle Datenbank:");
    Label6.Caption = QStringLiteral("Laufwerk:");
    Label7.Caption = QStringLiteral("Zielverzeichnis:");
    Drive1.Style = 2;
    Command3D1.Caption = QStringLiteral("Kopieren + Beenden");
    Command3D3.Caption = QStringLiteral("Abbrechen");
    Command3D3.Hint = QStringLiteral("Fenster schliessen");
    Command3D3.ToolTipText = Command3D3.Hint;
    nameControls(*this, "Form5");
}

}  // namespace mk
