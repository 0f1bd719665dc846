#pragma once
// The choice of the card order: one option per sort slot (the slots 18 and 19 do not exist
// here), the direction ribbon AZCHECK (pressed is descending) and the close button.

#include "forms/controls.h"

namespace mk {

struct Form3 : Form {
    ControlArray<OptionButton> Option3D1;
    Button AZCHECK;
    Button Command3D1;

    Form3();
    template <class V>
    void eachControl(V&& v)
    {
        v("Option3D1", Option3D1);
        v("AZCHECK", AZCHECK);
        v("Command3D1", Command3D1);
    }
};

// The caption of sort slot n on Form3; empty for a slot the form lacks.
QString sortSlotCaption(int slot);

}  // namespace mk
