#pragma once
// The database session: the start routine, the load step of Hauptmaske, opening another
// database (abrirdmb), closing it (fechardb), the orderly end (SSCommand1), the end by the
// window's frame, and the count of sessions in session.txt.

#include <QString>

namespace mk {

struct Merkkartelle;

// MERKKARTELLE.INI, section Databases.
inline const QString kIniSection = QStringLiteral("Databases");
inline const QString kIniFile = QStringLiteral("MERKKARTELLE.INI");
inline const QString kTelefonDatei = QStringLiteral("Telephone.mdb");
inline const QString kTelefonTabelle = QStringLiteral("Telephone");
inline const QString kSessionDatei = QStringLiteral("session.txt");

// A key of section Databases, or the default.
QString INILesen(const QString& key, const QString& defaultValue);
void INISchreiben(const QString& key, const QString& value);

// The start routine, as the desktop program and the headless driver call it: lays out the
// application home on a first start, reads the INI file (falling back to the program's own
// database when the named one is missing or its folder is invalid), opens the global view,
// the card database twice and the call log, shows the splash and then Hauptmaske, whose
// load step does the rest. Returns when Hauptmaske is shown.
void Start(Merkkartelle& app);

// The load step of Hauptmaske: locale keys of win.ini, merkkartelle.cfg, the forms loaded
// hidden, the settings with the saved order and the first card, the caption, the card of
// the last session, standart.den.
void Hauptmaske_Load(Merkkartelle& app);

// The caption of Hauptmaske: drive letter, the rest of the directory, file and table, each
// parted by "  -  "; a directory without a drive letter is used whole.
QString HauptmaskeTitel(const Merkkartelle& app);

// The current drive and directory set to Arbeitsverzeichnis, as before every file that lives
// beside the database; each step under ignored errors, so a folder that is gone changes
// nothing.
void ArbeitsverzeichnisSetzen(Merkkartelle& app);

// Opens Kartendatenbank/Kartensatz and Zweitdatenbank/Zweitsatz on
// Arbeitsverzeichnis + Datenbankdatei: exclusive and read-only when nurLesen, shared for
// writing otherwise; each step under ignored errors.
void KartensitzungOeffnen(Merkkartelle& app, bool nurLesen);
// Closes Kartensatz, Kartendatenbank, Zweitsatz, Zweitdatenbank, each under ignored errors.
void KartensitzungSchliessen(Merkkartelle& app);

// session.txt in Arbeitsverzeichnis: the number of sessions (0 without a file), and the
// count of one more session written back.
long SitzungenLesen(Merkkartelle& app);
void SitzungZaehlen(Merkkartelle& app);

// The first step of every way out: with a card open for entry or change, the question
// whether to give it up and leave; on yes the entry or change is cancelled. False when the
// user stays.
bool OffeneBearbeitungBeenden(Merkkartelle& app);

// Menu items and buttons.
void abrirdmb_Click(Merkkartelle& app);
void fechardb_Click(Merkkartelle& app);
void SSCommand1_Click(Merkkartelle& app);
// The main window closed by its frame: the session closed and counted, no settings saved.
void Hauptmaske_Unload(Merkkartelle& app);

}  // namespace mk
