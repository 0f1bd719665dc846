#pragma once
// The main mask: the one window that stays open. Its slots show the card (feld and its
// fellows), its labels and buttons carry the state of the session (edit captions, sort,
// selection, history flag), its panels hold the further slots, its timers run the clock and
// the screen guard.

#include "forms/controls.h"

namespace mk {

struct Hauptmaske : Form {
    // --- the card's slots and their labels -----------------------------------------
    ControlArray<TextBox> feld;             // 0 to 22
    ControlArray<Label> beschreibung;       // 0 to 24, the field catalogue
    ControlArray<TextBox> feldbank;         // 0 BLZ, 1 Kontonr, 2 Bank
    ControlArray<Label> beschreibungbank;
    ControlArray<TextBox> feldnum;          // 0 to 3: e-mails, homepage, vehicle
    ControlArray<Label> beschreibungnum;    // 0 to 7
    TextBox tel1, tel2, tel3, tel4;
    ControlArray<Label> TEL_LBL;            // 0 to 3 the telephones, 4 "Vorwahl:"
    TextBox Ramal;
    TextBox Partido;
    ControlArray<TextBox> prog;             // 1 to 20, the linked files
    ControlArray<Button> init;              // 1 to 20, their start buttons
    ControlArray<CheckBox> Typenliste;      // 0 to 6, the type marks
    ControlArray<Button> Selector;          // 0 to 6, the one-click type filters
    RichText Bemerkung;
    RichText Text15;                        // CampoM2
    TextBox Text1;                          // the search box
    TextBox Text2, Text3, Text4, Text5, Text6, Text7, Text8;  // naming of the types
    TextBox Text9, Text10, Text11;          // sound, video, additional information
    TextBox Text12, Text13, Text14;         // Campo1, Campo2, CampoM1

    // --- labels -----------------------------------------------------------------------
    Label LaufendeNummer, Datum, Zeit, recdate, rectime;
    Label datalabel, dataold, currentindex, SortiertNach;
    Label Label1, Label2, Label3, Label4, Label5, Label6, Label7, Label8, Label9, Label10;
    Label Label12, Label13, Label14, Label15, Label16, Label17, Label18, Label19;
    Label Label32, Label33, Label36;
    Label Curindex, progname, progLabel2, progLabel4;

    // --- buttons ----------------------------------------------------------------------
    Button NeueAdresse, NeueAdresseAbbruch, AdresseÄndern, AdresseÄndernAbbruch, AdresseLöschen;
    Button NachAdresseSuchen, EinzNachvorne, EinznachHinten, Command3D15, Command3D16;
    Button InfoTipo;
    Button Command3D1, Command3D2, Command3D3, Command3D8, Command3D13;
    Button Command3D23, Command3D24, Command3D25;
    Button Command1, Command2, Command3, Command3d4, Command4, Command5, Command6;
    Button Command9, Command10, Command11;
    Button SSCommand1, SSCommand2, SSCommand3, SSCommand4, SSCommand5, SSCommand6, SSCommand7;
    Button SSCommand8, SSCommand9, SSCommand11, SSCommand13;
    Button AssociarComOP;

    // --- panels ------------------------------------------------------------------------
    Panel Bankverbindung, Morephones, Numbers, Conexted;
    Panel Panel3D3;   // the status line
    Panel Panel3d5;   // time
    Panel panel3d7;   // date
    Panel Selektiert;
    Panel SSPanel2, Panel3D1, Panel3D2, Panel3D4;

    // --- pictures -----------------------------------------------------------------------
    Image Image1;     // the card's picture
    Image Image2;     // the user's own picture
    Image Bildschutz; // the screen guard
    Image Image12;
    Image Picture2, prever;
    Image Image6, Image7, Image9, Image11, Leerbild;
    Image bildrecortar, bildcopy, bildpaste, bildbild;          // pictures of the edit state
    Image bildselect, bildordem, bildwinword, bildwinfile;      // pictures of browsing

    // --- timers -------------------------------------------------------------------------
    Timer Timer1;     // clock and date panels
    Timer Timer2;     // screen guard

    // --- menu ---------------------------------------------------------------------------
    MenuItem dbaction, abrirdmb, fechardb, newdb, compactar, confimp, saidapr;
    MenuItem MenuCadastro, menucopy, Menucolar, menuapagar, copiardb, Multicopy;
    MenuItem infoprint, BemDruck, printzusatzdaten;
    MenuItem menulisten, menumaladata, malaprint, DBGitterListe, menuvalor;
    MenuItem menuoptionen, menuconfig, menutipo, menusenha, menuetqconf, abrirdenominacao, salvarden;
    MenuItem menuwerkzeuge, menuauto, menusilabas, progshow;

    Hauptmaske();

