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
    }
};

}  // namespace mk
