#pragma once
// The naming of the seven types on the main mask: the edit boxes Text2 to Text8 beside the
// type boxes, opened by the menu entry menutipo (or F12) and closed by Command6 "OK" or
// Command2 "Abbrechen". The names live in the settings entries 21 to 27, the captions of
// Typenliste, the array Typenbenennung and the list of types of mala.ComboTypenliste.

namespace mk {

struct Merkkartelle;

// Opens the naming (boxes filled from entries 21 to 27) or, when it is open, confirms it:
// box captions and entries take the texts; Typenbenennung and the list of mala keep the old
// names until a Command6 click or the next start.
void menutipo_Click(Merkkartelle& app);
// F12 on the main mask: the same as the menu entry.
void TypenBenennen(Merkkartelle& app);
// Confirms the naming: captions, entries, Typenbenennung(1..7) and mala.ComboTypenliste
// (seven names, "Alle Einträge", "Persönliche Definition", index from entry 190).
void Command6_Click(Merkkartelle& app);
// The list of types of mala: the seven names, then index 7 for all cards and index 8 for
// the choice of several types; the stored default (entry 190) chosen.
void typenlisteFuellen(Merkkartelle& app);
// Cancels the naming: the boxes take the entries again.
void Command2_Click(Merkkartelle& app);

}  // namespace mk
