#pragma once
// Card copy and paste: the whole of a card into the buffer Kartenpuffer of the main mask, and
// back into a card that is being entered or changed; and the clearing of an open mask.
//
// The buffer, from index 0: feld(0) to (22), Bemerkung, feldbank(0) to (2), the seven type
// boxes, FeldA(1) to (10), feldB(1) to (10), feldnum(0) to (3), prog(1) to (17), tel1 to
// tel4, and last the columns Vorwahl, Partei, Video, Imagem, Som, Campo1, Campo2, CampoM1 of
// the current row. prog(18) to (20) and the running number are not in it.

#include <QString>

namespace mk {

struct Merkkartelle;

// Index in Kartenpuffer of the first of the eight columns read from the row.
constexpr int kPufferSpaltenAnfang = 79;

// menucopy: fills Kartenpuffer from the mask and the current row; nothing is written.
void menucopy_Click(Merkkartelle& app);
// Menucolar: in an edit state only, Kartenpuffer back into the mask and the open buffer.
void Menucolar_Click(Merkkartelle& app);
// menuapagar: in an edit state only, the mask cleared; the record buffer stays open.
void menuapagar_Click(Merkkartelle& app);

}  // namespace mk
