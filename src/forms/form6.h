#pragma once
// Card and note printing: margins, picture factors, font and colour of the printed card.

#include "forms/controls.h"

namespace mk {

struct Form6 : Form {
    TextBox Text2;        // "Oberer Rand:" (HScroll2 / 10)
    TextBox Text3;        // "Linker Rand:" (HScroll3 / 10)
    ScrollBar HScroll1, HScroll2, HScroll3, HScroll4;
    CheckBox impinf;      // "Bemerkung": include the note (reads True or False)
    CheckBox Impsoc;      // "Conected": include the connections
    Label Label3;         // second picture factor
    Label Label4;         // first picture factor
    Label Label6;         // the wanted Laufendenummer
    Button Command1, Command2, Command3, Command4, Command5, Command6, Command7, Command8;

    Form6();
    template <class V>
    void eachControl(V&& v)
    {
        v("Text2", Text2);
        v("Text3", Text3);
        v("HScroll1", HScroll1);
        v("HScroll2", HScroll2);
        v("HScroll3", HScroll3);
        v("HScroll4", HScroll4);
        v("impinf", impinf);
        v("Impsoc", Impsoc);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label6", Label6);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Command4", Command4);
        v("Command5", Command5);
        v("Command6", Command6);
        v("Command7", Command7);
        v("Command8", Command8);
    }
};

}  // namespace mk
