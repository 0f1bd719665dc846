#include "card/field_checks.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/card_editing.h"
#include "card/card_record.h"
#include "card/notice.h"
#include "platform/store.h"
#include "platform/text_files.h"
#include "settings/pick_lists.h"

#include <algorithm>

namespace mk {

namespace {

constexpr int kGeburtstag = 13;
constexpr int kHinweisDauer = 2000;  // ms the length notice stays

// One typing slot with what belongs to it. The neighbours are slots and labels of the same
// kind that do not have the focus: their colours are the normal ones of the moment.
struct Platz {
    QString* text = nullptr;
    TextSelection* sel = nullptr;
    Control* box = nullptr;
    Label* label = nullptr;
    const Control* nachbar = nullptr;
    const Label* labelNachbar = nullptr;
};

template <class T>
const T* nachbarVon(const ControlArray<T>& array, int index)
{
    for (const auto& [i, element] : array)
        if (i != index)
            return &element;
    return nullptr;
}

template <class Box>
void textVon(Platz& p, Box& box)
{
    p.text = &box.Text;
    p.sel = &box;
    p.box = &box;
}

Platz platz(Merkkartelle& app, Schreibfeld art, int index)
{
    auto& m = app.Hauptmaske;
    Platz p;
    switch (art) {
    case Schreibfeld::feld:
        textVon(p, m.feld[index]);
        p.nachbar = nachbarVon(m.feld, index);
        p.label = &m.beschreibung[karte::feldLabel(index)];
        p.labelNachbar = nachbarVon(m.beschreibung, karte::feldLabel(index));
        break;
    case Schreibfeld::feldbank:
        textVon(p, m.feldbank[index]);
        p.nachbar = nachbarVon(m.feldbank, index);
        p.label = &m.beschreibungbank[index];
        p.labelNachbar = nachbarVon(m.beschreibungbank, index);
        break;
    case Schreibfeld::feldnum:
        textVon(p, m.feldnum[index]);
        p.nachbar = nachbarVon(m.feldnum, index);
        p.label = &m.beschreibungnum[index];
        p.labelNachbar = nachbarVon(m.beschreibungnum, index);
        break;
    case Schreibfeld::Partido:
        textVon(p, m.Partido);
        p.nachbar = &m.Ramal;  // the settings colour both alike
        p.label = &m.beschreibung[24];
        p.labelNachbar = &m.beschreibung[0];
        break;
    case Schreibfeld::prog:
        textVon(p, m.prog[index]);
        p.nachbar = nachbarVon(m.prog, index);
        break;
    case Schreibfeld::Bemerkung:
        textVon(p, m.Bemerkung);
        p.label = &m.beschreibung[16];
        p.labelNachbar = &m.beschreibung[0];
        break;
    }
    return p;
}

QString groesseText(int groesse) { return QString::number(groesse); }

// The path of a typing slot as the event table names it: "Hauptmaske.feld(4)".
QString schreibfeldPfad(Schreibfeld art, int index)
{
    static const char* const namen[] = {"feld", "feldbank", "feldnum", "Partido", "prog", "Bemerkung"};
    const QString name = QStringLiteral("Hauptmaske.") + QString::fromLatin1(namen[int(art)]);
    return index < 0 ? name : name + QStringLiteral("(%1)").arg(index);
}

}  // namespace

QString SchreibfeldSpalte(Schreibfeld art, int index)
{
    using karte::Ort;
    static constexpr Ort orte[] = {Ort::feld, Ort::feldbank, Ort::feldnum, Ort::Partido, Ort::prog, Ort::Bemerkung};
    const bool einzeln = art == Schreibfeld::Partido || art == Schreibfeld::Bemerkung;
    const karte::Spalte* spalte = karte::spalteAn(orte[int(art)], einzeln ? 0 : index);
    return spalte ? karte::text(spalte->name) : QString();
}

int Feldgroesse(Merkkartelle& app, Schreibfeld art, int index)
{
    const QString spalte = SchreibfeldSpalte(art, index);
    if (spalte.isEmpty())
        return 0;
    int groesse = 0;
    underIgnoredErrors([&] { groesse = kartensatz(app).Fields(spalte).Size(); });
    return groesse;
}

QString Laengenhinweis(Merkkartelle& app, Schreibfeld art, int index, int groesse)
{
    const Platz p = platz(app, art, index);
    switch (art) {
    case Schreibfeld::feldnum:
        return QStringLiteral("O campo ") + p.label->Caption + QStringLiteral(" suporta somente ") + groesseText(groesse)
               + QStringLiteral(" caractéres");
    case Schreibfeld::prog:
        return QStringLiteral("Dieses Feld verfügt über maximal ") + groesseText(groesse) + QStringLiteral(" Schriftzeichen");
    default:
        return QStringLiteral("Das Feld ") + p.label->Caption + QStringLiteral(" verfügt nur über ") + groesseText(groesse)
               + QStringLiteral(" Schriftzeichen");
    }
}

bool LaengePruefen(Merkkartelle& app, Schreibfeld art, int index)
{
    // Long text reports size 0: no limit.
    const int groesse = Feldgroesse(app, art, index);
    if (groesse <= 0 || platz(app, art, index).text->size() <= groesse)
        return false;
    ShowMessage(app, Laengenhinweis(app, art, index, groesse), colour::Red, kHinweisDauer);
    const Platz p = platz(app, art, index);
    p.text->truncate(groesse);
    p.sel->SelStart = int(p.text->size());
    p.sel->SelLength = 0;
    return true;
}

Maskenergebnis Geburtstagsmaske(const QString& text, const QString& trenner)
{
    Maskenergebnis r{text, int(text.size()), false};
    if (trenner.isEmpty())
        return r;
    // A caret beyond the end stands at the end, as the text box put it.
    auto setzen = [&r](const QString& neu, int caret) {
        r.text = neu;
        r.caret = std::min(caret, int(neu.size()));
        r.geaendert = true;
    };
    const int t = int(trenner.size());
    if (r.text.size() < 10) {
        const QString tag = r.text.left(2);
        if (r.text.size() >= 3 && r.text.mid(2, t) != trenner)
            setzen(tag + trenner, 3);
        if (Val(r.text.mid(3, 2)) > 12)
            setzen(tag + trenner, 3);
        const QString monat = r.text.mid(3, 2);
        if (r.text.size() >= 6 && r.text.mid(5, t) != trenner)
            setzen(tag + trenner + monat + trenner, 7);
    }
    if (r.text.size() >= 11)
        setzen(r.text.left(2) + trenner + r.text.mid(3, 2) + trenner + r.text.mid(6, 4), 11);
    return r;
}

QString SchreibfeldHinweis(Merkkartelle& app, const QString& control, int index)
{
    if (!bearbeitungOffen(app))
        return {};
    auto& m = app.Hauptmaske;
    const Label* label = nullptr;
    if (control.compare(QLatin1String("feld"), Qt::CaseInsensitive) == 0 && m.feld.exists(index))
        label = &m.beschreibung[karte::feldLabel(index)];
    else if (control.compare(QLatin1String("feldbank"), Qt::CaseInsensitive) == 0 && m.beschreibungbank.exists(index))
        label = &m.beschreibungbank[index];
    else if (control.compare(QLatin1String("feldnum"), Qt::CaseInsensitive) == 0 && m.beschreibungnum.exists(index))
        label = &m.beschreibungnum[index];
    else if (control.compare(QLatin1String("Partido"), Qt::CaseInsensitive) == 0)
        label = &m.beschreibung[24];
    if (!label)
        return {};
    return QStringLiteral("Feld: ") + label->Caption + QStringLiteral(" Doppelklick für Auswahlbox");
}

void SchreibfeldChange(Merkkartelle& app, Schreibfeld art, int index)
{
    LaengePruefen(app, art, index);
    if (art != Schreibfeld::feld || index != kGeburtstag)
        return;
    TextBox& geburtstag = app.Hauptmaske.feld[kGeburtstag];
    const Maskenergebnis r = Geburtstagsmaske(geburtstag.Text, app.Hauptmaske.Label2.Caption);
    if (!r.geaendert)
        return;
    geburtstag.Text = r.text;
    geburtstag.SelStart = r.caret;
    geburtstag.SelLength = 0;
}

void feld_Change(Merkkartelle& app, int index) { SchreibfeldChange(app, Schreibfeld::feld, index); }

void SchreibfeldGotFocus(Merkkartelle& app, Schreibfeld art, int index)
{
    auto& m = app.Hauptmaske;
    const auto& einstellungen = app.config;
    app.Fokusfeld = schreibfeldPfad(art, index);
    // Label10 tells the cut, copy and paste of the dual buttons which slot they act on.
    if (art == Schreibfeld::feld)
        m.Label10.Caption = QString::number(index);
    // In browse state a slot is not open for typing: the reminder points at "&Bearbeiten".
    if (einstellungen.SSCheck4.checked())
        AktivFarbe(app);
    const Platz p = platz(app, art, index);
    if (bearbeitungOffen(app)) {
        if (p.label)
            p.label->ForeColor = einstellungen.Label34.ForeColor;
        if (einstellungen.Check3D10.checked()) {
            p.box->BackColor = colour::White;
            p.box->ForeColor = colour::Black;
        }
    }
    if (einstellungen.Check3D12.checked()) {
        p.sel->SelStart = int(p.text->size());
        p.sel->SelLength = 0;
    }
    if (einstellungen.SSCheck10.checked()) {
        p.sel->SelStart = 0;
        p.sel->SelLength = int(p.text->size());
    }
}

void SchreibfeldLostFocus(Merkkartelle& app, Schreibfeld art, int index)
{
    const Platz p = platz(app, art, index);
    if (p.label)
        p.label->ForeColor = p.labelNachbar ? p.labelNachbar->ForeColor : app.config.Label34.BackColor;
    if (p.nachbar) {
        p.box->BackColor = p.nachbar->BackColor;
        p.box->ForeColor = p.nachbar->ForeColor;
    }
}

void feld_DblClick(Merkkartelle& app, int index) { AuswahllisteOeffnen(app, index); }

void registerFieldCheckHandlers(HandlerTable& table)
{
    const QString main = QStringLiteral("Hauptmaske");
    struct Familie {
        const char* control;
        Schreibfeld art;
        bool fokus;  // the notes take no focus colours
    };
    static const Familie familien[] = {
        {"feld", Schreibfeld::feld, true},         {"feldbank", Schreibfeld::feldbank, true},
        {"feldnum", Schreibfeld::feldnum, true},   {"Partido", Schreibfeld::Partido, true},
        {"prog", Schreibfeld::prog, true},         {"Bemerkung", Schreibfeld::Bemerkung, false},
    };
    for (const Familie& f : familien) {
        const QString control = QString::fromLatin1(f.control);
        const Schreibfeld art = f.art;
        table.on(main, control, QStringLiteral("Change"),
                 [art](Merkkartelle& app, EventArgs& args) { SchreibfeldChange(app, art, args.Index); });
        table.on(main, control, QStringLiteral("LostFocus"),
                 [art](Merkkartelle& app, EventArgs& args) { SchreibfeldLostFocus(app, art, args.Index); });
        if (f.fokus)
            table.on(main, control, QStringLiteral("GotFocus"),
                     [art](Merkkartelle& app, EventArgs& args) { SchreibfeldGotFocus(app, art, args.Index); });
        else  // no colours, but the notes can still be cut from and pasted into
            table.on(main, control, QStringLiteral("GotFocus"),
                     [art](Merkkartelle& app, EventArgs& args) { app.Fokusfeld = schreibfeldPfad(art, args.Index); });
    }
    table.on(main, QStringLiteral("feld"), QStringLiteral("DblClick"), feld_DblClick);
}

}  // namespace mk
