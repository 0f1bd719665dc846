#pragma once
// The exit dialog with a safety copy: target drive and directory, the paths, the banner.

#include "forms/controls.h"

namespace mk {

struct Form5 : Form {
    TextBox Text3;  // target drive; starts from settings entry 41
    TextBox Text2;  // target directory without drive; starts from entry 42
    Label Label1;   // target path
    Label Label2;   // path of the open database
    Label Label4;   // clock text at load
    Label Label5;   // banner and progress words

    Form5();
    template <class V>
    void eachControl(V&& v)
    {
        v("Text3", Text3);
        v("Text2", Text2);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label4", Label4);
        v("Label5", Label5);
    }
};

}  // namespace mk
