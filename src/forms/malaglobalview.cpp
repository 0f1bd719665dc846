#include "forms/malaglobalview.h"

namespace mk {

malaglobalview::malaglobalview()
{
    Caption = QStringLiteral("Merkkartelle - Global Manager");
    Width = 7200;
    Height = 4800;
    KeyPreview = true;

    Schnelleauswahlliste.Left = 120;
    Schnelleauswahlliste.Top = 480;
    Schnelleauswahlliste.Width = 6840;
    Schnelleauswahlliste.Height = 2880;
    Schnelleauswahlliste.Hint = QStringLiteral("Datenbank aus der Liste auswählen");
    Label3.Left = 120;
    Label3.Top = 120;
    Label3.Width = 6840;
    SSCommand1.Caption = QStringLiteral("Todos");
    SSCommand2.Caption = QStringLiteral("Öffnen");
    Command1.Caption = QStringLiteral("Entfernen");
    Command3D1.Caption = QStringLiteral("Schliessen");
    for (Button* b : {&SSCommand1, &SSCommand2, &Command1, &Command3D1})
        b->Top = 3480;
    SSCommand1.Left = 120;
    SSCommand2.Left = 1440;
    Command1.Left = 2760;
    Command3D1.Left = 5760;
    Label1.Visible = false;
    Panel3D1.Top = 3960;
    Panel3D1.Width = 7200;
    Panel3D1.Alignment = vbLeftJustify;

    nameControls(*this, "malaglobalview");
}

}  // namespace mk
