#include "forms/typenliste_benutzerdefiniert.h"

#include "forms/hauptmaske.h"

namespace mk {

TypenlisteBenutzerdefiniert::TypenlisteBenutzerdefiniert()
{
    Caption = QStringLiteral("Persönliche Definition");
    Width = 4500;
    Height = 4200;
    KeyPreview = true;

    Frame3D1.Caption = QStringLiteral("Typ");
    Frame3D1.Left = 120;
    Frame3D1.Top = 120;
    Frame3D1.Width = 1935;
    Frame3D1.Height = 2535;
    Typenliste = ControlArray<CheckBox>(0, 6, [](CheckBox& c, int i) {
        c.Caption = designTypeName(i + 1);
        c.Left = 240;
        c.Top = 360 + i * 300;
        c.Width = 1695;
        c.Height = 255;
    });

    Frame3D2.Left = 2175;
    Frame3D2.Top = 120;
    Frame3D2.Width = 2175;
    Frame3D2.Height = 2535;
    BenutzertypenlisteOption1.Caption = QStringLiteral("Einzelauflistung");
    BenutzertypenlisteOption1.Value = true;  // any of the checked marks, unless told otherwise
    BenutzertypenlisteOption1.Group = QStringLiteral("Auflistung");
    BenutzertypenlisteOption1.Left = 2295;
    BenutzertypenlisteOption1.Top = 360;
    BenutzertypenlisteOption1.Width = 1935;
    BenutzerTypenlisteOption2.Caption = QStringLiteral("Multiauflistung");
    BenutzerTypenlisteOption2.Group = QStringLiteral("Auflistung");
    BenutzerTypenlisteOption2.Left = 2295;
    BenutzerTypenlisteOption2.Top = 1440;
    BenutzerTypenlisteOption2.Width = 1935;

    Label1.Caption = QStringLiteral("Zeigt Einträge die eine der gewählen Markierung enthält");
    Label1.Left = 2295;
    Label1.Top = 720;
    Label1.Width = 1935;
    Label1.Height = 615;
    Label2.Caption = QStringLiteral("Zeigt nur die Eintrage mit der gewählten Markierung");
    Label2.Left = 2295;
    Label2.Top = 1800;
    Label2.Width = 1935;
    Label2.Height = 615;

    ok.Caption = QStringLiteral("OK");
    ok.Left = 1560;
    ok.Top = 2880;
    ok.Width = 1215;

    nameControls(*this, "TypenlisteBenutzerdefiniert");
}

}  // namespace mk
