#pragma once
// "Senha": the password of a database directory, asked at start and when another database
// is opened, and set, changed or deleted from the menu. Its own on-screen keyboard lets the
// word be typed with the mouse.

#include "forms/controls.h"

namespace mk {

struct senha : Form {
    // The keys of the on-screen keyboard: the letters first, then the digits and the signs.
    static constexpr int kBuchstaben = 26;
    static constexpr int kTasten = 40;

    TextBox Text2;                // the entry box; "*" stands for each character
    Label Label1;                 // hidden: the stored word
    Label Label3;                 // hidden: the directory of blatt.pwd
    Label Label5;                 // "Passwort:"
    Label Label6;                 // hidden: what the on-screen keyboard typed
    Label Label4;                 // "Neues Passwort:", shown when a new word may be typed
    Label infotec;                // names the key under the mouse
    ControlArray<Button> tecla;   // 0 to 39
    CheckBox MhState1;            // the state of the Caps key
    Button Command1;              // "Speichern"
    Button Command2;              // "Cancel"
    Button Command3;              // "Löschen"
    Button SSCommand1;            // the back key
    Button SSCommand2;            // "Programm beenden"

    senha();
    template <class V>
    void eachControl(V&& v)
    {
        v("Text2", Text2);
        v("Label1", Label1);
        v("Label3", Label3);
        v("Label5", Label5);
        v("Label6", Label6);
        v("Label4", Label4);
        v("infotec", infotec);
        v("tecla", tecla);
        v("MhState1", MhState1);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("SSCommand1", SSCommand1);
        v("SSCommand2", SSCommand2);
    }
};

// The caption of key i of the on-screen keyboard, in upper or lower case.
QString teclaCaption(int index, bool grossbuchstaben);

}  // namespace mk
