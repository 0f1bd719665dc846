#pragma once
// "Conections": the ten connection slots of a card and a small browser to find cards.

#include "forms/controls.h"

namespace mk {

struct Aform : Form {
    ControlArray<TextBox> FeldA;            // 1 to 10: name of the connected card (A1 to A10)
    ControlArray<TextBox> feldB;            // 1 to 10: its running number (B1 to B10)
    ControlArray<TextBox> Suchtext;         // 0 to 9: card numbers of the slots
    ControlArray<OptionButton> SuchOption;  // 0 to 3: the field the browser tests
    TextBox Text1;                          // criterion of the browser
    Label Label5;                           // index of the slot in use
    Button Command6, Command7, Command8;

    Aform();
    template <class V>
    void eachControl(V&& v)
    {
        v("FeldA", FeldA);
        v("feldB", feldB);
        v("Suchtext", Suchtext);
        v("SuchOption", SuchOption);
        v("Text1", Text1);
        v("Label5", Label5);
        v("Command6", Command6);
        v("Command7", Command7);
        v("Command8", Command8);
    }
};

}  // namespace mk
