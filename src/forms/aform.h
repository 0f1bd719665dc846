#pragma once
// "Conections": the ten connection slots of a card and a small browser of its own to find
// the card for a slot.

#include "forms/controls.h"

namespace mk {

struct Aform : Form {
    // The fields the browser shows, one Infolabel each, and the options that choose the
    // column its criterion tests.
    static constexpr int kInfofelder = 15;
    static constexpr int kSuchfelder = 15;

    ControlArray<TextBox> FeldA;            // 1 to 10: name of the connected card (A1 to A10)
    ControlArray<TextBox> feldB;            // 1 to 10: its running number (B1 to B10)
    ControlArray<TextBox> Suchtext;         // 0 to 9: a card number typed for slot i + 1
    ControlArray<OptionButton> SuchOption;  // the column the browser tests, 0 to kSuchfelder - 1
    ControlArray<Label> Infolabel;          // the browsed card, 0 to kInfofelder - 1
    ControlArray<Label> Infotitel;          // the names of the Infolabel fields
    Image Image1;                           // the browsed card's picture
    TextBox Text1;                          // criterion of the browser
    Label Label5;                           // index of the slot in use
    Label Label6;                           // hidden: the column the browser is sorted by
    Button Command2, Command3, Command4, Command5;     // find first, next, previous, last
    Button Command9, Command10, Command11, Command12;  // move first, previous, next, last
    Button Command6;  // the main mask to the card of the slot in use
    Button Command7;  // "grösser...": the browser shown or hidden
    Button Command8;  // the main mask to the browsed card
    Frame Frame1;     // the browser

    Aform();
    template <class V>
    void eachControl(V&& v)
    {
        v("FeldA", FeldA);
        v("feldB", feldB);
        v("Suchtext", Suchtext);
        v("SuchOption", SuchOption);
        v("Infolabel", Infolabel);
        v("Infotitel", Infotitel);
        v("Image1", Image1);
        v("Text1", Text1);
        v("Label5", Label5);
        v("Label6", Label6);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Command4", Command4);
        v("Command5", Command5);
        v("Command9", Command9);
        v("Command10", Command10);
        v("Command11", Command11);
        v("Command12", Command12);
        v("Command6", Command6);
        v("Command7", Command7);
        v("Command8", Command8);
        v("Frame1", Frame1);
    }
};

}  // namespace mk
