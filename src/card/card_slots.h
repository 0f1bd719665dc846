#pragma once
// Where the columns of the card record live on the forms: the slot of each column, and the
// positional copies of a card (the card buffer, the file of a deleted card) built from the
// column orders of the card record.

#include "card/card_record.h"

#include <QString>
#include <span>
#include <string_view>
#include <vector>

namespace mk {

struct Merkkartelle;
struct CheckBox;

// One place of the mask as the positional copies of a card see it: a text slot, or a type
// box whose value travels as "1" or "0".
struct MaskenPlatz {
    QString* text = nullptr;
    CheckBox* box = nullptr;
    QString lesen() const;
    void schreiben(const QString& wert) const;
};

// The text of the slot that shows a column: a text box's text, or a stamp label's caption.
// nullptr for the type boxes and for a column without a slot.
QString* Spaltentext(Merkkartelle& app, const karte::Spalte& spalte);

// The places of a column order; "Typ" stands for its seven boxes.
std::vector<MaskenPlatz> Maskenplaetze(Merkkartelle& app, std::span<const std::string_view> spalten);

}  // namespace mk
