#pragma once
// The history "Verlauf": the list of the cards shown since it was last emptied, each card
// once, its list files (.dat) and lastuser.dat, the file of the last session's history in
// the program folder.
//
// A list file holds one card number a line, then "D" in double quotes, then the date and
// time of saving as "MM-DD-YYYY HH:MM:SS" in double quotes; lines end in CR LF. Names are
// not stored: they come from the database when a file is loaded.

#include <QString>
#include <QStringList>
#include <vector>

namespace mk {

struct Merkkartelle;
class HandlerTable;

inline const QString kLetzterVerlauf = QStringLiteral("lastuser.dat");
// The line of a card whose Firma is Null: an empty first column and 24 hyphens.
inline const QString kStrichzeile = QStringLiteral("\t------------------------");
// A list file holds at most this many card numbers.
constexpr int kVerlaufGrenze = 100;

// Records the card on the mask, when Label9 of Hauptmaske says "REPLAY ON" and the option
// "Verlauf speichern" is on; the record-to-mask transfer calls it for every card shown.
// A card already in the list is only selected.
void Verlaufsaufnahme(Merkkartelle& app);

// The numbers of a list file, read as a load reads them: item by item up to the end of the
// file or the "D" marker. More than kVerlaufGrenze numbers (the 101st item before the marker)
// is a read fault: the answer is then empty and ok is false.
struct Verlaufsdatei {
    std::vector<long> nummern;
    bool ok = false;
};
Verlaufsdatei VerlaufsdateiLesen(const QString& pfad);
// Writes the numbers of the list, the marker and the moment of saving.
void VerlaufsdateiSchreiben(Merkkartelle& app, const QString& pfad);

// Adds the cards of a list file to the list; errors end the load quietly, keeping the lines
// added so far. A missing file changes nothing.
void VerlaufLaden(Merkkartelle& app, const QString& pfad);

// lastuser.dat in the program folder, with the list as it stands: at every end of the
// program and when another database is opened. Errors are ignored.
void VerlaufSichern(Merkkartelle& app);

// menuauto: shows replay where the settings put it.
void menuauto_Click(Merkkartelle& app);

void registerHistoryHandlers(HandlerTable& table);

}  // namespace mk
