#pragma once
// The call log: the list malatelephone of the calls by name and number, and Formtel with one
// call in full.

#include "forms/controls.h"

namespace mk {

struct malatelephone : Form {
    ListBox Schnelleauswahlliste;  // one line per call, ItemData its Numeroatual
    Label Label3;                  // the count of calls
    Label Label4;                  // the Numeroatual of the entry clicked last
    Button Command1;               // "Anzeigen": the chosen call on Formtel
    Button Command2;               // "Schliessen"
    Panel Panel3D1;                // status line

    malatelephone();
    template <class V>
    void eachControl(V&& v)
    {
        v("Schnelleauswahlliste", Schnelleauswahlliste);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Panel3D1", Panel3D1);
    }
};

struct Formtel : Form {
    TextBox Text1;  // Numeroatual
    TextBox Text2;  // PhoneNumber
    TextBox Text3;  // Datainicial
    TextBox Text4;  // Datafinal
    TextBox Text5;  // Horainicial
    TextBox Text6;  // Horafinal
    TextBox Text7;  // Name
    Label Label1, Label2, Label3, Label4, Label5, Label6, Label7;  // their captions
    Button Command1;  // next call
    Button Command2;  // previous call
    Button Command3;  // "Schliessen"
    Button Command4;  // "Liste": the list of calls
    Button Command5;  // delete the call

    Formtel();
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
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label5", Label5);
        v("Label6", Label6);
        v("Label7", Label7);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Command4", Command4);
        v("Command5", Command5);
    }
};

}  // namespace mk