    template <class V>
    void eachControl(V&& v)
    {
        v("feld", feld);
        v("beschreibung", beschreibung);
        v("feldbank", feldbank);
        v("beschreibungbank", beschreibungbank);
        v("feldnum", feldnum);
        v("beschreibungnum", beschreibungnum);
        v("tel1", tel1);
        v("tel2", tel2);
        v("tel3", tel3);
        v("tel4", tel4);
        v("TEL_LBL", TEL_LBL);
        v("Ramal", Ramal);
        v("Partido", Partido);
        v("prog", prog);
        v("init", init);
        v("Typenliste", Typenliste);
        v("Selector", Selector);
        v("Bemerkung", Bemerkung);
        v("Text15", Text15);
        v("Text1", Text1);
        v("Text2", Text2);
        v("Text3", Text3);
        v("Text4", Text4);
        v("Text5", Text5);
        v("Text6", Text6);
        v("Text7", Text7);
        v("Text8", Text8);
        v("Text9", Text9);
        v("Text10", Text10);
        v("Text11", Text11);
        v("Text12", Text12);
        v("Text13", Text13);
        v("Text14", Text14);

        v("LaufendeNummer", LaufendeNummer);
        v("Datum", Datum);
        v("Zeit", Zeit);
        v("recdate", recdate);
        v("rectime", rectime);
        v("datalabel", datalabel);
        v("dataold", dataold);
        v("currentindex", currentindex);
        v("SortiertNach", SortiertNach);
        v("Label1", Label1);
        v("Label2", Label2);
        v("Label3", Label3);
        v("Label4", Label4);
        v("Label5", Label5);
        v("Label6", Label6);
        v("Label7", Label7);
        v("Label8", Label8);
        v("Label9", Label9);
        v("Label10", Label10);
        v("Label12", Label12);
        v("Label13", Label13);
        v("Label14", Label14);
        v("Label15", Label15);
        v("Label16", Label16);
        v("Label17", Label17);
        v("Label18", Label18);
        v("Label19", Label19);
        v("Label32", Label32);
        v("Label33", Label33);
        v("Label36", Label36);
        v("Curindex", Curindex);
        v("progname", progname);
        v("progLabel2", progLabel2);
        v("progLabel4", progLabel4);

        v("NeueAdresse", NeueAdresse);
        v("NeueAdresseAbbruch", NeueAdresseAbbruch);
        v("AdresseÄndern", AdresseÄndern);
        v("AdresseÄndernAbbruch", AdresseÄndernAbbruch);
        v("AdresseLöschen", AdresseLöschen);
        v("NachAdresseSuchen", NachAdresseSuchen);
        v("EinzNachvorne", EinzNachvorne);
        v("EinznachHinten", EinznachHinten);
        v("Command3D15", Command3D15);
        v("Command3D16", Command3D16);
        v("InfoTipo", InfoTipo);
        v("Command3D1", Command3D1);
        v("Command3D2", Command3D2);
        v("Command3D3", Command3D3);
        v("Command3D8", Command3D8);
        v("Command3D13", Command3D13);
        v("Command3D23", Command3D23);
        v("Command3D24", Command3D24);
        v("Command3D25", Command3D25);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Command3d4", Command3d4);
        v("Command4", Command4);
        v("Command5", Command5);
        v("Command6", Command6);
        v("Command9", Command9);
        v("Command10", Command10);
        v("Command11", Command11);
        v("SSCommand1", SSCommand1);
        v("SSCommand2", SSCommand2);
        v("SSCommand3", SSCommand3);
        v("SSCommand4", SSCommand4);
        v("SSCommand5", SSCommand5);
        v("SSCommand6", SSCommand6);
        v("SSCommand7", SSCommand7);
        v("SSCommand8", SSCommand8);
        v("SSCommand9", SSCommand9);
        v("SSCommand11", SSCommand11);
        v("SSCommand13", SSCommand13);
        v("AssociarComOP", AssociarComOP);

        v("Bankverbindung", Bankverbindung);
        v("Morephones", Morephones);
        v("Numbers", Numbers);
        v("Conexted", Conexted);
        v("Panel3D3", Panel3D3);
        v("Panel3d5", Panel3d5);
        v("panel3d7", panel3d7);
        v("Selektiert", Selektiert);
        v("SSPanel2", SSPanel2);
        v("Panel3D1", Panel3D1);
        v("Panel3D2", Panel3D2);
        v("Panel3D4", Panel3D4);

        v("Image1", Image1);
        v("Image2", Image2);
        v("Bildschutz", Bildschutz);
        v("Image12", Image12);
        v("Picture2", Picture2);
        v("prever", prever);
        v("Image6", Image6);
        v("Image7", Image7);
        v("Image9", Image9);
        v("Image11", Image11);
        v("Leerbild", Leerbild);
        v("bildrecortar", bildrecortar);
        v("bildcopy", bildcopy);
        v("bildpaste", bildpaste);
        v("bildbild", bildbild);
        v("bildselect", bildselect);
        v("bildordem", bildordem);
        v("bildwinword", bildwinword);
        v("bildwinfile", bildwinfile);

        v("Timer1", Timer1);
        v("Timer2", Timer2);

        v("dbaction", dbaction);
        v("abrirdmb", abrirdmb);
        v("fechardb", fechardb);
        v("newdb", newdb);
        v("compactar", compactar);
        v("confimp", confimp);
        v("saidapr", saidapr);
        v("MenuCadastro", MenuCadastro);
        v("menucopy", menucopy);
        v("Menucolar", Menucolar);
        v("menuapagar", menuapagar);
        v("copiardb", copiardb);
        v("Multicopy", Multicopy);
        v("infoprint", infoprint);
        v("BemDruck", BemDruck);
        v("printzusatzdaten", printzusatzdaten);
        v("menulisten", menulisten);
        v("menumaladata", menumaladata);
        v("malaprint", malaprint);
        v("DBGitterListe", DBGitterListe);
        v("menuvalor", menuvalor);
        v("menuoptionen", menuoptionen);
        v("menuconfig", menuconfig);
        v("menutipo", menutipo);
        v("menusenha", menusenha);
        v("menuetqconf", menuetqconf);
        v("abrirdenominacao", abrirdenominacao);
        v("salvarden", salvarden);
        v("menuwerkzeuge", menuwerkzeuge);
        v("menuauto", menuauto);
        v("menusilabas", menusilabas);
        v("progshow", progshow);
    }
};

// The design caption of beschreibung(i), the field catalogue of the mask.
QString designCaption(int index);
// The design name of type 1 to 7, "Typ 1" …: the caption of its box and of its naming box.
QString designTypeName(int type);

}  // namespace mk
