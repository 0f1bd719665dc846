#include "card/card_cursor.h"

#include "card/app_state.h"
#include "card/card_record.h"
#include "settings/form_places.h"
#include "card/edit_clipboard.h"
#include "card/mask_transfer.h"
#include "card/notice.h"
#include "platform/store.h"
#include "platform/text_files.h"
#include "settings/settings_file.h"

namespace mk {

namespace {

constexpr int kObjectNotSet = 91;  // "Object variable not set": a cursor that was never opened

// The colours of the position display: browsing in dark blue on the label's own ground,
// a new card and a change in the colours of their states.
constexpr long kPositionBlue = rgb(0, 0, 96);
const long kLabelGround = Label{}.BackColor;
constexpr long kEntryFore = colour::White;
constexpr long kEntryBack = rgb(0, 128, 0);
constexpr long kChangeFore = colour::White;
constexpr long kChangeBack = rgb(192, 0, 0);

constexpr int kNoticeInterval = 2000;

// The running number of the current row, "" when there is none.
QString aktuelleNummer(Merkkartelle& app)
{
    QString nummer;
    underIgnoredErrors([&] { nummer = kartensatz(app).Fields(QStringLiteral("Laufendenummer")).text(); });
    return nummer;
}

bool absteigend(const Merkkartelle& app) { return app.Form3.AZCHECK.Value; }

QString richtungText(bool descending) { return descending ? QStringLiteral("Z - A") : QStringLiteral("A - Z"); }

// The filter of an active selection. The selection form decides between its list of query
// texts and Selektionsfilter; Selektionsfilter is the one the system keeps.
QString selektionsfilterText(const Merkkartelle& app) { return app.Selektionsfilter; }

enum class Zug { Naechster, Voriger, Letzter, Erster };

// The pattern all four move buttons share: the button off while it works, the history
// switched on again, the move with its edge, dataold kept when the card changed, and the
// card into the mask.
void bewegen(Merkkartelle& app, Button& button, Zug zug)
{
    if (bildschutzSichtbar(app))
        return;
    button.Enabled = false;
    app.Hauptmaske.Label9.Caption = kReplayOn;
    const QString verlassen = app.Hauptmaske.LaufendeNummer.Caption;
    bool gewechselt = false;
    switch (zug) {
    case Zug::Naechster:
    case Zug::Voriger:
        if (kartenzahl(app) > 0) {
            const bool vor = zug == Zug::Naechster;
            underIgnoredErrors([&] { vor ? kartensatz(app).MoveNext() : kartensatz(app).MovePrevious(); });
            bool amRand = false;
            underIgnoredErrors([&] { amRand = vor ? kartensatz(app).IsEOF() : kartensatz(app).IsBOF(); });
            if (amRand)
                underIgnoredErrors([&] { vor ? kartensatz(app).MoveLast() : kartensatz(app).MoveFirst(); });
            else
                gewechselt = true;
        }
        break;
    case Zug::Letzter:
    case Zug::Erster:
        underIgnoredErrors([&] { zug == Zug::Letzter ? kartensatz(app).MoveLast() : kartensatz(app).MoveFirst(); });
        gewechselt = aktuelleNummer(app) != verlassen;
        break;
    }
    if (gewechselt)
        app.Hauptmaske.dataold.Caption = verlassen;
    DatenInMaske(app);
    button.Enabled = true;
}

const Formplatz kForm3Platz{67, 68};

// Choosing a sort slot, by its option or by AZCHECK with the current slot.
void sortierungWaehlen(Merkkartelle& app, int slot)
{
    auto& maske = app.Hauptmaske;
    maske.currentindex.Caption = QString::number(slot);
    app.Sortierfeld = optionSortColumn(slot);
    app.SortierfeldAlt = app.Sortierfeld;
    ReihenfolgeAnwenden(app);

    maske.SortiertNach.Caption = sortiertNachCaption(slot);

    hideForm(app, app.Form3);
    ShowMessage(app,
                  QStringLiteral("Sortierung der Datenbank:    ") + sortSlotCaption(slot).toUpper() + QStringLiteral("   ")
                      + richtungText(absteigend(app)),
                  colour::Red, kNoticeInterval);

    DatenInMaske(app);
}

}  // namespace

bool neuerEintragOffen(const Merkkartelle& app) { return app.Hauptmaske.NeueAdresse.Caption == kSpeichernCaption; }

bool aenderungOffen(const Merkkartelle& app) { return app.Hauptmaske.AdresseÄndern.Caption == kOKCaption; }

bool bildschutzSichtbar(const Merkkartelle& app) { return app.Hauptmaske.Bildschutz.Visible; }

Recordset& kartensatz(Merkkartelle& app)
{
    if (!app.Kartensatz)
        throw RuntimeError(kObjectNotSet, QStringLiteral("Objektvariable oder With-Blockvariable nicht festgelegt"));
    return *app.Kartensatz;
}

long kartenzahl(Merkkartelle& app)
{
    long anzahl = 0;
    underIgnoredErrors([&] { anzahl = kartensatz(app).RecordCount(); });
    return anzahl;
}

// ---- order ---------------------------------------------------------------------------------

QString optionSortColumn(int slot)
{
    const karte::Sortierplatz* platz = karte::sortierplatz(slot);
    return platz ? karte::text(platz->optionsSpalte) : QString();
}

QString sortiertNachCaption(int slot)
{
    const karte::Sortierplatz* platz = karte::sortierplatz(slot);
    return platz ? karte::text(platz->anzeige) : QString();
}

void ReihenfolgeAnwenden(Merkkartelle& app)
{
    underIgnoredErrors([&] { kartensatz(app).Filter = QString(); });
    const QString sort = QLatin1Char('[') + app.Sortierfeld + QLatin1Char(']');
    underIgnoredErrors([&] { kartensatz(app).Sort = absteigend(app) ? sort + QStringLiteral(" DESC") : sort; });
    if (app.Hauptmaske.Selektiert.Caption == kSelektierungAktiv)
        underIgnoredErrors([&] { kartensatz(app).Filter = selektionsfilterText(app); });
    underIgnoredErrors([&] { app.Kartensatz = kartensatz(app).createDynaset(); });
    underIgnoredErrors([&] { kartensatz(app).MoveFirst(); });
}

void OrdnungBeimStart(Merkkartelle& app)
{
    auto& maske = app.Hauptmaske;
    int slot = int(Val(maske.currentindex.Caption));
    if (slot == 0) {
        slot = 21;
        maske.currentindex.Caption = QStringLiteral("21");
    }
    app.Sortierfeld = loadedSortColumn(slot);
    // The direction does not reach the cursor here: the first order of a session ascends.
    underIgnoredErrors([&] { kartensatz(app).Sort = QLatin1Char('[') + app.Sortierfeld + QLatin1Char(']'); });
    underIgnoredErrors([&] { app.Kartensatz = kartensatz(app).createDynaset(); });
    DatenInMaske(app);
    maske.SortiertNach.Caption = sortiertNachCaption(slot);
}

bool KartensatzNachSpeichern(Merkkartelle& app, const QString& nummer)
{
    const auto frisch = [&](const QString& sort, const QString& filter) {
        underIgnoredErrors([&] {
            if (!app.Kartendatenbank)
                throw RuntimeError(kObjectNotSet, QStringLiteral("Objektvariable nicht festgelegt"));
            RecordsetPtr basis = app.Kartendatenbank->createDynaset(app.Tabellenname);
            basis->Sort = sort;
            basis->Filter = filter;
            app.Kartensatz = basis->createDynaset();
        });
    };
    const QString sortAlt = QLatin1Char('[') + app.SortierfeldAlt + QLatin1Char(']');
    if (!app.Selektionsfilter.isEmpty())
        frisch(sortAlt, selektionsfilterText(app));
    else
        frisch(sortAlt, QString());

    if (app.Hauptmaske.InfoTipo.Caption != kAlleEintraege) {
        app.Typfilter = QStringLiteral("[Typ] like '") + app.Typmaske + QLatin1Char('\'');
        // The type filter goes onto a database opened afresh, in the mode of the session.
        const QString pfad = app.Kartendatenbank ? app.Kartendatenbank->path() : QString();
        const bool nurLesen = app.NurLesen != QStringLiteral("0");
        underIgnoredErrors([&] { app.Kartendatenbank = Database::open(pfad, nurLesen, nurLesen); });
        frisch(QLatin1Char('[') + app.Sortierfeld + QLatin1Char(']'), app.Typfilter);
    }
    return KarteFinden(app, nummer);
}

// ---- finding a card ------------------------------------------------------------------------

QString KarteFindenKriterium(const QString& nummer)
{
    const QString wert = nummer.toUpper() + QLatin1Char(' ');
    return QStringLiteral("LEFT([Laufendenummer], ") + QString::number(wert.size()) + QStringLiteral(") = '") + wert
        + QLatin1Char('\'');
}

bool KarteFinden(Merkkartelle& app, const QString& nummer)
{
    bool gefunden = false;
    underIgnoredErrors([&] {
        Recordset& satz = kartensatz(app);
        satz.FindFirst(KarteFindenKriterium(nummer));
        gefunden = !satz.NoMatch();
    });
    return gefunden;
}

void LetzteKarteZeigen(Merkkartelle& app)
{
    if (kartenzahl(app) == 0)
        return;
    if (KarteFinden(app, app.Hauptmaske.Label36.Caption))
        DatenInMaske(app);
}

// ---- the position display -------------------------------------------------------------------

void PositionAnzeigen(Merkkartelle& app)
{
    // The record set knows where it stands among the live rows: the same answer as a walk
    // of a clone from the first card to the current one, without the walk.
    long position = 0;
    long gesamt = 0;
    underIgnoredErrors([&] {
        Recordset& satz = kartensatz(app);
        gesamt = satz.RecordCount();
        if (gesamt > 0)
            position = satz.AbsolutePosition() + 1;
    });

    Label& anzeige = app.Hauptmaske.Label8;
    anzeige.Caption = QStringLiteral("Eintrag %1 von %2 ").arg(position).arg(gesamt);
    anzeige.ForeColor = kPositionBlue;
    anzeige.BackColor = kLabelGround;
    if (neuerEintragOffen(app)) {
        anzeige.Caption = QStringLiteral("Neuer Eintrag %1 ").arg(gesamt + 1);
        anzeige.ForeColor = kEntryFore;
        anzeige.BackColor = kEntryBack;
    }
    if (aenderungOffen(app)) {
        anzeige.Caption = QStringLiteral("Ändern %1 von %2 ").arg(position).arg(gesamt);
        anzeige.ForeColor = kChangeFore;
        anzeige.BackColor = kChangeBack;
    }
}

// ---- the serial-letter list ---------------------------------------------------------------------

void SerienbriefVeraltet(Merkkartelle& app) { app.mala.Label14.Caption = kListeVeraltet; }

// ---- handlers ---------------------------------------------------------------------------------------

void EinznachHinten_Click(Merkkartelle& app) { bewegen(app, app.Hauptmaske.EinznachHinten, Zug::Naechster); }

void EinzNachvorne_Click(Merkkartelle& app) { bewegen(app, app.Hauptmaske.EinzNachvorne, Zug::Voriger); }

void Command3D15_Click(Merkkartelle& app) { bewegen(app, app.Hauptmaske.Command3D15, Zug::Letzter); }

void Command3D16_Click(Merkkartelle& app) { bewegen(app, app.Hauptmaske.Command3D16, Zug::Erster); }

QString bewegungsHinweis(Merkkartelle& app, const QString& control)
{
    QString anfang;
    if (control == QStringLiteral("EinznachHinten"))
        anfang = QStringLiteral("Zum nächsten Eintrag wechseln - Sortierung: ");
    else if (control == QStringLiteral("EinzNachvorne"))
        anfang = QStringLiteral("Zum vorherigen Eintrag wechseln - Sortierung: ");
    else if (control == QStringLiteral("Command3D15"))
        anfang = QStringLiteral("Zum letzten Eintrag wechseln - Sortierung: ");
    else
        anfang = QStringLiteral("Zum ersten Eintrag wechseln - Sortierung: ");
    // The stored direction: the settings entry of AZCHECK, "True" or "False".
    const bool aufsteigend = app.Einstellungsliste[66] == QStringLiteral("False");
    return anfang + app.Hauptmaske.SortiertNach.Caption + (aufsteigend ? QStringLiteral(" A-Z") : QStringLiteral(" Z-A"));
}

void dataold_Click(Merkkartelle& app)
{
    if (bearbeitungOffen(app) || kartenzahl(app) == 0)
        return;
    auto& maske = app.Hauptmaske;
    maske.Label9.Caption = kReplayOn;
    QByteArray lesezeichen;
    underIgnoredErrors([&] { lesezeichen = kartensatz(app).Bookmark(); });
    if (!KarteFinden(app, maske.dataold.Caption)) {
        underIgnoredErrors([&] { kartensatz(app).setBookmark(lesezeichen); });
        return;
    }
    maske.dataold.Caption = maske.datalabel.Caption;
    DatenInMaske(app);
    PositionAnzeigen(app);
}

void Command3D8_Click(Merkkartelle& app)
{
    auto& liste = app.mala;
    if (liste.Label14.Caption == kListeErst)
        liste.Label14.Caption = kListeVeraltet;
    if (liste.WindowState == vbMinimized)
        liste.WindowState = vbNormal;
    const long nummer = long(Val(app.Hauptmaske.LaufendeNummer.Caption));
    auto& zeilen = liste.Schnelleauswahlliste;
    for (int i = 0; i < zeilen.ListCount(); ++i)
        if (zeilen.ItemData(i) == nummer)
            zeilen.ListIndex = i;
    showForm(app, liste);
}

void Command3D24_Click(Merkkartelle& app)
{
    // In the edit states this button copies text; the order is chosen while browsing.
    if (bearbeitungOffen(app)) {
        Kopieren(app);
        return;
    }
    showForm(app, app.Form3);
}

void Form3_Option3D1_Click(Merkkartelle& app, int slot) { sortierungWaehlen(app, slot); }

void Form3_AZCHECK_Click(Merkkartelle& app)
{
    const bool descending = absteigend(app);
    app.Einstellungsliste[66] = descending ? QStringLiteral("True") : QStringLiteral("False");
    app.Hauptmaske.Label5.Caption = richtungText(app.Einstellungsliste[66] == QStringLiteral("True"));
    sortierungWaehlen(app, int(Val(app.Hauptmaske.currentindex.Caption)));
}

void Form3_Load(Merkkartelle& app)
{
    // The form comes back as it was left: the slot of the order pressed (without its
    // action), the direction and the place from the settings table.
    const int slot = int(Val(app.Hauptmaske.currentindex.Caption));
    if (app.Form3.Option3D1.exists(slot))
        app.forms.chooseOption(app.forms.control(app.Form3.Name, QStringLiteral("Option3D1"), slot));
    app.Form3.AZCHECK.Value = app.Einstellungsliste[66] == QStringLiteral("True");
    FormplatzNehmen(app, app.Form3, kForm3Platz);
}

void Form3_Command3D1_Click(Merkkartelle& app)
{
    // The slot, the direction and the place of the form go into the settings buffer.
    app.Einstellungsliste[65] = app.Hauptmaske.currentindex.Caption;
    app.Einstellungsliste[66] = absteigend(app) ? QStringLiteral("True") : QStringLiteral("False");
    FormplatzMerken(app, app.Form3, kForm3Platz);
    hideForm(app, app.Form3);
}

void Form3_KeyDown(Merkkartelle& app, EventArgs& args)
{
    if (args.KeyCode == vbKeyEscape)
        hideForm(app, app.Form3);
    else if (args.KeyCode == vbKeyF1)
        app.ui.MsgBox(QStringLiteral("ESC = Beenden"), vbOKOnly, QStringLiteral("Funções do teclado"));
}

}  // namespace mk
