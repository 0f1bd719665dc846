#pragma once
// The linked files of a card: twenty paths in prog(1..20), each opened by the program that
// the association table names for its extension. The table is the section Extensions of
// our win.ini, one key per extension of three letters with the value program + " ^." +
// extension; the user teaches it a new extension through the association step.

#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The program of a path by the association table: the value for its last three letters
// with its " ^.ext" tail taken off; "" when the table knows none.
QString VerknuepftesProgramm(const QString& path);

// The association step for path: the program chosen in a dialog is written to the table
// for the path's last three letters. Nothing is started.
void Verknuepfen(Merkkartelle& app, const QString& path, const QString& index);

// Starts path with its program; an unknown extension or a program that cannot be started
// leads to the association step. progLabel4 keeps the command line.
void VerknuepfungStarten(Merkkartelle& app, const QString& path, const QString& index);

void registerAttachmentHandlers(HandlerTable& table);

}  // namespace mk
