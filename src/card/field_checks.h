#pragma once
// What the typing slots of the main mask do on their own: each change is checked against
// the size of the slot's column (a notice for two seconds, then the text is cut), the
// birthday takes an input mask, a focused slot shows its label in the highlight colour of the
// settings, and while a card is open the hint offers the slot's pick list.

#include <QString>

namespace mk {

struct Merkkartelle;
class HandlerTable;

// The families of typing slots that check their length, each with its own wording.
enum class Schreibfeld { feld, feldbank, feldnum, Partido, prog, Bemerkung };

// The column behind a slot: feld(i) by the field catalogue, feldbank(0..2) BankLeitZahl,
// Kontonummer, Bank, feldnum(0..3) C1 to C4, Partido Partei, prog(i) PROG<i>, Bemerkung.
QString SchreibfeldSpalte(Schreibfeld art, int index);
// Field.Size of that column in Kartensatz; 0 for long text, or when it cannot be read.
int Feldgroesse(Merkkartelle& app, Schreibfeld art, int index);
// The notice of a text too long for its column, in the slot family's wording.
QString Laengenhinweis(Merkkartelle& app, Schreibfeld art, int index, int groesse);
// The check of a change: a text longer than the column shows the notice in red for 2000 ms,
// then is cut to the size with the caret behind it. True when it was cut.
bool LaengePruefen(Merkkartelle& app, Schreibfeld art, int index);

// The input mask of the birthday feld(13), on the text as it stands after a change: the
// new text and the caret (SelStart) where the mask moved it. trenner is the date separator
// of the locale (Label2). geaendert is false when the text passes as typed.
struct Maskenergebnis {
    QString text;
    int caret = 0;
    bool geaendert = false;
};
Maskenergebnis Geburtstagsmaske(const QString& text, const QString& trenner);

// The hint of a typing slot while a card is open, "Feld: " + label + " Doppelklick für
// Auswahlbox"; "" in browse state or for a control that is no such slot.
QString SchreibfeldHinweis(Merkkartelle& app, const QString& control, int index);

// Change, focus and double click of the typing slots.
void feld_Change(Merkkartelle& app, int index);
void SchreibfeldChange(Merkkartelle& app, Schreibfeld art, int index);
void SchreibfeldGotFocus(Merkkartelle& app, Schreibfeld art, int index);
void SchreibfeldLostFocus(Merkkartelle& app, Schreibfeld art, int index);
void feld_DblClick(Merkkartelle& app, int index);

void registerFieldCheckHandlers(HandlerTable& table);

}  // namespace mk
