#pragma once
// The global view "Merkkartelle - Global Manager": the list of databases the user works
// with, kept in the table GlobalView of GlobalView.mdb (Gesamtsatz). Opening another
// database offers it before the file dialog.

#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// What the global view hands back to abrirdmb.
struct GlobalViewChoice {
    bool chosen = false;    // false: nothing handed back, the file dialog follows
    QString directory;      // the path up to its last separator
    QString file;           // the name behind it
};

// True when Gesamtsatz is open and has rows.
bool hasGlobalViewRows(Merkkartelle& app);

// Step 4 of abrirdmb: when Gesamtsatz has rows, shows malaglobalview modally and returns
// the path the user opened there, split at the last separator; otherwise (no rows, or the
// form closed without a choice) returns chosen = false.
GlobalViewChoice malaglobalviewZeigen(Merkkartelle& app);

// Fills malaglobalview.Schnelleauswahlliste from Gesamtsatz (SSCommand1 "Todos").
void globalViewListeFuellen(Merkkartelle& app);

// The two buttons of the main mask that keep the table: Command9 "new" enters the current
// database (Arbeitsverzeichnis + separator + Datenbankdatei) at the end of the table, once;
// Command10 "edit" stamps Datafinal/Horafinal on the row of the current path.
void globalViewEintragen(Merkkartelle& app);
void globalViewAbschliessen(Merkkartelle& app);

// The handlers of malaglobalview and of Hauptmaske.Command9/Command10.
void registerGlobalViewHandlers(HandlerTable& table);

}  // namespace mk
