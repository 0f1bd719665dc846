#pragma once
// The access password of a database directory: the file blatt.pwd and the form senha, asked
// at start and when another database is opened, and reached from menusenha to set, change or
// delete the word. One try: a wrong word ends the system.

#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

inline const QString kPasswortDatei = QStringLiteral("blatt.pwd");

// Writes the word as one quoted record; the file may be read and written by its owner only.
void PasswortdateiSchreiben(const QString& path, const QString& word);

// When blatt.pwd lies in Arbeitsverzeichnis, shows senha for the login. True when there is
// no file or the right word was typed; false when the form was closed without it (a wrong
// word ends the system before this returns).
bool PasswortAbfragen(Merkkartelle& app);

void menusenha_Click(Merkkartelle& app);
void registerPasswordHandlers(HandlerTable& table);

}  // namespace mk
