#pragma once
// "Vorschau": the label sheet of the current card at full scale, drawn on the form itself.

#include "forms/controls.h"

namespace mk {

struct form4 : Form {
    Image Image1;  // the card's picture as a thumbnail while the form is small

    form4();
    template <class V>
    void eachControl(V&& v)
    {
        v("Image1", Image1);
    }
};

// The small control window of the serial-letter and birthday lists: print, preview, range.
struct malaview : Form {
    Button Command1, Command2, Command3, Command4, Command5, Command6;
    Label Label1, Label2, Label3, Label6, Label7;
    TextBox Text1;  // first list index
    TextBox Text2;  // number of entries
    Panel Panel3D1; // status

    malaview();
    template <class V>
    void eachControl(V&& v)
    {
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Command4", Command4);
        v("Command5", Command5);
        v("Command6", Command6);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Label6", Label6);
        v("Label7", Label7);
        v("Text1", Text1);
        v("Text2", Text2);
        v("Panel3D1", Panel3D1);
    }
};

}  // namespace mk
