#pragma once
// The birthday list: cards whose Geburtstag matches a month, day or year.

#include "forms/controls.h"

namespace mk {

struct malasp : Form {
    ListBox Schnelleauswahlliste;
    ComboBox Combo1;    // month names
    TextBox Text1;      // month
    TextBox Text2;      // day
    TextBox Text3;      // year
    Button Command2, Command5, Command6, Command3D2;
    Button Command3D1, Command3D3, Command3d4;
    Button AZCHECK;
    Frame Frame3D2;
    Label Label3, Label4, Label9;

    malasp();
    template <class V>
    void eachControl(V&& v)
    {
        v("Schnelleauswahlliste", Schnelleauswahlliste);
        v("Combo1", Combo1);
        v("Text1", Text1);
        v("Text2", Text2);
        v("Text3", Text3);
        v("Command2", Command2);
        v("Command5", Command5);
        v("Command6", Command6);
        v("Command3D2", Command3D2);
        v("Command3D1", Command3D1);
        v("Command3D3", Command3D3);
        v("Command3d4", Command3d4);
        v("AZCHECK", AZCHECK);
        v("Frame3D2", Frame3D2);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label9", Label9);
    }
};

}  // namespace mk
