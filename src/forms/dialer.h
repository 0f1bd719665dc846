#pragma once
// The dialer. The card store copies the dial data of every card shown into it, so that the
// dialer is ready when it opens: the number, the name, the running number and the card's
// seven numbers on the buttons Dialnumber(0..6).
//
// The picture on Abrir is the dialer's state: Image1 idle, Image2 connected or waiting,
// Image4 dialling. Label1 shows the state in words and colours; Label7 is the stop word of
// the wait loops ("WEITER", "STOP").

#include "forms/controls.h"
#include "platform/serial_port.h"

namespace mk {

struct DIALER : Form {
    TextBox Text6;  // the number to dial
    TextBox Text1;  // the name of the person called
    TextBox Text2;  // the running number of the card
    ControlArray<Button> Dialnumber;  // 0 to 6: Telefon, Telefax, Celphone, TEL1 to TEL4
    ControlArray<Button> number;      // the keypad: 0 to 9, then "*" and "#"
    Button Abrir;       // dial, and hang up
    Button Command3D2;  // "Modem konfigurieren"
    Button Command3D3;  // "Dialer schliessen"
    Button Command3D8;  // "Anrufe annehmen"
    Button Command3D9;  // "Modem RESET"
    Button Command1;    // hidden: begins a call record
    Button Command2;    // hidden: finishes it
    Button SSCommand1;  // removes the last character of Text6
    Button SSCommand2;  // copies Text6 to the clipboard
    Button SSCommand3;  // empties the number, the name and the times
    Button SSCommand4;  // pastes the clipboard into Text6
    Panel Label1;       // the status line
    Label Label2;       // the clock
    Label Label3;       // passes of the wait loop
    Label Label4;       // time of day the connection began
    Label Label5;       // length of the last call in seconds
    Label Label7;       // hidden: "WEITER" or "STOP"
    Label loopoff;      // "TERMINAR", "DETECTION MODE", "DETECTION OFF"
    Panel SSPanel1;     // the kind of the number under the mouse
    Panel Panel3D1;     // the panels the form is dragged by
    Panel Panel3d5;
    Image Image1;       // hidden pictures of Abrir: idle,
    Image Image2;       // connected or waiting,
    Image Image4;       // dialling
    Timer Timer1;       // the clock

    // The serial control and the module variables of the form.
    MSComm Comm1;
    bool Beenden = false;      // asks the running wait loop to end
    QString Antwort;           // the modem's replies gathered by the running loop
    double Startzeit = 0;      // Timer at the start of the call
    double Endzeit = 0;        // Timer at the end of the last loop
    int Schleifen = 0;         // wait loops running (a click inside one may start no other)
    bool VomAbrir = false;     // the running wait was ended by a click on Abrir
    bool Ziehen = false;       // the form is being dragged
    double ZiehenX = 0;
    double ZiehenY = 0;

    DIALER();
    template <class V>
    void eachControl(V&& v)
    {
        v("Text6", Text6);
        v("Text1", Text1);
        v("Text2", Text2);
        v("Dialnumber", Dialnumber);
        v("number", number);
        v("Abrir", Abrir);
        v("Command3D2", Command3D2);
        v("Command3D3", Command3D3);
        v("Command3D8", Command3D8);
        v("Command3D9", Command3D9);
        v("Command1", Command1);
        v("Command2", Command2);
        v("SSCommand1", SSCommand1);
        v("SSCommand2", SSCommand2);
        v("SSCommand3", SSCommand3);
        v("SSCommand4", SSCommand4);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label5", Label5);
        v("Label7", Label7);
        v("loopoff", loopoff);
        v("SSPanel1", SSPanel1);
        v("Panel3D1", Panel3D1);
        v("Panel3d5", Panel3d5);
        v("Image1", Image1);
        v("Image2", Image2);
        v("Image4", Image4);
        v("Timer1", Timer1);
    }
};

}  // namespace mk
