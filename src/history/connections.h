#pragma once
// Connections between cards: the ten slots of Aform ("Conections"), stored in the card's own
// columns A1..A10 (the other card's first name and surname as they stood when the link was
// made) and B1..B10 (its running number). A link is one-way. The form browses the card
// table through Zweitsatz, so that finding a card for a slot never moves the main mask.

#include <QString>
#include <QVariant>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The column an option of SuchOption makes the browser test and sort by.
QString Suchspalte(int option);

// The name a slot keeps of a card: Vorname + " " + Nachname, "*" for a Null part.
QString Verknuepfungsname(const QVariant& vorname, const QVariant& nachname);

// Fills Infolabel and Image1 from the current record of the browser; "*" for Null.
void InfolabelFuellen(Merkkartelle& app);

// Hauptmaske.Command3: shows Aform where the settings put it, or hides it and keeps its
// place. Nothing while the screen guard shows.
void Command3_Click(Merkkartelle& app);

void registerConnectionHandlers(HandlerTable& table);

}  // namespace mk
