#pragma once
// The serial-letter list: the cards of the current selection as a three-column list.

#include "forms/controls.h"

namespace mk {

struct mala : Form {
    ListBox Schnelleauswahlliste;
    ComboBox ComboTypenliste;  // 0 to 6: type marks 1 to 7
    Button AZCHECK;            // sort direction
    ControlArray<OptionButton> Option3D1;  // 0 to 28: the sort field
    Frame Frame3D2;
    Panel Panel3D1;
    CheckBox Check1;           // "Drucken in der Farbe der Liste"
    Button Command1, Command2, Command3, Command4, Command3D2;
    Button SSCommand1;   // plain print of the list
    Button Command3D1;   // close
    Button Command3D3;   // leave print mode
    Button Command3d4;   // enter print mode
    Label Label3, Label4, Label5, Label7, Label9, Label10, Label11, Label12, Label14, Label15;
    Label Label17, Label18, Label19, Label20, noat1;

    mala();
    template <class V>
    void eachControl(V&& v)
    {
        v("Schnelleauswahlliste", Schnelleauswahlliste);
        v("ComboTypenliste", ComboTypenliste);
        v("AZCHECK", AZCHECK);
        v("Option3D1", Option3D1);
        v("Frame3D2", Frame3D2);
        v("Panel3D1", Panel3D1);
        v("Check1", Check1);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Command4", Command4);
        v("Command3D2", Command3D2);
        v("SSCommand1", SSCommand1);
        v("Command3D1", Command3D1);
        v("Command3D3", Command3D3);
        v("Command3d4", Command3d4);
        v("Label18", Label18);
        v("Label19", Label19);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label5", Label5);
        v("Label7", Label7);
        v("Label9", Label9);
        v("Label10", Label10);
        v("Label11", Label11);
        v("Label12", Label12);
        v("Label14", Label14);
        v("Label15", Label15);
        v("Label17", Label17);
        v("Label20", Label20);
        v("noat1", noat1);
    }
};

}  // namespace mk
