#pragma once
// The history: the cards seen since the list was last emptied.

#include "forms/controls.h"

namespace mk {

struct replay : Form {
    ListBox Schnelleauswahlliste;  // ItemData: the card's Laufendenummer
    Button Command3D1, Command3D2, Command3D5, Command3d4, Command5, Command3D6;
    Label Label1, Label2;
    Panel Panel3D1;  // status line

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
    }
};

}  // namespace mk
