#pragma once
// The quiet notice: a small borderless form with one label, closed by its timer or a key.
// The caller sets the text, its colour and the timer's interval, and shows it modally.

#include "forms/controls.h"

namespace mk {

struct Message : Form {
    Label Label1;
    Label Label3;          // a running count
    ScrollBar picAusgabe;  // the progress bar of long runs: Max the whole, Value the part done
    Image Image1, Image2;  // hard disk or floppy disk
    Timer Timer1;
    Label Label2;          // the count of a copy of cards: "12 / 300"

    Message();
    template <class V>
    void eachControl(V&& v)
    {
        v("Label1", Label1);
        v("Label3", Label3);
        v("picAusgabe", picAusgabe);
        v("Image1", Image1);
        v("Image2", Image2);
        v("Timer1", Timer1);
        v("Label2", Label2);
    }
};

}  // namespace mk
