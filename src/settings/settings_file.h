#pragma once
// The settings file merkkartelle.cfg: 196 positional records in the directory of the open
// database, read into Einstellungsliste, applied to the forms and written back from the
// live controls. The controls of config are the settings store of the running system; the
// file is their image on disk.

#include <QString>
#include <functional>
#include <vector>

namespace mk {

struct Merkkartelle;
class HandlerTable;
class WriteValue;

constexpr int kSettingsRecords = 196;
inline const QString kSettingsFileName = QStringLiteral("merkkartelle.cfg");

// Reads records 1 to 196 of the file into Einstellungsliste(1..196), each under ignored
// errors: a missing file leaves the table as it was (empty in a fresh run, so the controls
// keep their design values), a short file leaves the records behind its end as they were.
// Without a file name: merkkartelle.cfg in Arbeitsverzeichnis (the current directory is set
// there first, as for every companion file).
void EinstellungenEinlesen(Merkkartelle& app);
void EinstellungenEinlesen(Merkkartelle& app, const QString& file);

// The 196 values of the file, in record order, read from the live controls (forms that
// were not yet loaded are loaded first) and from Einstellungsliste for the records that
// are carried along.
std::vector<WriteValue> Einstellungsdatensaetze(Merkkartelle& app);

// Writes the 196 records to the file, replacing it. Raises RuntimeError when the file
// cannot be opened; callers run it under ignored errors. Without a file name:
// merkkartelle.cfg in Arbeitsverzeichnis (the current directory is set there first).
// The callers do what comes before: the end of the system first copies Form5.Text3/Text2
// into entries 62/63 and the current number into Hauptmaske.Label36.
void EinstellungenSchreiben(Merkkartelle& app);
void EinstellungenSchreiben(Merkkartelle& app, const QString& file);

// Applies the table to the forms in the order of the settings load; does not read the
// file. Progress goes to AboutBox (Label5 width, Label6 caption) with the captions of a
// load during the session ("Laden von persönlichen Einstellungen" …). Leaves Text20 and
// Text21 alone and does not touch the card order.
void EinstellungenLaden(Merkkartelle& app);

// The start-up copy of the same distribution, with the start's differences: progress with
// the captions "Persönliche Einstellungen werden geladen..." … "Alle Einstellungen wurden
// geladen." (widths 2000 to 6500); records 79 and 80 applied; DIALER not unloaded;
// Bemerkung and prog(1..20) coloured and given fonts; the colour guard also whitens
// Bemerkung. At the texts step (width 4000), after currentindex, Form3's option, AZCHECK
// and Label5 are set from records 65 and 66, ordnungWiederherstellen is called: the card
// store restores the order from currentindex (loadedSortColumn), builds the cursor and
// shows the first card. It does not show malasp and does not read standart.den: the
// start-up routine does both after it.
void EinstellungenBeimStart(Merkkartelle& app, const std::function<void()>& ordnungWiederherstellen);

// The sort column that loading the settings sets for a sort slot (record 65): 1 Schluessel …
// 21 Laufendenummer … 25 Telex; "" for a slot that names none (18, 19, out of range).
QString loadedSortColumn(int slot);

// The handlers of config (buttons, colour swatch, check boxes, keys, Text18) and of the
// naming double clicks on Hauptmaske, with the menu entries menuconfig, abrirdenominacao
// and salvarden.
void registerSettingsHandlers(HandlerTable& table);

}  // namespace mk
