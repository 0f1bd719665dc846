#pragma once
// "Suchen nach Silben": a piece of text anywhere inside one chosen field.

#include "forms/controls.h"

namespace mk {

struct search : Form {
    TextBox Text1;   // the selected hit
    TextBox Text2;   // the searched text
    ControlArray<OptionButton> Option3D1;  // the field to search
    ListBox List1;   // the hits
    Button Command3, Command5, Command6;  // "Abbrechen", "Schliessen", "Suchen"
    Label Label1, Label2, Label3, Label4, Label7, Label32;

    search();
    template <class V>
    void eachControl(V&& v)
    {
        v("Text1", Text1);
        v("Text2", Text2);
        v("Option3D1", Option3D1);
        v("List1", List1);
        v("Command3", Command3);
        v("Command5", Command5);
        v("Command6", Command6);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label7", Label7);
        v("Label32", Label32);
    }
};

}  // namespace mk
