#pragma once
// The quick entry form: seven boxes for the data typed most often, shown when a new card or
// a change starts. "OK" copies the boxes into their slots of the mask, "Abrechen" leaves the
// slots; the mask stays in its edit state either way and is saved by its own button.

#include "forms/controls.h"

namespace mk {

struct Form2 : Form {
    // 0 Vorname, 1 Nachname, 2 Strasse, 3 PLZ, 4 Stadt, 5 Telefon, 6 E-Mail 1: the slots
    // feld(5), feld(4), feld(6), feld(9), feld(10), feld(14) and feldnum(0) of the mask.
    ControlArray<TextBox> Text1;
    // The names of the seven boxes, taken from the mask's labels when the form comes up.
    ControlArray<Label> beschreibung;
    Button SSCommand1;  // "OK"
    Button SSCommand2;  // "Abrechen"

    Form2();
    template <class V>
    void eachControl(V&& v)
    {
        v("Text1", Text1);
        v("beschreibung", beschreibung);
        v("SSCommand1", SSCommand1);
        v("SSCommand2", SSCommand2);
    }
};

}  // namespace mk
