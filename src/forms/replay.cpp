#include "forms/replay.h"

namespace mk {

replay::replay()
{
    Caption = QStringLiteral("Verlauf");
    Width = 5400;
    Height = 5400;
    Command3D1.Hint = QStringLiteral("Letzten Verlauf öffnen");
    Command3D2.Hint = QStringLiteral("Daten speichern");
    Command3D5.Hint = QStringLiteral("Verlaufsdatei öffnen");
    Command3d4.Hint = QStringLiteral("Alle Einträge aus der Liste löschen");
    Command5.Hint = QStringLiteral("Ausgewählten Eintrag aus der Liste löschen");
    Command3D6.Hint = QStringLiteral("Verlauf schliessen");
    nameControls(*this, "replay");
}

}  // namespace mk
