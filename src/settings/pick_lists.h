#pragma once
// The pick lists of the mask fields: while a card is entered or changed, a right click on a
// field (or a double click, which the main window passes on) opens Cidadefrm with the known
// texts of that field, kept one quoted text a line in a file named after the field's label. A
// chosen text goes into the field, cut to the column's size.

#include <QString>

namespace mk {

struct Merkkartelle;
struct EventArgs;
class HandlerTable;

// The column that feld(slot) shows, 0 to 22; "" for any other slot.
QString FeldSpalte(int slot);

// The list file of feld(slot): Arbeitsverzeichnis + the caption of beschreibung(slot) less
// its last character (the colon) + ".txt". A renamed label has a list of its own.
QString Auswahllistendatei(const Merkkartelle& app, int slot);

// Opens the pick list of feld(slot) modally: the file named, read into List1, the form shown.
// Does nothing unless a card is being entered ("Speichern") or changed ("OK"). The main
// window calls it for the double click on a field, the right button comes here directly.
void AuswahllisteOeffnen(Merkkartelle& app, int slot);

// Reads the file named in Cidadefrm.Label2 into List1 (and its shadow List3): one text a
// record, empty texts passed over; a missing or broken file gives what was read, silently.
void AuswahllisteLesen(Merkkartelle& app);
// Writes List1 to the file named in Label2, one quoted text a line; file errors are silent.
void AuswahllisteSchreiben(Merkkartelle& app);
// Adds every text of the column named in Label3 that is not Null and not yet in the list,
// walking the cards of Kartensatz.
void AuswahllisteAusKarten(Merkkartelle& app);
// Writes the selected text into the field the list was opened for, cut to the column's
// size, and closes the form.
void AuswahlUebernehmen(Merkkartelle& app);

// The handlers.
void feld_MouseDown(Merkkartelle& app, EventArgs& args);
void Cidadefrm_Command1_Click(Merkkartelle& app);  // "Hinzufügen", then "OK"
void Cidadefrm_Command2_Click(Merkkartelle& app);  // "Abbrechen"
void Cidadefrm_Command3_Click(Merkkartelle& app);  // "Löschen"
void Cidadefrm_Command4_Click(Merkkartelle& app);  // "Laden"
void Cidadefrm_Command5_Click(Merkkartelle& app);  // "Auswählen"
void Cidadefrm_List1_Click(Merkkartelle& app);
void Cidadefrm_List1_DblClick(Merkkartelle& app);

void registerPickListHandlers(HandlerTable& table);

}  // namespace mk
