#include "forms/form10.h"

namespace mk {

Form10::Form10()
{
    Caption = QStringLiteral("Modem konfigurieren");
    Width = 7800;
    Height = 6600;

    // Design values; the boxes the old form left empty get the usual Hayes texts, so that a
    // first call works before the user has configured anything.
    Text1.Text = QStringLiteral("9600");
    Text2.Text = QStringLiteral("N");
    Text3.Text = QStringLiteral("8");
    Text4.Text = QStringLiteral("1");
    Text5.Text = QStringLiteral("DT");
    Text6.Text = QStringLiteral("DP");
    Text7.Text = QStringLiteral("ATZ");
    Text8.Text = QStringLiteral("H0");
    Text10.Text = QStringLiteral("AT&V");
    Text11.Text = QStringLiteral("M1");
    Text12.Text = QStringLiteral("M0");
    Text13.Text = QStringLiteral("L1");
    Text14.Text = QStringLiteral("L2");
    Text15.Text = QStringLiteral("L3");
    Text16.Text = QStringLiteral("ATS0=0");
    Text17.Text = QStringLiteral("@");
    Text18.Text = QStringLiteral("!");
    Text19.Text = QStringLiteral("/");
    Text20.Text = QStringLiteral(",");
    Text21.Text = QStringLiteral("AT");

    const char* ports[] = {"COM1", "COM2", "COM3", "COM4", "COM5"};
    OptionButton* options[] = {&Option3D1, &Option3D2, &Option3D3, &Option3D4, &Option3d5};
    for (int i = 0; i < 5; ++i) {
        options[i]->Caption = QString::fromLatin1(ports[i]);
        options[i]->Group = QStringLiteral("port");
    }
    Option3D1.Value = true;
    Check3D1.Caption = QStringLiteral("Tone");
    Check3D1.Value = 1;
    Check3D2.Caption = QStringLiteral("Pulse");
    Check3D4.Caption = QStringLiteral("Modemstatus");
    Check3D5.Caption = QStringLiteral("Aufvordern zum schliessen");
    Option1.Caption = QStringLiteral("Leise");
    Option2.Caption = QStringLiteral("Mittel");
    OPtion3.Caption = QStringLiteral("Laut");
    for (OptionButton* o : {&Option1, &Option2, &OPtion3})
        o->Group = QStringLiteral("speaker");
    Command1.Caption = QStringLiteral("Execute");
    Command2.Caption = QStringLiteral("Execute");
    Command3.Caption = QStringLiteral("Defauft config");
    Command7.Caption = QStringLiteral("Schliessen");

    const char* captions[] = {"Baudrate:", "Parität:", "Datenbits:", "Stopbits:", "Tonwahl:", "Pulswahl:",
                              "Reset:", "Trennen:", "Zeilenende:", "Commando:", "Lautsprecher an:",
                              "Lautsprecher aus:", "Leise:", "Mittel:", "Laut:", "Anruferkennung:",
                              "Warten auf Stille:", "Hook flash:", "Warten 0.125 sec.:", "Warten 5 sec.:",
                              "Zeilenanfang:"};
    Label* labels[] = {&Label1,  &Label2,  &Label3,  &Label4,  &Label5,  &Label6,  &Label7,
                       &Label8,  &Label9,  &Label10, &Label11, &Label12, &Label13, &Label14,
                       &Label15, &Label16, &Label17, &Label18, &Label19, &Label20, &Label21};
    for (int i = 0; i < 21; ++i)
        labels[i]->Caption = QString::fromUtf8(captions[i]);

    nameControls(*this, "Form10");
}

int Form10::port() const
{
    const OptionButton* options[] = {&Option3D1, &Option3D2, &Option3D3, &Option3D4, &Option3d5};
    for (int i = 0; i < 5; ++i)
        if (options[i]->Value)
            return i + 1;
    return 0;
}

Form1::Form1()
{
    Caption = QStringLiteral("Respostas do modem");
    Width = 4200;
    Height = 1800;
    Label1.Alignment = vbLeftJustify;
    Label1.BackColor = colour::White;
    nameControls(*this, "Form1");
}

}  // namespace mk
