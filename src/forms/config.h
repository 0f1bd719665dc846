#pragma once
// "Einstellungen": the options of the system. Its check boxes and text boxes are the live
// settings that every subsystem asks; the settings file is their image on disk. At design
// every check box is clear and every text box empty, except Text2 "02132".

#include "forms/controls.h"
#include "platform/user_interface.h"

namespace mk {

struct config : Form {
    // --- options (3D check boxes: Value reads True or False) -------------------------------
    CheckBox SSCheck1;   // "Foto des Eintrags vergrössern"
    CheckBox SSCheck2;   // "Keine doppelten Eintäge"
    CheckBox SSCheck3;   // "Sound des Eintrags abspielen"
    CheckBox SSCheck4;   // "Warnsignal zum bearbeiten"
    CheckBox SSCheck5;   // "Standartknopf Ja beim Löschen"
    CheckBox SSCheck6;   // "Notiz als EMAIL anhang"
    CheckBox SSCheck7;   // "Programmsounds abspielen"
    CheckBox SSCheck8;   // "Programmschutz aktivieren"
    CheckBox SSCheck9;   // "Bilder zeigen"
    CheckBox SSCheck10;  // "Global Manager OFF"
    CheckBox SSCheck11;  // "Gittersuche"
    CheckBox Check3D3;   // "Geburtstage bei programmstart anzeigen"
    CheckBox Check3D5;   // "Verlauf speichern"
    CheckBox Check3D6;   // no caption; stored only
    CheckBox Check3D7;   // no caption; stored only
    CheckBox Check3D8;   // "Bilder anpassen"
    CheckBox Check3D9;   // quick-search passes; shown only while SSCheck11 is ticked
    CheckBox Check3D10;  // "Weisse Felder während des bearbeitens"
    CheckBox Check3D11;  // "Registiernummer bei Suchergebnissen anzeigen"
    CheckBox Check3D12;  // "Cursor am Ende der Texte"
    CheckBox Check3D13;  // "Einstellungen speichern"

    // --- texts ------------------------------------------------------------------------------
    TextBox Text1;   // "Standart Eintrag": number of the user's own card
    TextBox Text2;   // "Standort (Vorwahl)"
    TextBox Text8;   // "Leerraum" between the list columns
    TextBox Text9;   // e-mail subject
    TextBox Text12;  // "1. Spalte"
    TextBox Text13;  // "2. Spalte"
    TextBox Text14;  // "3. Spalte"
    TextBox Text15;  // new-card default of Stadt
    TextBox Text16;  // of Staat
    TextBox Text17;  // of Land
    TextBox Text18;  // "Verknüpftes Programm"
    TextBox Text20;  // of Strasse
    TextBox Text21;  // of Stadteil
    ControlArray<TextBox> prefeld;  // 0 to 3: of Schluessel, Titel, Firma, Geburtstag

    // --- captions of the boxes and groups ---------------------------------------------------
    Label Label1, Label2, Label3, Label4, Label5, Label6, Label7, Label8, Label9, Label10;
    Label Label11, Label12, Label13, Label14, Label15, Label16, Label17;
    ControlArray<Label> prelabel;  // captions of prefeld
    Frame Frame1, Frame2, Frame3, Frame4;  // "Optionen", "Neuer Eintrag", "Listen", "Farben"
    Label Label34;  // "Benennung Focusfarbe": BackColor the label text, ForeColor the focus

    // --- buttons ----------------------------------------------------------------------------
    Button Command1;    // "Felder"
    Button Command2;    // "Text"
    Button Command3;    // "Schrift"
    Button Command4;    // "Öffnen"
    Button Command5;    // "Sichern"
    Button Command6;    // "Hintergrund"
    Button Command7;    // "Gelöschte Einträge wiederherstellen"
    Button Command8;    // "Standart Grau"
    Button Command9;    // "Standart Schwarz"
    Button Command3d1;  // "Schliessen"

    // The common dialog: its properties stay set between uses.
    FileDialog CMDialog1;

    config();
    template <class V>
    void eachControl(V&& v)
    {
        v("SSCheck1", SSCheck1);
        v("SSCheck2", SSCheck2);
        v("SSCheck3", SSCheck3);
        v("SSCheck4", SSCheck4);
        v("SSCheck5", SSCheck5);
        v("SSCheck6", SSCheck6);
        v("SSCheck7", SSCheck7);
        v("SSCheck8", SSCheck8);
        v("SSCheck9", SSCheck9);
        v("SSCheck10", SSCheck10);
        v("SSCheck11", SSCheck11);
        v("Check3D3", Check3D3);
        v("Check3D5", Check3D5);
        v("Check3D6", Check3D6);
        v("Check3D7", Check3D7);
        v("Check3D8", Check3D8);
        v("Check3D9", Check3D9);
        v("Check3D10", Check3D10);
        v("Check3D11", Check3D11);
        v("Check3D12", Check3D12);
        v("Check3D13", Check3D13);
        v("Text1", Text1);
        v("Text2", Text2);
        v("Text8", Text8);
        v("Text9", Text9);
        v("Text12", Text12);
        v("Text13", Text13);
        v("Text14", Text14);
        v("Text15", Text15);
        v("Text16", Text16);
        v("Text17", Text17);
        v("Text18", Text18);
        v("Text20", Text20);
        v("Text21", Text21);
        v("prefeld", prefeld);
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
        v("Label11", Label11);
        v("Label12", Label12);
        v("Label13", Label13);
        v("Label14", Label14);
        v("Label15", Label15);
        v("Label16", Label16);
        v("Label17", Label17);
        v("prelabel", prelabel);
        v("Frame1", Frame1);
        v("Frame2", Frame2);
        v("Frame3", Frame3);
        v("Frame4", Frame4);
        v("Label34", Label34);
        v("Command1", Command1);
        v("Command2", Command2);
        v("Command3", Command3);
        v("Command4", Command4);
        v("Command5", Command5);
        v("Command6", Command6);
        v("Command7", Command7);
        v("Command8", Command8);
        v("Command9", Command9);
        v("Command3d1", Command3d1);
    }
};

// The two captions of Check3D9, ticked and clear.
inline const QString kGittersuchNachname = QStringLiteral("Gittersuch Nachname Vorname");
inline const QString kGittersuchSchluessel = QStringLiteral("Gittersuch Schluessel Strasse");

}  // namespace mk
