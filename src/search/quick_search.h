#pragma once
// The field search: the form Schnellsuchen chooses a field and a text, the prefix condition
// finds the first card whose field begins with it, and the result list Suchergebnis shows
// every such card to take one from.

#include <QString>

namespace mk {

struct Merkkartelle;
struct EventArgs;
class HandlerTable;

inline const QString kZweiundzwanzigLeer = QString(22, QLatin1Char(' '));  // Label9 blanked
constexpr long kSuchfarbe = 196L << 16;  // RGB(0,0,196), the colour of the search notices

// The no-match notice of the field search for field k and a text.
QString NichtGefundenText(int feld, const QString& text);
// "Ergebniss der Suche:  " + TEXT + "...  im Feld  " + COLUMN.
QString SuchergebnisTitel(int feld, const QString& text);

// The click of NachAdresseSuchen on the main mask.
void NachAdresseSuchen_Click(Merkkartelle& app);

// Schnellsuchen.
void Schnellsuchen_Load(Merkkartelle& app);
void Schnellsuchen_Activate(Merkkartelle& app);
void Schnellsuchen_Command1_Click(Merkkartelle& app, int feld);
void Schnellsuchen_abbruch_Click(Merkkartelle& app);
void Schnellsuchen_KeyUp(Merkkartelle& app, EventArgs& args);

// Suchergebnis: the list of the cards that meet Suchkriterium.
void Suchergebnis_Activate(Merkkartelle& app);
void Suchergebnis_Liste_Click(Merkkartelle& app);
void Suchergebnis_ok_Click(Merkkartelle& app);
void Suchergebnis_Command1_Click(Merkkartelle& app);
void Suchergebnis_Check1_Click(Merkkartelle& app);

// Shared with the full search: a value cut to a length from config with its cut mark, the
// list font of the card fields, and the return to the card that was current before a search.
QString Kuerzen(const Merkkartelle& app, const QString& wert, const QString& laenge);
void ZurueckZumSuchbookmark(Merkkartelle& app);
// Finds the card with "[Laufendenummer] LIKE " + number and brings it into the mask; the date
// display keeps the date of the card left when another card is taken.
void GewaehlteKarteZeigen(Merkkartelle& app);

void registerQuickSearchHandlers(HandlerTable& table);

}  // namespace mk
