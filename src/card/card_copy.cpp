#include "card/card_copy.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/card_editing.h"
#include "card/card_slots.h"
#include "card/mask_transfer.h"
#include "platform/store.h"

#include <vector>

namespace mk {

namespace {

// The slots of the mask in buffer order, up to the columns read from the record.
std::vector<MaskenPlatz> pufferPlaetze(Merkkartelle& app) { return Maskenplaetze(app, karte::kKartenpufferMaske); }

// The slot that writes a column of the record's part when the card is saved.
QString& satzSlot(Merkkartelle& app, std::string_view spalte) { return *Spaltentext(app, *karte::spalteNamens(spalte)); }

}  // namespace

void menucopy_Click(Merkkartelle& app)
{
    if (bearbeitungOffen(app))
        return;
    const std::vector<MaskenPlatz> plaetze = pufferPlaetze(app);
    for (std::size_t i = 0; i < plaetze.size(); ++i)
        app.Kartenpuffer[i] = plaetze[i].lesen();
    // A column that cannot be read (no card, no such column) keeps the buffer's old value.
    std::size_t i = kPufferSpaltenAnfang;
    for (std::string_view spalte : karte::kKartenpufferSatz) {
        QString& ziel = app.Kartenpuffer[i++];
        underIgnoredErrors([&] { ziel = kartensatz(app).Fields(karte::text(spalte)).text(); });
    }
}

void Menucolar_Click(Merkkartelle& app)
{
    if (!bearbeitungOffen(app))
        return;
    const std::vector<MaskenPlatz> plaetze = pufferPlaetze(app);
    for (std::size_t i = 0; i < plaetze.size(); ++i)
        plaetze[i].schreiben(app.Kartenpuffer[i]);
    // The eight columns go into the open record buffer. The save writes them again from
    // their slots, so the slots take them as well and the card arrives whole.
    std::size_t i = kPufferSpaltenAnfang;
    for (std::string_view spalte : karte::kKartenpufferSatz) {
        const QString& wert = app.Kartenpuffer[i++];
        underIgnoredErrors([&] { kartensatz(app).Fields(karte::text(spalte)).setValue(wert); });
        satzSlot(app, spalte) = wert;
    }
    SerienbriefVeraltet(app);
}

void menuapagar_Click(Merkkartelle& app)
{
    if (bearbeitungOffen(app))
        MaskeLeeren(app);
}

}  // namespace mk
