#pragma once
// "Einstellungen der Etiketten": the sheet of labels. Its controls are the single store of
// the label settings while the system runs; every print path reads its geometry from them.
// Lengths are decimal text in centimetres.

#include "forms/controls.h"
#include "platform/user_interface.h"

namespace mk {

struct etiquet : Form {
    // --- geometry ----------------------------------------------------------------------------
    TextBox Text5;       // left offset of the first label
    TextBox Text6;       // top offset of the first label
    TextBox Text3;       // text distance from the label's left edge
    TextBox Text4;       // text distance from the label's top edge
    TextBox tabh;        // line pitch
    TextBox Text1;       // label width
    TextBox Text2;       // label height
    TextBox dishor;      // gap between two rows
    TextBox disver;      // gap between two columns
    TextBox Quantidade;  // labels across
    TextBox colunas;     // labels down
    ScrollBar HScroll1;  // tied to colunas
    ScrollBar HScroll2;  // tied to Quantidade
    TextBox impbordavertical;  // right margin of the printable area
    TextBox impborda;          // bottom margin of the printable area
    TextBox Text9;       // sheet height, computed
    TextBox Text11;      // printer page height
    TextBox Text12;      // labels per sheet, computed
    TextBox Text14;      // printer page width
    TextBox paginas;     // pages of the current card

    // --- text lines and note block --------------------------------------------------------
    TextBox Text7;       // font size of the field lines
    TextBox Text8;       // font name of the field lines
    CheckBox Check1;     // bold field lines
    CheckBox Check2;     // italic field lines
    Label Campoforecolor;  // swatch: colour of the field lines
    ControlArray<ComboBox> Combo1;  // 0 to 4: the item of each text line
    TextBox Text10;      // prefix of a telephone line
    TextBox Text15;      // prefix of a mobile line
    CheckBox Check5;     // print the note block
    TextBox InfoFontname;
    TextBox InfoFontsize;
    Label Infoforecolor;   // swatch: colour of the note block
    CheckBox Check10;    // bold note block
    CheckBox Check20;    // italic note block
    CheckBox Check6;     // line under the note block
    TextBox Text13;      // distance of the note block, twips

    // --- frame, line, picture -------------------------------------------------------------
    CheckBox Check3;     // horizontal line
    CheckBox Check4;     // frame around each label
    Label bordercolor;   // swatch: frame colour
    CheckBox Check7;     // print the card's picture
    Label Label32;       // picture PosX
    Label Label33;       // picture size
    Label Label34;       // picture PosY
    ScrollBar HScroll3, HScroll4, HScroll5;
    Label Label38;       // number of the sample card

    // --- captions, status, buttons ---------------------------------------------------------
    Label Label17, Label22, Label31, Label36, Label37, Label39, Label40, Label41;
    Panel SSPanel1;      // the preview
    Panel Panel3D1, Panel3D2;  // Panel3D2: the status line
    Button Command1, Command2, Command3, Command4, Command3D2, Command3D12;

    FileDialog CMDialog1;

    etiquet();
    template <class V>
    void eachControl(V&& v)
    {
        v("Text5", Text5);
        v("Text6", Text6);
        v("Text3", Text3);
        v("Text4", Text4);
        v("tabh", tabh);
        v("Text1", Text1);
        v("Text2", Text2);
        v("dishor", dishor);
        v("disver", disver);
        v("Quantidade", Quantidade);
        v("colunas", colunas);
        v("HScroll1", HScroll1);
        v("HScroll2", HScroll2);
        v("impbordavertical", impbordavertical);
        v("impborda", impborda);
        v("Text9", Text9);
        v("Text11", Text11);
        v("Text12", Text12);
        v("Text14", Text14);
        v("paginas", paginas);
        v("Text7", Text7);
        v("Text8", Text8);
        v("Check1", Check1);
        v("Check2", Check2);
        v("Campoforecolor", Campoforecolor);
        v("Combo1", Combo1);
        v("Text10", Text10);
        v("Text15", Text15);
        v("Check5", Check5);
        v("InfoFontname", InfoFontname);
        v("InfoFontsize", InfoFontsize);
        v("Infoforecolor", Infoforecolor);
        v("Check10", Check10);
        v("Check20", Check20);
        v("Check6", Check6);
        v("Text13", Text13);
        v("Check3", Check3);
        v("Check4", Check4);
        v("bordercolor", bordercolor);
        v("Check7", Check7);
        v("Label32", Label32);
        v("Label33", Label33);
        v("Label34", Label34);
        v("HScroll3", HScroll3);
        v("HScroll4", HScroll4);
        v("HScroll5", HScroll5);
        v("Label38", Label38);
        v("Label17", Label17);
        v("Label22", Label22);
        v("Label31", Label31);
        v("Label36", Label36);
        v("Label37", Label37);
        v("Label39", Label39);
        v("Label40", Label40);
        v("Label41", Label41);
        v("SSPanel1", SSPanel1);
        v("Panel3D1", Panel3D1);
        v("Panel3D2", Panel3D2);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Command4", Command4);
        v("Command3D2", Command3D2);
        v("Command3D12", Command3D12);
    }
};

}  // namespace mk
