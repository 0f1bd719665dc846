#pragma once
// The pick list of one mask field: known texts to choose instead of typing.

#include "forms/controls.h"

namespace mk {

struct Cidadefrm : Form {
    ListBox List1;   // the visible texts
    ListBox List3;   // the hidden parallel list
    TextBox Text1;   // "Feldtext hinzufügen:"
    Label Label1;
    Label Label2;    // name of the list file
    Label Label3;    // column of the field
    Button Command1; // "Hinzufügen", then "OK"
    Button Command2; // "Abbrechen"
    Button Command3; // "Löschen"
    Button Command4; // "Laden"
    Button Command5; // "Auswählen"

    Cidadefrm();
    template <class V>
    void eachControl(V&& v)
    {
        v("List1", List1);
        v("List3", List3);
        v("Text1", Text1);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Command4", Command4);
        v("Command5", Command5);
    }
};

}  // namespace mk
