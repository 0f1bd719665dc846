#pragma once
// "Verlauf": the history, the cards seen since the list was last emptied.

#include "forms/controls.h"

namespace mk {

struct replay : Form {
    ListBox Schnelleauswahlliste;  // one line per card; ItemData: its Laufendenummer
    Button Command3D1;             // open lastuser.dat
    Button Command3D2;             // save the list to a file
    Button Command3D5;             // load a list file
    Button Command3d4;             // empty the list
    Button Command5;               // remove the selected line
    Button Command3D6;             // close
    Label Label1;                  // number of lines
    Label Label2;                  // number of the card last taken from the list
    Panel Panel3D1;                // status line
    MenuItem menudatei;            // the form's menu
    MenuItem menuloeschen;         // delete a list file

    replay();
    template <class V>
    void eachControl(V&& v)
    {
        v("Schnelleauswahlliste", Schnelleauswahlliste);
        v("Command3D1", Command3D1);
        v("Command3D2", Command3D2);
        v("Command3D5", Command3D5);
        v("Command3d4", Command3d4);
        v("Command5", Command5);
        v("Command3D6", Command3D6);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Panel3D1", Panel3D1);
        v("menudatei", menudatei);
        v("menuloeschen", menuloeschen);
    }
};

}  // namespace mk
