#include "forms/malasp.h"

namespace mk {

malasp::malasp()
{
    Width = 9000;
    Height = 6000;
    KeyPreview = true;
    Command2.Caption = QStringLiteral("Monat");
    Command5.Caption = QStringLiteral("Tag");
    Command6.Caption = QStringLiteral("Jahr");
    Command3D2.Caption = QStringLiteral("Drucken Abbrechen");
    AZCHECK.Ribbon = true;
    AZCHECK.Caption = QStringLiteral("Z - A");
    Command3D1.Caption = QStringLiteral("Schliessen");
    Command3D3.Caption = QStringLiteral("Druckmodus beenden");
    Command3d4.Caption = QStringLiteral("Etiketten");
    Command3D2.Visible = false;
    Label3.Caption = QStringLiteral("0");
    for (const char* monat : {"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September",
                              "Oktober", "Novenber", "Dezember"})
        Combo1.AddItem(QString::fromUtf8(monat));
    Label9.Visible = false;
    nameControls(*this, "malasp");
}

}  // namespace mk
