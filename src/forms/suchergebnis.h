#pragma once
// The two result lists of the searches: Suchergebnis (prefix search) and Procurar (the
// search over all fields).

#include "forms/controls.h"

namespace mk {

struct Suchergebnis : Form {
    ListBox Suchergebnisliste;
    Button Command1;   // "Abbrechen"
    Button ok;
    CheckBox Check1;   // "Vorschau"
    Button SSCommand1; // print
    Label Label1;      // column heading
    Label Label2;      // marker "CHANGED"
    Label Label6;      // hit count
    Label Label7;

    Suchergebnis();
    template <class V>
    void eachControl(V&& v)
    {
        v("Suchergebnisliste", Suchergebnisliste);
        v("Command1", Command1);
        v("ok", ok);
        v("Check1", Check1);
        v("SSCommand1", SSCommand1);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label6", Label6);
        v("Label7", Label7);
    }
};

struct Procurar : Form {
    ListBox Suchergebnisliste;
    Button Command1, Command2;  // "Abbrechen"
    Button SSCommand1;          // print
    Label Label1, Label2, Label3, Label4, Label6;

    Procurar();
    template <class V>
    void eachControl(V&& v)
    {
        v("Suchergebnisliste", Suchergebnisliste);
        v("Command1", Command1);
        v("Command2", Command2);
        v("SSCommand1", SSCommand1);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label6", Label6);
    }
};

}  // namespace mk
