#pragma once
// The quiet notice: a small borderless form with one label, closed by its timer or a key.
// The caller sets the text, its colour and the timer's interval, and shows it modally.

#include "forms/controls.h"

namespace mk {

struct Message : Form {
    Label Label1;
    Timer Timer1;

    Message();
    template <class V>
    void eachControl(V&& v)
    {
        v("Label1", Label1);
        v("Timer1", Timer1);
    }
};

}  // namespace mk
