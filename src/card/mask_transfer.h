#pragma once
// The transfer between the current row of Kartensatz and the mask: the slots of Hauptmaske,
// the connections on Aform, the dial data copied into DIALER and the card's picture.

#include <QString>

namespace mk {

struct Merkkartelle;
class Recordset;
struct Image;
struct Control;

// Card into mask, with everything the shown card drives (buttons, picture, position
// display, DIALER). Each column under ignored errors, so a column the table lacks leaves
// its slot as it was; Null reads as the empty text. With no card: MaskeLeeren and the
// position display only.
void DatenInMaske(Merkkartelle& app);
// Only the card's values into their slots and type boxes, without what the shown card
// drives: for walks that carry every card through the mask and show the last one at the end.
void KarteInMaskenfelder(Merkkartelle& app);

// Mask into the record buffer of Kartensatz; the caller holds AddNew or Edit and calls
// Update afterwards. Every column by name, an empty slot as the empty text; Laufendenummer
// is never written. A failure outside the guarded columns stops the writing with the box
// "Speicherung abgebrochen - Strukturfehler " and leaves the buffer as written so far.
void MaskeInDaten(Merkkartelle& app);
// The same writing into the record buffer of another cursor (the card transfer's target).
void MaskeInDatenMulti(Merkkartelle& app, Recordset& satz);

// Clears every slot of the mask and the connections; dataold and datalabel stay.
void MaskeLeeren(Merkkartelle& app);

// The columns the label and list printing read of one card, Null as the empty text.
struct Druckpuffer {
    QString Schluessel, Titel, Firma, Nachname, Vorname, Strasse, Staat, Stadteil, PLZ, Stadt;
    QString Telefon, Land, Celphone, Bemerkung;
};
// Reads the current row of Kartensatz into puffer; with no card the puffer stays as it was.
void DatenInDruckpuffer(Merkkartelle& app, Druckpuffer& puffer);

// The Typ text of the seven type boxes: "1" for a ticked box, "0" otherwise.
QString TypAusMaske(const Merkkartelle& app);
// Ticks the seven type boxes from a Typ text; a missing place reads as not ticked.
void TypInMaske(Merkkartelle& app, const QString& typ);

// The copy of the card's dial data into DIALER (number, name, running number, the seven
// numbers of the card).
void KarteInDialer(Merkkartelle& app);

// The picture sizing routine: the picture keeps its proportions inside its frame less a
// margin, in the middle of it (its place counted from the frame's corner). A picture of no
// known size fills the frame less the margin.
void BildEinpassen(Image& bild, const Control& rahmen);

// The card's picture from feld(16) into Image1, its size in Label16, fitted to Panel3D2.
void KartenbildZeigen(Merkkartelle& app);

}  // namespace mk
