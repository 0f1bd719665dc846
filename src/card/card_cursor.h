#pragma once
// Order and navigation: the one cursor Kartensatz, its sort and filter, the moves of the
// main mask, finding a card by its running number, the position display, the choice of an
// order on Form3, and the state mark of the serial-letter list.

#include <QString>

namespace mk {

struct Merkkartelle;
class Recordset;
struct EventArgs;

// --- the edit state, as the captions of the two edit buttons say it -----------------------
inline const QString kNeuCaption = QStringLiteral("&Neu");
inline const QString kSpeichernCaption = QStringLiteral("Speichern");
inline const QString kBearbeitenCaption = QStringLiteral("&Bearbeiten");
inline const QString kOKCaption = QStringLiteral("OK");
inline const QString kReplayOn = QStringLiteral("REPLAY ON");
inline const QString kSelektierungAktiv = QStringLiteral("Selektierung aktiv");
inline const QString kAlleEintraege = QStringLiteral("Alle Einträge");

bool neuerEintragOffen(const Merkkartelle& app);  // NeueAdresse says "Speichern"
bool aenderungOffen(const Merkkartelle& app);     // AdresseÄndern says "OK"
inline bool bearbeitungOffen(const Merkkartelle& app) { return neuerEintragOffen(app) || aenderungOffen(app); }
// The screen guard Bildschutz covers the mask: entry and move buttons do nothing.
bool bildschutzSichtbar(const Merkkartelle& app);

// Kartensatz itself. Raises RuntimeError 91 while there is no cursor at all, so that a step
// run under ignored errors fails the way a step on a closed cursor does.
Recordset& kartensatz(Merkkartelle& app);
// RecordCount of Kartensatz; 0 when there is no usable cursor.
long kartenzahl(Merkkartelle& app);

// --- order ----------------------------------------------------------------------------------
// The column that pressing the option of a sort slot on Form3 sets: slot 4 gives
// "Abteilung", which is no column, so the order stays as it was. "" for a slot Form3 lacks.
QString optionSortColumn(int slot);
// The caption SortiertNach takes for a slot: the option's caption, but "Geburtstag" for
// 14 and "Bild" for 25.
QString sortiertNachCaption(int slot);

// Applies Sortierfeld and the direction of Form3.AZCHECK: empty filter, the sort, the
// selection filter while a selection is active, a new cursor, the first card. Each step under
// ignored errors: a sort the store refuses leaves the previous cursor.
void ReihenfolgeAnwenden(Merkkartelle& app);

// The order at start, from the sort slot in currentindex (0 or nothing is 21, the running
// number): Sortierfeld by the column loading the settings gives the slot, the cursor rebuilt
// ascending whatever the direction says, the first card shown, SortiertNach restored.
void OrdnungBeimStart(Merkkartelle& app);

// The cursor after a save: rebuilt from the table with SortierfeldAlt (ascending) and the
// selection filter, or, under a type filter, from a database opened afresh, sorted by
// Sortierfeld; then KarteFinden(nummer). True when the card was found again.
bool KartensatzNachSpeichern(Merkkartelle& app, const QString& nummer);

// --- finding a card ---------------------------------------------------------------------------
// The criterion for a running number: "LEFT([Laufendenummer], 4) = '123 '".
QString KarteFindenKriterium(const QString& nummer);
// FindFirst of that criterion on Kartensatz; true when a card was found (not NoMatch). The
// cursor stays where it was when none was found. Works inside the current filter.
bool KarteFinden(Merkkartelle& app, const QString& nummer);
// The end of the load step: back to the card whose number Label36 kept from the last end.
void LetzteKarteZeigen(Merkkartelle& app);

// --- the position display -----------------------------------------------------------------------
// Label8: "Eintrag n von m ", "Neuer Eintrag m+1 " while a new card is open, "Ändern n von m "
// while a card is changed.
void PositionAnzeigen(Merkkartelle& app);

// --- the serial-letter list ----------------------------------------------------------------------
inline const QString kListeErst = QStringLiteral("FIRST");
inline const QString kListeVeraltet = QStringLiteral("NOT UPDATED");
inline const QString kListeAktuell = QStringLiteral("UPDATED");
// Anything that changed cards (save, delete, restore, paste, filter change) marks the list.
void SerienbriefVeraltet(Merkkartelle& app);

// --- handlers ----------------------------------------------------------------------------------
void EinznachHinten_Click(Merkkartelle& app);
void EinzNachvorne_Click(Merkkartelle& app);
void Command3D15_Click(Merkkartelle& app);
void Command3D16_Click(Merkkartelle& app);
// The hint of a move button in the status line: its direction words and the current order.
QString bewegungsHinweis(Merkkartelle& app, const QString& control);
void dataold_Click(Merkkartelle& app);
void Command3D8_Click(Merkkartelle& app);
void Command3D24_Click(Merkkartelle& app);

void Form3_Load(Merkkartelle& app);
void Form3_Option3D1_Click(Merkkartelle& app, int slot);
void Form3_AZCHECK_Click(Merkkartelle& app);
void Form3_Command3D1_Click(Merkkartelle& app);
// Esc closes Form3; F1 shows its keys.
void Form3_KeyDown(Merkkartelle& app, EventArgs& args);

}  // namespace mk
