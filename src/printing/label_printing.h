#pragma once
// Label printing: every card of Kartensatz as one label each (EtikettenDrucken, from the
// menu), and the current card on every place of the sheet (EtikettenseiteDrucken, from
// etiquet). One drawing of a label serves the printer, the PDF file and the previews.

#include "printing/label_layout.h"

#include <QString>

namespace mk {

class Surface;
struct PrinterChoice;

// DruckFelder from the current row of Kartensatz, Null as the empty text; nothing when the
// cursor has no rows.
void DruckFelderLaden(Merkkartelle& app);

// Where a label's text comes from, and the small differences between the three drawings.
enum class Etikettenart {
    Liste,     // the run over all cards and the list prints: DruckFelder, the long line always
    Seite,     // one card's sheet: the mask, the long line only within the frame
    Vorschau,  // the preview: the mask, "Leer" prints a blank
};

// The text of one of the seventeen items of Combo1 for the current card.
QString Etikettenzeile(Merkkartelle& app, const QString& item, Etikettenart art);
// The whole label at (x, y): frame and line, the five text lines, picture, note block.
void EtikettZeichnen(Merkkartelle& app, Surface& s, const Etikettenmasse& m, long x, long y, Etikettenart art);
// Steps 3 to 6 of a label: the text lines, the picture and the note block.
void EtikettInhalt(Merkkartelle& app, Surface& s, const Etikettenmasse& m, long x, long y, Etikettenart art);
// Font and colour of the field lines, each under its own guard.
void FeldschriftSetzen(Merkkartelle& app, Surface& s);

// The place of label n (counted from 1) on a roll cut into sheets: the column, the sheet
// and its y, as EtikettenDrucken and the list prints reckon them (with the 0.9 cm
// tolerance). bogen is the sheet height in centimetres.
struct Rollenstand {
    long r = 1, d = 0, e = 1, c = 0;
    int seite = 1;
};
struct Etikettenplatz {
    long x = 0, y = 0;
    bool neueSeite = false;  // a page ended before this label
    bool neueReihe = false;  // the run count r went up (the list form shows it)
};
Etikettenplatz naechsterPlatz(Rollenstand& stand, const Etikettenmasse& m, double bogen, long S, long n);

void EtikettenDrucken(Merkkartelle& app);
void EtikettenseiteDrucken(Merkkartelle& app);
// etiquet's Command3 and F6: asks, then prints paginas pages of the current card.
void EinzelseiteDrucken_Click(Merkkartelle& app);
// The printer chosen in a printer dialog becomes the system's printer.
void DruckereinrichtungUebernehmen(Merkkartelle& app, const PrinterChoice& choice);
// The menu item and the button of the main mask that open the label layout.
void EtikettenKonfigurieren(Merkkartelle& app);

void registerLabelPrintingHandlers(HandlerTable& table);

}  // namespace mk
