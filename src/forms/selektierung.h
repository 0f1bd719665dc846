#pragma once
// "Selektierung gleicher Felder": conditions on a field narrow the cards of the main mask.

#include "forms/controls.h"

namespace mk {

struct Selektierung : Form {
    ListBox Datenfelder;   // the selectable columns
    ListBox Operatoren;    // "LIKE", ">", "<", ">=", "<=", "BETWEEN", "NOT LIKE"
    TextBox Wert1;         // the value of the condition being made
    ListBox Abfragetexte;  // the conditions; the selected one is the single filter
    CheckBox Check1;       // multi mode: all lines act together
    Button Command1;       // "Deaktivieren"
    Button Löschen;
    Button ok;
    Button abbruch;
    Button Command2;       // adds the condition being made to the list
    Panel SSPanel1;        // "Info": the progress line
    Label Label1, Label2, Label3, Label4, Label5, Label6;

    Selektierung();
    template <class V>
    void eachControl(V&& v)
    {
        v("Datenfelder", Datenfelder);
        v("Operatoren", Operatoren);
        v("Wert1", Wert1);
        v("Abfragetexte", Abfragetexte);
        v("Check1", Check1);
        v("Command1", Command1);
        v("Löschen", Löschen);
        v("ok", ok);
        v("abbruch", abbruch);
        v("Command2", Command2);
        v("SSPanel1", SSPanel1);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label5", Label5);
        v("Label6", Label6);
    }
};

}  // namespace mk
