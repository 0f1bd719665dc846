#pragma once
// The one schema source of the system's three databases: the card table, the call log and
// the global view. Every new file (the template, an empty Telephone.mdb, GlobalView.mdb) is
// built from here; the store reads sizes back from the file's own declarations.

#include "platform/store.h"

#include <QString>
#include <string>
#include <vector>

namespace mk {

// The declared column type as it is written into the file: "TEXT(50)", "LONGTEXT",
// "INTEGER PRIMARY KEY AUTOINCREMENT" and so on.
QString declaredType(const FieldDef& field);
// The CREATE TABLE statement of a kind.
std::string createTableSql(DatabaseKind kind);
// The narrow index on a kind's counter column ("CREATE INDEX IF NOT EXISTS …"). Its entries
// are in key order, so SQLite reads all row keys in key order from it instead of walking the
// wide table; every new file gets it, and a writable open adds it to a file without it.
// Empty for a kind without a counter.
std::string createKeyIndexSql(DatabaseKind kind);
// Reads a field definition back from a declared type (as PRAGMA table_info reports it).
FieldDef fieldFromDeclaration(const QString& name, const QString& declared, bool primaryKey);

}  // namespace mk
