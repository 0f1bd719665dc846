#pragma once
// The serial-letter list mala: the cards of the current selection as a three-column list,
// sorted by a chosen field; a quick picker, a plain print of its lines, and labels for all
// or part of it through the control window malaview, printed or previewed. The birthday
// list (malasp) shares the control window and the print and preview routines.

#include <QString>

namespace mk {

struct Merkkartelle;
struct ListBox;
class HandlerTable;

// The sort column and the line layout of each option of Option3D1 (0 to 28); an index
// without either gives the empty text.
QString listenSortierspalte(int option);
QString listenLayout(int option);
// A text fitted to a column: cut to the width, or padded with the fill character.
QString spaltenText(const QString& text, int breite, const QString& fuellzeichen);
// The widths of the three columns from config (0 meaning 20) and the fill character.
int spaltenbreite(Merkkartelle& app, int spalte);
QString fuellzeichen(Merkkartelle& app);

// ListeAufbauen: the list built afresh from a clone of Kartensatz.
void ListeAufbauen(Merkkartelle& app);

// The form whose list malaview prints: malasp while it shows, else mala.
ListBox& druckliste(Merkkartelle& app);
// The print and the preview of labels for the list through malaview.
void ListenetikettenDrucken(Merkkartelle& app, bool vorschau);

void registerSerialLetterHandlers(HandlerTable& table);

}  // namespace mk
