#pragma once
// Card and note printing: Form6 prints one card as a page of labelled lines under its
// picture, and draws the same page on its own surface; the main menu prints the two
// rich-text fields and opens the printer set-up.

namespace mk {

struct Merkkartelle;
class Surface;
class HandlerTable;

// The page of the current card on a surface: the scale of the margins, the picture, the
// labelled lines of every field that is not empty.
void KarteAufSeite(Merkkartelle& app, Surface& s);
// KarteZeichnen: the page on Form6's surface.
void KarteZeichnen(Merkkartelle& app);
// KarteDrucken: asks, then the page on the printer.
void KarteDrucken(Merkkartelle& app);

void registerCardPrintingHandlers(HandlerTable& table);

}  // namespace mk
