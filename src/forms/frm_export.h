#pragma once
// "Datenbank Export": chosen columns of the current cursor into a text file.

#include "forms/controls.h"

namespace mk {

struct frmExport : Form {
    ListBox Datenfelder;        // every column of the table
    ListBox DatenfelderExport;  // the chosen columns, in the order of the file
    CheckBox Check3D1;          // "Horizontal": one line per card
    Panel Infozeile;            // the status line
    Button Übernehmen;          // "hinzufügen >>"
    Button Rückgängig;          // "löschen <<"
    Button Command1;            // "alle >>"
    Button Command2;            // "alle <<"
    Button Export;              // "Exportieren..."
    Button Command3D1;          // "Schliessen"

    frmExport();
    template <class V>
    void eachControl(V&& v)
    {
        v("Datenfelder", Datenfelder);
        v("DatenfelderExport", DatenfelderExport);
        v("Check3D1", Check3D1);
        v("Infozeile", Infozeile);
        v("Übernehmen", Übernehmen);
        v("Rückgängig", Rückgängig);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Export", Export);
        v("Command3D1", Command3D1);
    }
};

}  // namespace mk
