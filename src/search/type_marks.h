#pragma once
// The seven type marks of a card: the mask that asks for one mark, the conditions on the
// column Typ, the one-click filter of the main mask (Selector, InfoTipo), its display, the
// hints, and the form TypenlisteBenutzerdefiniert that chooses several marks for the
// serial-letter list.
//
// Reading and writing the marks of a card (the seven boxes Typenliste against the column
// Typ) is part of the mask transfer: TypInMaske and TypAusMaske in card/mask_transfer.h.

#include <QString>
#include <array>

namespace mk {

struct Merkkartelle;
struct EventArgs;
class HandlerTable;

constexpr int kTypen = 7;
using Typauswahl = std::array<bool, kTypen>;  // index 0 is type 1

inline const QString kAlleTypen = QStringLiteral("???????");  // every mark ignored

// Seven "?" with "1" at position typ (1 to 7): the mask that asks for that one mark.
QString Typmaske(int typ);
// Seven "0" with "1" at position typ: the fixed form of a type, which the filter display
// names as well as the mask.
QString festeTypform(int typ);
// "[Typ] like '" + mask + "'".
QString Typbedingung(const QString& maske);
// One condition per chosen type, joined by " OR ": cards bearing any of the marks. Empty
// when none is chosen.
QString TypbedingungEinzeln(const Typauswahl& gewaehlt);
// One condition whose mask has "1" for each chosen type and "?" elsewhere: cards bearing all
// of the marks. With none chosen it is the all-"?" condition.
QString TypbedingungMulti(const Typauswahl& gewaehlt);

// Refreshes InfoTipo from Typmaske: the caption of the type whose mask it is, in red, or
// "Alle Einträge" in black when no type filter is in force. Marks the serial-letter list as
// stale (mala.Label14 "NOT UPDATED"). Called after every change of the filter and of the
// card set.
void TypenfilterAnzeigen(Merkkartelle& app);

// Puts Typfilter on a fresh cursor: the database opened afresh, a dynaset of the card table,
// Filter and the ascending sort by Sortierfeld on it, and the dynaset opened from that one
// made Kartensatz. A sort the store refuses leaves the cursor of the whole table.
void TypfilterEinsetzen(Merkkartelle& app);

// --- the main mask ---------------------------------------------------------------------------
// Filter on type index+1; nothing at all while Bildschutz shows or a card is being edited.
void Selector_Click(Merkkartelle& app, int index);
// Releases the type filter; the field selection stays as it is.
void InfoTipo_Click(Merkkartelle& app);

// The hints in the status line Panel3D3.
QString TypenlisteHinweis(const Merkkartelle& app, int index);
QString SelectorHinweis(int index);
QString InfoTipoHinweis(const Merkkartelle& app);
void Typenliste_MouseMove(Merkkartelle& app, int index);
void Selector_MouseMove(Merkkartelle& app, int index);
void InfoTipo_MouseMove(Merkkartelle& app);
// A type box shows its caption in the focus colour of the settings while it has the focus.
void Typenliste_GotFocus(Merkkartelle& app, int index);
void Typenliste_LostFocus(Merkkartelle& app, int index);

// --- the choice of several types (TypenlisteBenutzerdefiniert) ----------------------------------
void TypenlisteBenutzerdefiniert_Load(Merkkartelle& app);
// Esc closes the form; F1 shows its key.
void TypenlisteBenutzerdefiniert_KeyDown(Merkkartelle& app, EventArgs& args);
// The condition of the checked boxes goes to Selektionsfilter, and the form closes.
void TypenlisteBenutzerdefiniert_ok_Click(Merkkartelle& app);

// The filter text of the type chosen in mala.ComboTypenliste, for the list preparation while
// no field selection is in force: index 0 to 6 one type, 7 the all-"?" condition (which a
// Null Typ does not meet), 8 the choice of several types on TypenlisteBenutzerdefiniert,
// shown modally. Anything else gives the empty text.
QString TypwahlFilter(Merkkartelle& app);

// The handlers of the type marks, the type filter and the naming of the types.
void registerTypeHandlers(HandlerTable& table);

}  // namespace mk
