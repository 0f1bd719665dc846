#pragma once
// What the dual buttons do while a card is open: cut, copy and paste on the typing slot that
// last had the focus, and the choice of the card's picture. While browsing they do nothing
// here; their browse meanings belong to the subsystems they open.

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The selection of the focused slot onto the clipboard, and out of the slot (the caret
// stays where the selection began). Nothing without a focused slot or a selection.
void Ausschneiden(Merkkartelle& app);
// The selection of the focused slot onto the clipboard.
void Kopieren(Merkkartelle& app);
// The clipboard's text in place of the selection of the focused slot, as far as the slot's
// MaxLength lets it in; the slot's Change follows, with its check of the column's size.
void Einfuegen(Merkkartelle& app);
// An open dialog for a picture; the chosen path goes into feld(16) and the picture shows.
void BildAussuchen(Merkkartelle& app);

void Command3D23_Click(Merkkartelle& app);  // edit: "Ausschneiden"
void Command3D25_Click(Merkkartelle& app);  // edit: "Einfügen"
void Command3D13_Click(Merkkartelle& app);  // edit: "Bild aussuchen"

void registerEditClipboardHandlers(HandlerTable& table);

}  // namespace mk
