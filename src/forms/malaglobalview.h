#pragma once
// "Merkkartelle - Global Manager": the list of the databases the user works with.

#include "forms/controls.h"

namespace mk {

struct malaglobalview : Form {
    ListBox Schnelleauswahlliste;  // one line per row of GlobalView, ItemData its Numeroatual
    Button SSCommand1;  // "Todos": fill the list
    Button SSCommand2;  // "Öffnen": hand the chosen path back
    Button Command1;    // "Entfernen"
    Button Command3D1;  // close without a choice
    Label Label3;       // the current row's path
    Label Label1;       // hidden: the path handed back, empty when none
    Panel Panel3D1;     // status line

    malaglobalview();
    template <class V>
    void eachControl(V&& v)
    {
        v("Schnelleauswahlliste", Schnelleauswahlliste);
        v("SSCommand1", SSCommand1);
        v("SSCommand2", SSCommand2);
        v("Command1", Command1);
        v("Command3D1", Command3D1);
        v("Label3", Label3);
        v("Label1", Label1);
        v("Panel3D1", Panel3D1);
    }
};

}  // namespace mk
