#pragma once
// The search field numbers 1 to 29, one table for the field search, its result list and the
// search over all fields: the column each number tests, the heading word of the result list,
// and what the full search shows for a hit in it.

#include <QString>

namespace mk {

struct Merkkartelle;

constexpr int kSuchfelder = 29;
constexpr int kSuchfeldNummer = 28;  // Laufendenummer: the field button that acts at once

// The bracketed column of field k for the field search: "[Firma]".
QString Suchfeldspalte(int feld);
// The heading word of field k in Suchergebnis: "Firma:", "Name:", "telex:".
QString Suchfeldueberschrift(int feld);
// The column the full search tests for field k: as the field search, but 24 and 25 change
// places.
QString Volltextspalte(int feld);
// The column whose value the full search shows for a hit in field k (16 shows the notes, 24
// and 25 show the other register).
QString Volltextwert(int feld);
// The caption beside field k on the mask, as the user named it.
QString Volltextbeschriftung(const Merkkartelle& app, int feld);

// The prefix condition: "LEFT(" + column + "," + n + ") = '" + text + "'", n written with the
// leading blank of a positive number.
QString Praefixbedingung(const QString& spalte, const QString& text);

// The column name without its brackets.
QString ohneKlammern(const QString& spalte);

}  // namespace mk
