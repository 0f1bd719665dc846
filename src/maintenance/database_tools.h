#pragma once
// The maintenance entries of the menu "Datei": a new, empty card database made from the
// template EMPTYMDB.KDB (newdb), and the compaction of a database file in place, keeping
// the old file as .bak (compactar).

#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The name of a new database: ".mdb" appended unless it ends in ".mdb" in any case.
QString DatenbankName(const QString& chosen);

// Compacts the file at path: the compacted copy is made as base + "1.mdb", the old file
// becomes base + ".bak", the copy takes the old name. Returns "" when it worked, else the
// text that tells the user where the data now lie; at every failure the original stays
// whole, under its own name or, failing that, as the .bak.
QString DatenbankCompactieren(const QString& path);

void newdb_Click(Merkkartelle& app);
void compactar_Click(Merkkartelle& app);
void registerDatabaseToolHandlers(HandlerTable& table);

}  // namespace mk
