#pragma once
// The syllable search (form search, "Suchen nach Silben"): a piece of text anywhere inside one
// chosen field, card after card, the walk letting other events in so that it can be stopped.

#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The column that option k of search.Option3D1 searches.
QString Silbenspalte(int option);
// The condition of the cards whose column holds teil anywhere, as the walk compares them.
QString Silbenbedingung(const QString& spalte, const QString& teil);
// True when text holds teil anywhere, without regard to case and without wildcards.
bool SilbeEnthalten(const QString& text, const QString& teil);

void menusilabas_Click(Merkkartelle& app);
void search_Command6_Click(Merkkartelle& app);
void search_Command3_Click(Merkkartelle& app);
void search_List1_Click(Merkkartelle& app);

void registerSyllableSearchHandlers(HandlerTable& table);

}  // namespace mk
