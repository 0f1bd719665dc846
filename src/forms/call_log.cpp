#include "forms/call_log.h"

namespace mk {

malatelephone::malatelephone()
{
    Caption = QStringLiteral("Telefonliste");
    Width = 7200;
    Height = 4800;
    KeyPreview = true;
    Schnelleauswahlliste.Hint = QStringLiteral("Anruf aus der Liste auswählen");
    Label4.Visible = false;
    Command1.Caption = QStringLiteral("Anzeigen");
    Command2.Caption = QStringLiteral("Schliessen");
    Panel3D1.Alignment = vbLeftJustify;
    nameControls(*this, "malatelephone");
}

Formtel::Formtel()
{
    Caption = QStringLiteral("Anruf");
    Width = 6000;
    Height = 4200;
    const char* captions[] = {"Nummer:", "Telefon:", "Datum Anfang:", "Datum Ende:", "Uhrzeit Anfang:",
                              "Uhrzeit Ende:", "Name:"};
    Label* labels[] = {&Label1, &Label2, &Label3, &Label4, &Label5, &Label6, &Label7};
    for (int i = 0; i < 7; ++i)
        labels[i]->Caption = QString::fromUtf8(captions[i]);
    Text1.Locked = true;
    Command1.Caption = QStringLiteral(">");
    Command1.ToolTipText = QStringLiteral("Nächster Anruf");
    Command2.Caption = QStringLiteral("<");
    Command2.ToolTipText = QStringLiteral("Voriger Anruf");
    Command3.Caption = QStringLiteral("Schliessen");
    Command4.Caption = QStringLiteral("Liste");
    Command5.Caption = QStringLiteral("Löschen");
    nameControls(*this, "Formtel");
}

}  // namespace mk
