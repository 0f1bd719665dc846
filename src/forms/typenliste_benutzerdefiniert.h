#pragma once
// The choice of several types at once for the serial-letter list: seven boxes named like the
// type marks, and whether a card must bear any of them or all of them.

#include "forms/controls.h"

namespace mk {

struct TypenlisteBenutzerdefiniert : Form {
    ControlArray<CheckBox> Typenliste;             // 0 to 6, captions from Typenbenennung
    Frame Frame3D1;                                // "Typ"
    Frame Frame3D2;                                // holds the two options
    OptionButton BenutzertypenlisteOption1;        // "Einzelauflistung": any of the marks
    OptionButton BenutzerTypenlisteOption2;        // "Multiauflistung": all of the marks
    Label Label1;
    Label Label2;
    Button ok;

    TypenlisteBenutzerdefiniert();
    template <class V>
    void eachControl(V&& v)
    {
        v("Typenliste", Typenliste);
        v("Frame3D1", Frame3D1);
        v("Frame3D2", Frame3D2);
        v("BenutzertypenlisteOption1", BenutzertypenlisteOption1);
        v("BenutzerTypenlisteOption2", BenutzerTypenlisteOption2);
        v("Label1", Label1);
        v("Label2", Label2);
        v("ok", ok);
    }
};

}  // namespace mk
