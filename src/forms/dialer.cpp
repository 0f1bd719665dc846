#include "forms/dialer.h"

namespace mk {

DIALER::DIALER()
{
    Caption = QStringLiteral("Dialer");
    Width = 6600;
    Height = 5400;
    KeyPreview = true;

    Text6.Width = 3600;
    Text1.Width = 3600;
    Text2.Width = 1200;
    Text2.Locked = true;
    Dialnumber = ControlArray<Button>(0, 6, [](Button& b, int) { b.Width = 2400; });
    const QString symbole = QStringLiteral("0123456789*#");
    number = ControlArray<Button>(0, 11, [&symbole](Button& b, int i) {
        b.Caption = symbole.mid(i, 1);
        b.Width = 480;
    });

    // The pictures of Abrir are bundled icons; Abrir starts idle.
    Image1.Picture = QStringLiteral("hook_on");
    Image2.Picture = QStringLiteral("hook_off");
    Image4.Picture = QStringLiteral("dialling");
    for (Image* i : {&Image1, &Image2, &Image4})
        i->Visible = false;
    Abrir.Picture = Image1.Picture;
    Abrir.ToolTipText = QStringLiteral("Wählen / Auflegen");

    Command3D2.Caption = QStringLiteral("Modem konfigurieren");
    Command3D3.Caption = QStringLiteral("Dialer schliessen");
    Command3D8.Caption = QStringLiteral("Anrufe annehmen");
    Command3D9.Caption = QStringLiteral("Modem RESET");
    Command3D9.Picture = QStringLiteral("reset1");
    Command1.Visible = false;
    Command2.Visible = false;
    SSCommand1.Caption = QStringLiteral("←");
    SSCommand1.ToolTipText = QStringLiteral("Letzte Ziffer löschen");
    SSCommand2.Caption = QStringLiteral("Kopieren");
    SSCommand3.Caption = QStringLiteral("C");
    SSCommand3.ToolTipText = QStringLiteral("Nummer löschen");
    SSCommand4.Caption = QStringLiteral("Einfügen");

    Label1.Caption = QStringLiteral("OFF LINE");
    Label1.BackColor = rgb(0, 255, 0);
    Label1.ForeColor = rgb(0, 0, 0);
    Label4.Caption = QStringLiteral("00:00:00");
    Label5.Caption = QStringLiteral("00:00:00");
    Label7.Caption = QStringLiteral("STOP");
    Label7.Visible = false;
    SSPanel1.Alignment = vbLeftJustify;
    Timer1.Interval = 1000;

    nameControls(*this, "DIALER");
}

}  // namespace mk
