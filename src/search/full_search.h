#pragma once
// The search over all fields: the main mask's search button and Enter in its search box walk
// the 29 search fields one after the other with the prefix condition, and the result list
// Procurar shows one line for each field that matched, to take a card from.

#include <QString>

namespace mk {

struct Merkkartelle;
struct EventArgs;
class HandlerTable;

inline const QString kAlleDatensaetze = QStringLiteral("Alle Datensätze");

// The search itself (Command5 and Enter in Text1), the grid search when "Gittersuche" is on.
void Volltextsuche(Merkkartelle& app);
// The hint of Command5 for the search text and the grid setting.
QString SuchknopfHinweis(const Merkkartelle& app);

void Procurar_Load(Merkkartelle& app);
void Procurar_Liste_Click(Merkkartelle& app);
void Procurar_Command1_Click(Merkkartelle& app);
void Procurar_Command2_Click(Merkkartelle& app);

void registerFullSearchHandlers(HandlerTable& table);

}  // namespace mk
