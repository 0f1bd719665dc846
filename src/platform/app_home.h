#pragma once
// The application home (App.Path) and the folder that stands in for the Windows directory.
// Both are read from the environment on every call, so that a test can point them at a
// temporary folder with setenv.

#include <QString>

namespace mk {

// App.Path: $MERKKARTELLE_HOME when set, else $XDG_DATA_HOME/merkkartelle
// (~/.local/share/merkkartelle by default).
QString applicationHome();

// The stand-in for the Windows directory, home of MERKKARTELLE.INI and win.ini:
// $MERKKARTELLE_HOME when set, else $XDG_CONFIG_HOME/merkkartelle (~/.config/merkkartelle).
QString windowsDirectory();

QString iniFilePath();     // MERKKARTELLE.INI
QString winIniPath();      // win.ini

// The files a first start lays out in the application home.
inline constexpr const char* TemplateDatabaseName = "EMPTYMDB.KDB";
inline constexpr const char* GlobalViewName = "GlobalView.mdb";
inline constexpr const char* DefaultDatabaseName = "merkkartelle.mdb";
inline constexpr const char* TelephoneName = "Telephone.mdb";

// True when the home lacks the template database: the mark of a first start.
bool applicationHomeNeedsLayout();

// Creates the home and each of the four files that is missing, from the built-in schemas.
// An existing file is never overwritten.
void layoutApplicationHome();

// layoutApplicationHome() on a first start only; what a later start finds missing stays
// missing, as the start routine expects.
void layoutApplicationHomeIfNeeded();

}  // namespace mk
