#pragma once
// Cards into another database of the same structure: the card on the mask (copiardb) or
// every card of the current cursor (Multicopy). Both go through the mask, so a copy is what
// the mask shows; the target gives each copy a new running number.

#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The copy of all cards of Kartensatz into the table Tabellenname of the database at path,
// with the progress display. The source is only read; the target takes the cards in
// batches that each reach its file whole, so a run that dies half way leaves both files
// readable. Returns the number of cards written.
long AlleKartenKopieren(Merkkartelle& app, const QString& path);

void copiardb_Click(Merkkartelle& app);
void Multicopy_Click(Merkkartelle& app);
void registerCardTransferHandlers(HandlerTable& table);

}  // namespace mk
