#pragma once
// The life of a card on the main mask: a new card ("&Neu", saved by "Speichern"), a change
// ("&Bearbeiten", saved by "OK"), the cancel of either, and the quick entry form Form2.
//
// The edit state is no variable of its own: the captions of NeueAdresse and AdresseÄndern
// are the state, and every part of the system asks them (card_cursor.h):
//   browsing        "&Neu"       "&Bearbeiten"
//   new card        "Speichern"  "&Bearbeiten"
//   changing a card "&Neu"       "OK"

#include <QString>

namespace mk {

struct Merkkartelle;
struct CheckBox;
class HandlerTable;

// The entry buttons do nothing, without a word, while the screen guard covers the mask or
// the database is open read-only (NurLesen "1").
bool eingabeGesperrt(const Merkkartelle& app);

// True when at least one of the seven type boxes is ticked: the one thing a card must have.
bool KarteSpeichernPruefen(const Merkkartelle& app);
// The duplicate test of a new card: 1 to go on, 0 to stop (after its message box) when a
// card with the same first name and surname is stored already.
int verseexiste(Merkkartelle& app);

// A slot took the focus in browse state: the running number in the warning colour, the
// sound when program sounds are on, the pointer to "&Bearbeiten".
void AktivFarbe(Merkkartelle& app);
// The caption colours of the mask's labels for browsing or for editing, by the edit state.
void MaskeSchalten(Merkkartelle& app);

// The stamps of a save, as the labels Datum/recdate and Zeit/rectime show them: the short
// date of the locale (Label3 of the mask) and the time.
QString DatumText(const Merkkartelle& app);
QString ZeitText(const Merkkartelle& app);

// Steps 1 to 11 of "&Neu": the mask cleared for a new card, the presets filled in, the
// forecast number shown, the record buffer opened with AddNew. The restore of a deleted card
// runs these steps too.
void NeuenEintragOeffnen(Merkkartelle& app);

// The buttons; each reads the edit state from the captions.
void NeueAdresse_Click(Merkkartelle& app);          // "&Neu" or "Speichern"
void AdresseÄndern_Click(Merkkartelle& app);        // "&Bearbeiten" or "OK"
void NeueAdresseAbbruch_Click(Merkkartelle& app);
void AdresseÄndernAbbruch_Click(Merkkartelle& app);

// The quick entry form: "OK" and "Abrechen".
void Form2_SSCommand1_Click(Merkkartelle& app);
void Form2_SSCommand2_Click(Merkkartelle& app);

// The handlers of card editing, deleting and restoring, and card copy and paste.
void registerEditingHandlers(HandlerTable& table);

}  // namespace mk
