#pragma once
// The field search: a search text and one button per searchable field.

#include "forms/controls.h"

namespace mk {

struct Schnellsuchen : Form {
    TextBox Suchbegriff;
    Frame Frame3D1;
    Label Label1;
    ControlArray<Button> Command1;  // 1 to 29: the search fields
    Button abbruch;

    Schnellsuchen();
    template <class V>
    void eachControl(V&& v)
    {
        v("Suchbegriff", Suchbegriff);
        v("Frame3D1", Frame3D1);
        v("Label1", Label1);
        v("Command1", Command1);
        v("abbruch", abbruch);
    }
};

// The caption of search field button n (1 to 29).
QString searchFieldCaption(int field);

}  // namespace mk
