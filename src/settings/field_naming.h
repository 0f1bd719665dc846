#pragma once
// Field naming: the captions of Hauptmaske.beschreibung(0..24) kept in a .den file of 25
// quoted lines (standart.den in Arbeitsverzeichnis by default), and the renaming of a label
// by a double click. The names of beschreibungnum go into the settings file instead.

#include <QString>

namespace mk {

struct Merkkartelle;

inline const QString kStandardNamingFile = QStringLiteral("standart.den");

// Which labels are reset to their design caption after a .den file is read.
enum class NamingReset {
    AtStart,    // 0..2, 4..15: the start-up also resets Geburtstag (13)
    AfterLoad,  // 0..2, 4..12, 14, 15: a load through the menu or after abrirdmb
};

// Reads a .den file into Feldbenennung and the captions of beschreibung(0..24), each value
// under ignored errors (a missing file leaves the captions, a failed value keeps the
// previous Feldbenennung entry), then writes the reset captions over the fixed labels.
void FeldbenennungEinlesen(Merkkartelle& app, const QString& file, NamingReset reset);
// The same on standart.den in Arbeitsverzeichnis: the start-up and abrirdmb call these.
void StandardBenennungEinlesen(Merkkartelle& app, NamingReset reset);

// Writes the 25 captions of beschreibung as quoted lines. Raises RuntimeError when the file
// cannot be opened; callers run it under ignored errors.
void FeldbenennungSchreiben(Merkkartelle& app, const QString& file);
// The same on standart.den in Arbeitsverzeichnis: the end of the system and abrirdmb.
void StandardBenennungSchreiben(Merkkartelle& app);

// Every beschreibung(i) back to its design caption (abrirdmb, when the new directory has
// no standart.den).
void BenennungenZuruecksetzen(Merkkartelle& app);

// Whether the user may rename beschreibung(index) by a double click.
bool isNameableLabel(int index);

// The handlers (registered by registerSettingsHandlers).
void beschreibung_DblClick(Merkkartelle& app, int index);
void beschreibungnum_DblClick(Merkkartelle& app, int index);
void beschreibung_MouseMove(Merkkartelle& app, int index);
void abrirdenominacao_Click(Merkkartelle& app);
void salvarden_Click(Merkkartelle& app);

}  // namespace mk
