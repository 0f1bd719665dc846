#include "card/card_slots.h"

#include "card/app_state.h"
#include "platform/text_files.h"

namespace mk {

QString MaskenPlatz::lesen() const { return text ? *text : QString::number(box->Value); }

void MaskenPlatz::schreiben(const QString& wert) const
{
    if (text)
        *text = wert;
    else
        box->Value = int(Val(wert));
}

QString* Spaltentext(Merkkartelle& app, const karte::Spalte& spalte)
{
    auto& m = app.Hauptmaske;
    const int i = spalte.index;
    using karte::Ort;
    switch (spalte.ort) {
    case Ort::feld: return &m.feld[i].Text;
    case Ort::Bemerkung: return &m.Bemerkung.Text;
    case Ort::FeldA: return &app.Aform.FeldA[i].Text;
    case Ort::feldB: return &app.Aform.feldB[i].Text;
    case Ort::feldnum: return &m.feldnum[i].Text;
    case Ort::prog: return &m.prog[i].Text;
    case Ort::Datum: return &m.Datum.Caption;
    case Ort::Zeit: return &m.Zeit.Caption;
    case Ort::recdate: return &m.recdate.Caption;
    case Ort::rectime: return &m.rectime.Caption;
    case Ort::Partido: return &m.Partido.Text;
    case Ort::Ramal: return &m.Ramal.Text;
    case Ort::tel: {
        TextBox* tel[] = {&m.tel1, &m.tel2, &m.tel3, &m.tel4};
        return &tel[i - 1]->Text;
    }
    case Ort::feldbank: return &m.feldbank[i].Text;
    case Ort::Text: {
        TextBox* texte[] = {&m.Text9, &m.Text10, &m.Text11, &m.Text12, &m.Text13, &m.Text14};
        return i == 15 ? &m.Text15.Text : &texte[i - 9]->Text;
    }
    case Ort::LaufendeNummer: return &m.LaufendeNummer.Caption;
    case Ort::Typenliste:
    case Ort::keiner: return nullptr;
    }
    return nullptr;
}

std::vector<MaskenPlatz> Maskenplaetze(Merkkartelle& app, std::span<const std::string_view> spalten)
{
    std::vector<MaskenPlatz> plaetze;
    plaetze.reserve(spalten.size() + 6);
    for (std::string_view name : spalten) {
        const karte::Spalte* spalte = karte::spalteNamens(name);
        if (spalte && spalte->art == karte::Art::Typ) {
            for (auto& [i, box] : app.Hauptmaske.Typenliste)
                plaetze.push_back(MaskenPlatz{nullptr, &box});
        } else if (QString* text = spalte ? Spaltentext(app, *spalte) : nullptr) {
            plaetze.push_back(MaskenPlatz{text, nullptr});
        }
    }
    return plaetze;
}

}  // namespace mk
