#pragma once
// The grid search: the text of the main mask's search box anywhere inside a pair of fields
// (surname and first name, or key and street, as the settings say), the hits filling the grid
// of the form Gitter while the walk lets other events in, so that Stop can end it.

#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

inline const QString kStop = QStringLiteral("STOP");
inline const QString kGitterStriche = QStringLiteral("-------");

// The search over Hauptmaske.Text1; ends with Gitter shown modally.
void Gittersuche(Merkkartelle& app);
// The header row of grid1.
void gitterbeschriftung1(Merkkartelle& app);
// The hint of the main search box for the pair of fields the settings choose.
QString GittersuchHinweis(const Merkkartelle& app);

void Gitter_grid1_Click(Merkkartelle& app);

void registerGridSearchHandlers(HandlerTable& table);

}  // namespace mk
