#pragma once
// The exit dialog with a safety copy: target drive and directory, the paths, the banner.
// The "drive" is a mount point here; Drive1 lists the mounted volumes.

#include "forms/controls.h"

namespace mk {

struct Form5 : Form {
    TextBox Text3;      // target drive (a mount point); starts from settings entry 41
    TextBox Text2;      // target directory without drive; starts from entry 42
    ComboBox Drive1;    // the drive list, kept in step with Text3
    Label Label1;       // target path
    Label Label2;       // path of the open database
    Label Label3;       // "Aktuelle Datenbank:"
    Label Label4;       // clock text at load
    Label Label5;       // banner and progress words
    Label Label6;       // "Laufwerk:"
    Label Label7;       // "Zielverzeichnis:"
    Button Command3D1;  // "Kopieren + Beenden"
    Button Command3D3;  // "Abbrechen"

    Form5();
    template <class V>
    void eachControl(V&& v)
    {
        v("Text3", Text3);
        v("Text2", Text2);
        v("Drive1", Drive1);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label5", Label5);
        v("Label6", Label6);
        v("Label7", Label7);
        v("Command3D1", Command3D1);
        v("Command3D3", Command3D3);
    }
};

}  // namespace mk
