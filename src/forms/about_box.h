#pragma once
// The splash and information box. At start it shows the database file (Label7, coloured by
// the read-only state), the directory (Label10), the table (Label9), the progress bar Label5
// whose Width is the step counter, and the step's text in Label6.

#include "forms/controls.h"

namespace mk {

struct AboutBox : Form {
    Label Label1;  // the program's name
    Label Label2;
    Label Label3;
    Label Label4;
    Label Label5;  // progress bar: its width in twips is the step counter
    Label Label6;  // what the start is doing
    Label Label7;  // database file
    Label Label8;
    Label Label9;  // table name
    Label Label10; // working directory
    Image Image3;  // the user's start picture

    AboutBox();
    template <class V>
    void eachControl(V&& v)
    {
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label5", Label5);
        v("Label6", Label6);
        v("Label7", Label7);
        v("Label8", Label8);
        v("Label9", Label9);
        v("Label10", Label10);
        v("Image3", Image3);
    }
};

}  // namespace mk
