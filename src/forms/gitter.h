#pragma once
// The grid search: the hits of a text anywhere inside a pair of fields, row by row.

#include "forms/controls.h"

namespace mk {

struct Gitter : Form {
    Grid grid1;       // eight columns under a fixed header row
    TextBox Text1;    // the search text
    Button Command1;  // "Suchen"
    Button Command2;  // "Schliessen              X"
    Button Command3;  // "Stop", visible while a search runs
    Label Label1;     // "STOP" while the user has stopped the search; never shown
    Label Label2;     // "Einträge gefunden"
    Label Label5;     // the pass counter
    Label Label8;     // the number of hits

    Gitter();
    template <class V>
    void eachControl(V&& v)
    {
        v("grid1", grid1);
        v("Text1", Text1);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label5", Label5);
        v("Label8", Label8);
    }
};

}  // namespace mk
