#pragma once
// "Datenbank Export": chosen columns of the current cursor into a text file.

#include "forms/controls.h"

namespace mk {

struct frmExport : Form {
    ListBox Datenfelder;
    ListBox DatenfelderExport;
    CheckBox Check3D1;  // "Horizontal": one line per card
    Panel Infozeile;

    frmExport();
    template <class V>
    void eachControl(V&& v)
    {
        v("Datenfelder", Datenfelder);
        v("DatenfelderExport", DatenfelderExport);
        v("Check3D1", Check3D1);
        v("Infozeile", Infozeile);
    }
};

}  // namespace mk
