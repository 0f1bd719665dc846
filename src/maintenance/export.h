#pragma once
// The text export of frmExport: the chosen columns of every card of Kartensatz, in the
// current order and selection, as plain text, one line per card ("Horizontal") or one line
// per column.

#include <QString>
#include <QStringList>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The settings entry that keeps the state of "Horizontal".
constexpr int kExportLayoutEntry = 70;

// Writes the export file: the header of the column names, two bare carriage returns, then
// the cards from the first to the last of Kartensatz, a Null as "*". The file appears whole
// or not at all: an existing file is replaced only once the new one is complete. The cursor
// returns to the card it was on. Raises RuntimeError when the file cannot be written.
void ExportSchreiben(Merkkartelle& app, const QString& path, const QStringList& columns, bool horizontal);

// frmExport's handlers and the browse branch of the mask's export button.
void frmExport_Show(Merkkartelle& app);
void registerExportHandlers(HandlerTable& table);

}  // namespace mk
