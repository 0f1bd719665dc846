#pragma once
// The modem configuration: port, line parameters and the command texts the dialer sends.
// The dialer reads these controls directly while it runs; dialer.cfg keeps them.

#include "forms/controls.h"

namespace mk {

struct Form10 : Form {
    TextBox Text1;   // baud rate
    TextBox Text2;   // parity
    TextBox Text3;   // data bits
    TextBox Text4;   // stop bits
    TextBox Text5;   // tone dial prefix
    TextBox Text6;   // pulse dial prefix
    TextBox Text7;   // reset
    TextBox Text8;   // disconnect
    TextBox Text9;   // closing text of a command line
    TextBox Text10;  // free command, "Commando:"
    TextBox Text11;  // speaker on
    TextBox Text12;  // speaker off
    TextBox Text13;  // speaker low
    TextBox Text14;  // speaker mid
    TextBox Text15;  // speaker high
    TextBox Text16;  // ring detect
    TextBox Text17;  // wait for silence
    TextBox Text18;  // hook flash
    TextBox Text19;  // wait 0.125 sec.
    TextBox Text20;  // wait 5 sec.
    TextBox Text21;  // opening text of every command line
    OptionButton Option3D1, Option3D2, Option3D3, Option3D4, Option3d5;  // COM1 to COM5
    CheckBox Check3D1;  // "Tone"
    CheckBox Check3D2;  // "Pulse"
    CheckBox Check3D4;  // "Modemstatus"
    CheckBox Check3D5;  // "Aufvordern zum schliessen"
    OptionButton Option1, Option2, OPtion3;  // speaker low, mid, high
    Button Command1;  // "Execute": the free command
    Button Command2;  // "Execute": the reset command
    Button Command3;  // "Defauft config"
    Button Command7;  // "Schliessen"
    // The captions of the boxes.
    Label Label1, Label2, Label3, Label4, Label5, Label6, Label7, Label8, Label9, Label10;
    Label Label11, Label12, Label13, Label14, Label15, Label16, Label17, Label18, Label19;
    Label Label20, Label21;

    Form10();
    // The port whose option is on, 1 to 5; 0 when none is.
    int port() const;
    template <class V>
    void eachControl(V&& v)
    {
        v("Text1", Text1);
        v("Text2", Text2);
        v("Text3", Text3);
        v("Text4", Text4);
        v("Text5", Text5);
        v("Text6", Text6);
        v("Text7", Text7);
        v("Text8", Text8);
        v("Text9", Text9);
        v("Text10", Text10);
        v("Text11", Text11);
        v("Text12", Text12);
        v("Text13", Text13);
        v("Text14", Text14);
        v("Text15", Text15);
        v("Text16", Text16);
        v("Text17", Text17);
        v("Text18", Text18);
        v("Text19", Text19);
        v("Text20", Text20);
        v("Text21", Text21);
        v("Option3D1", Option3D1);
        v("Option3D2", Option3D2);
        v("Option3D3", Option3D3);
        v("Option3D4", Option3D4);
        v("Option3d5", Option3d5);
        v("Check3D1", Check3D1);
        v("Check3D2", Check3D2);
        v("Check3D4", Check3D4);
        v("Check3D5", Check3D5);
        v("Option1", Option1);
        v("Option2", Option2);
        v("OPtion3", OPtion3);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Command7", Command7);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label5", Label5);
        v("Label6", Label6);
        v("Label7", Label7);
        v("Label8", Label8);
        v("Label9", Label9);
        v("Label10", Label10);
        v("Label11", Label11);
        v("Label12", Label12);
        v("Label13", Label13);
        v("Label14", Label14);
        v("Label15", Label15);
        v("Label16", Label16);
        v("Label17", Label17);
        v("Label18", Label18);
        v("Label19", Label19);
        v("Label20", Label20);
        v("Label21", Label21);
    }
};

// The small form that shows the modem's answers, "Respostas do modem".
struct Form1 : Form {
    Panel Label1;  // the answers, coloured by the last status
    Timer Timer1;

    Form1();
    template <class V>
    void eachControl(V&& v)
    {
        v("Label1", Label1);
        v("Timer1", Timer1);
    }
};

}  // namespace mk
