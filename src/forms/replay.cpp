#include "forms/replay.h"

namespace mk {

replay::replay()
{
    Caption = QStringLiteral("Verlauf");
    Width = 6600;
    Height = 5400;
    Schnelleauswahlliste.Left = 120;
    Schnelleauswahlliste.Top = 600;
    Schnelleauswahlliste.Width = 6240;
    Schnelleauswahlliste.Height = 3600;
    Command3D1.Caption = QStringLiteral("Letzter");
    Command3D1.Hint = QStringLiteral("Letzten Verlauf öffnen");
    Command3D2.Caption = QStringLiteral("Speichern");
    Command3D2.Hint = QStringLiteral("Daten speichern");
    Command3D5.Caption = QStringLiteral("Laden");
    Command3D5.Hint = QStringLiteral("Verlaufsdatei öffnen");
    Command3d4.Caption = QStringLiteral("Alle löschen");
    Command3d4.Hint = QStringLiteral("Alle Einträge aus der Liste löschen");
    Command5.Caption = QStringLiteral("Eintrag löschen");
    Command5.Hint = QStringLiteral("Ausgewählten Eintrag aus der Liste löschen");
    Command5.Enabled = false;  // until a line is selected
    Command3D6.Caption = QStringLiteral("Schliessen");
    Command3D6.Hint = QStringLiteral("Verlauf schliessen");
    Label1.Caption = QStringLiteral("0");
    Panel3D1.Alignment = vbLeftJustify;
    menudatei.Caption = QStringLiteral("&Datei");
    menuloeschen.Caption = QStringLiteral("Verlaufsliste löschen...");
    menuloeschen.Parent = QStringLiteral("menudatei");
    nameControls(*this, "replay");
}

}  // namespace mk
