#pragma once
// The dialer. The card store copies the dial data of every card shown into it, so that the
// dialer is ready when it opens: the number, the name, the running number and the card's
// seven numbers on the buttons Dialnumber(0..6).

#include "forms/controls.h"

namespace mk {

struct DIALER : Form {
    TextBox Text6;  // the number to dial
    TextBox Text1;  // the name of the person called
    TextBox Text2;  // the running number of the card
    ControlArray<Button> Dialnumber;  // 0 to 6: Telefon, Telefax, Celphone, TEL1 to TEL4

    DIALER();
    template <class V>
    void eachControl(V&& v)
    {
        v("Text6", Text6);
        v("Text1", Text1);
        v("Text2", Text2);
        v("Dialnumber", Dialnumber);
    }
};

}  // namespace mk
