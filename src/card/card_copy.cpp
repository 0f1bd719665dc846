#include "card/card_copy.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/card_editing.h"
#include "card/mask_transfer.h"
#include "platform/store.h"

#include <vector>

namespace mk {

namespace {

// The eight columns at the end of the buffer, and the slot that writes each column when the
// card is saved.
struct PufferSpalte {
    const char* spalte;
    QString& (*slot)(Merkkartelle&);
};

const PufferSpalte kSpalten[] = {
    {"Vorwahl", [](Merkkartelle& a) -> QString& { return a.Hauptmaske.Ramal.Text; }},
    {"Partei", [](Merkkartelle& a) -> QString& { return a.Hauptmaske.Partido.Text; }},
    {"Video", [](Merkkartelle& a) -> QString& { return a.Hauptmaske.Text10.Text; }},
    {"Imagem", [](Merkkartelle& a) -> QString& { return a.Hauptmaske.Text11.Text; }},
    {"Som", [](Merkkartelle& a) -> QString& { return a.Hauptmaske.Text9.Text; }},
    {"Campo1", [](Merkkartelle& a) -> QString& { return a.Hauptmaske.Text12.Text; }},
    {"Campo2", [](Merkkartelle& a) -> QString& { return a.Hauptmaske.Text13.Text; }},
    {"CampoM1", [](Merkkartelle& a) -> QString& { return a.Hauptmaske.Text14.Text; }},
};

MaskenPlatz platz(QString& text) { return MaskenPlatz{&text, nullptr}; }

// The slots of the mask in buffer order, up to the eight columns.
std::vector<MaskenPlatz> pufferPlaetze(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    std::vector<MaskenPlatz> p;
    p.reserve(kPufferSpaltenAnfang);
    for (int i = 0; i <= 22; ++i)
        p.push_back(platz(m.feld[i].Text));
    p.push_back(platz(m.Bemerkung.Text));
    for (int i = 0; i <= 2; ++i)
        p.push_back(platz(m.feldbank[i].Text));
    for (int i = 0; i <= 6; ++i)
        p.push_back(MaskenPlatz{nullptr, &m.Typenliste[i]});
    for (int i = 1; i <= 10; ++i)
        p.push_back(platz(app.Aform.FeldA[i].Text));
    for (int i = 1; i <= 10; ++i)
        p.push_back(platz(app.Aform.feldB[i].Text));
    for (int i = 0; i <= 3; ++i)
        p.push_back(platz(m.feldnum[i].Text));
    for (int i = 1; i <= 17; ++i)
        p.push_back(platz(m.prog[i].Text));
    for (TextBox* tel : {&m.tel1, &m.tel2, &m.tel3, &m.tel4})
        p.push_back(platz(tel->Text));
    return p;
}

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
    for (const PufferSpalte& s : kSpalten) {
        QString& ziel = app.Kartenpuffer[i++];
        underIgnoredErrors([&] { ziel = kartensatz(app).Fields(QString::fromLatin1(s.spalte)).text(); });
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
    for (const PufferSpalte& s : kSpalten) {
        const QString& wert = app.Kartenpuffer[i++];
        underIgnoredErrors([&] { kartensatz(app).Fields(QString::fromLatin1(s.spalte)).setValue(wert); });
        s.slot(app) = wert;
    }
    SerienbriefVeraltet(app);
}

void menuapagar_Click(Merkkartelle& app)
{
    if (bearbeitungOffen(app))
        MaskeLeeren(app);
}

}  // namespace mk
