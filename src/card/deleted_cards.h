#pragma once
// Deleting a card, with a copy of it in a file of its own, and bringing a deleted card back
// from that file as a new card.
//
// The deleted-card file is named by the card's running number and ".dat", in
// Arbeitsverzeichnis: 94 values, one Write # record a line, each a quoted text: feld(0) to
// (22), Bemerkung, FeldA(1) to (10), feldB(1) to (10), feldnum(0) to (3), prog(1) to (20),
// Zeit, Partido, Ramal, recdate, rectime, tel1 to tel4, the seven type boxes, Text9, Text11,
// Text10, Text12 to Text15, feldbank(0), (2), (1).

#include "card/card_editing.h"
#include "card/card_slots.h"

#include <QString>
#include <vector>

namespace mk {

struct Merkkartelle;

// The 94 places of the file, in file order.
std::vector<MaskenPlatz> geloeschteKartePlaetze(Merkkartelle& app);
// Writes the mask into a deleted-card file at path; raises as the file statements do.
void GeloeschteKarteSchreiben(Merkkartelle& app, const QString& path);
// Reads up to 94 values of a deleted-card file into the mask; places beyond the end of a
// short file keep what they had. Raises as the file statements do.
void GeloeschteKarteLesen(Merkkartelle& app, const QString& path);

// "&Löschen": the question, the copy into the file, the delete, the next card.
void AdresseLöschen_Click(Merkkartelle& app);
// config's "Gelöschte Einträge wiederherstellen": a new card filled from a chosen file.
void config_Command7_Click(Merkkartelle& app);

}  // namespace mk
