#include "card/card_editing.h"

#include "card/app_state.h"
#include "card/focus.h"
#include "card/card_copy.h"
#include "card/card_cursor.h"
#include "card/deleted_cards.h"
#include "card/main_window.h"
#include "card/mask_transfer.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/store.h"
#include "platform/text_files.h"

namespace mk {

namespace {

const QString kZeilenumbruch = QStringLiteral("\r\n");
const QString kPresetJetzt = QStringLiteral("Jetzt");
const QString kPresetHeute = QStringLiteral("Heute");
const QString kStandardDatum = QStringLiteral("dd.MM.yyyy");
constexpr int kSndAsync = 1;

// The label colours of the two modes: the settings' label text colour while browsing, a
// blue that stands out on the light and the dark scheme while a card is open for typing.
constexpr long kBearbeitungsFarbe = rgb(0, 0, 192);

// ---- the controls an open card takes away ------------------------------------------------------

// The moves, the menu items that would leave or copy the card, the serial-letter list and
// the bank page: off while a card is open. The paste and the clearing of the mask stay
// reachable, since they act only in the edit states.
void bewegungFreigeben(Merkkartelle& app, bool frei)
{
    auto& m = app.Hauptmaske;
    for (Button* knopf : {&m.Command3D15, &m.Command3D16, &m.EinzNachvorne, &m.EinznachHinten, &m.Command1})
        knopf->Enabled = frei;
    for (MenuItem* eintrag : {&m.menumaladata, &m.menuauto, &m.menusilabas, &m.menucopy})
        eintrag->Enabled = frei;
    app.mala.Schnelleauswahlliste.Enabled = frei;
}

// Deleting, searching and the serial letters: off while a card is open.
void suchenFreigeben(Merkkartelle& app, bool frei)
{
    auto& m = app.Hauptmaske;
    for (Button* knopf : {&m.AdresseLöschen, &m.NachAdresseSuchen, &m.Command5, &m.Command3D8})
        knopf->Enabled = frei;
    m.Text1.Enabled = frei;
}

// Sound, video and linked documents may be chosen for an open card.
void medienFreigeben(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    m.SSCommand4.Enabled = true;
    m.SSCommand6.Enabled = true;
    m.Command3D2.Enabled = true;
}

// The remove buttons of sound and video, where there is something to remove.
void entfernenFreigeben(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    if (!m.Text9.Text.isEmpty())
        m.SSCommand8.Enabled = true;
    if (!m.Text10.Text.isEmpty())
        m.SSCommand9.Enabled = true;
}

// What every end of an edit gives back, saved or cancelled.
void bearbeitungBeenden(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    m.NeueAdresseAbbruch.Visible = false;
    m.AdresseÄndernAbbruch.Visible = false;
    bewegungFreigeben(app, true);
    suchenFreigeben(app, true);
    m.NeueAdresse.Enabled = true;
    m.AdresseÄndern.Enabled = true;
    BildsatzSchalten(app, false);
    // The quick entry belongs to the card that was open.
    if (app.Form2.Visible)
        hideForm(app, app.Form2);
}

// A list built from the cards is stale after any change of them.
void kartenGeaendert(Merkkartelle& app)
{
    SerienbriefVeraltet(app);
}

// ---- presets of a new card ---------------------------------------------------------------------

QString vorgabeWert(const Merkkartelle& app, const QString& vorgabe)
{
    if (vorgabe == kPresetJetzt)
        return ZeitText(app);
    if (vorgabe == kPresetHeute)
        return DatumText(app);
    return vorgabe;
}

void vorgabeEinsetzen(Merkkartelle& app, const QString& vorgabe, int slot)
{
    if (!vorgabe.isEmpty())
        app.Hauptmaske.feld[slot].Text = vorgabeWert(app, vorgabe);
}

// The presets of config: prefeld for Schluessel, Titel, Firma and Geburtstag; the boxes of
// Strasse, Stadteil, Stadt, Staat and Land only while their option Check3D3 is ticked.
void vorgabenEinsetzen(Merkkartelle& app)
{
    const auto& c = app.config;
    const int prefeldSlots[] = {0, 1, 2, 13};
    for (int i = 0; i < 4; ++i)
        vorgabeEinsetzen(app, c.prefeld[i].Text, prefeldSlots[i]);
    if (!c.Check3D3.checked())
        return;
    vorgabeEinsetzen(app, c.Text20.Text, 6);
    vorgabeEinsetzen(app, c.Text21.Text, 8);
    vorgabeEinsetzen(app, c.Text15.Text, 10);
    vorgabeEinsetzen(app, c.Text16.Text, 7);
    vorgabeEinsetzen(app, c.Text17.Text, 12);
}

// The type of the filter in force is ticked, so that the new card stays in the cursor.
void typVorgabe(Merkkartelle& app)
{
    for (int i = 0; i < 7 && i < app.Typmaske.size(); ++i)
        if (app.Typmaske[i] == QLatin1Char('1'))
            app.Hauptmaske.Typenliste[i].Value = 1;
}

// ---- saving ------------------------------------------------------------------------------------------

void typFehltMelden(Merkkartelle& app)
{
    app.ui.MsgBox(QStringLiteral("Keine Selektierung in der Option 'Typ'") + kZeilenumbruch
                      + QStringLiteral("Wählen Sie eine Option des Typs um zu speichern"),
                  vbCritical, QStringLiteral("Eintrag nicht komplet !"));
}

// MaskeInDaten while the card is still open. It writes CampoM2 last: a marker left in that
// column means the writing stopped at a column that refused its text (its box was shown),
// and the save stops with the mask and the record buffer as they are, so that nothing typed
// is lost and the user can correct it.
bool maskeSchreiben(Merkkartelle& app)
{
    static const QString spalte = QStringLiteral("CampoM2");
    static const QString marke = QStringLiteral("\x01MaskeInDaten\x01");
    const bool markiert = underIgnoredErrors([&] { kartensatz(app).Fields(spalte).setValue(marke); });
    MaskeInDaten(app);
    if (!markiert)
        return true;
    bool vollstaendig = true;
    underIgnoredErrors([&] { vollstaendig = kartensatz(app).Fields(spalte).text() != marke; });
    return vollstaendig;
}

// The second cursor is opened again, so that it sees the card just stored.
void zweitsatzErneuern(Merkkartelle& app)
{
    underIgnoredErrors([&] {
        if (app.Zweitsatz)
            app.Zweitsatz->close();
    });
    underIgnoredErrors([&] {
        if (app.Zweitdatenbank)
            app.Zweitdatenbank->close();
    });
    const QString pfad = app.Kartendatenbank ? app.Kartendatenbank->path() : QString();
    const bool nurLesen = app.NurLesen != QStringLiteral("0");
    underIgnoredErrors([&] { app.Zweitdatenbank = Database::open(pfad, nurLesen, nurLesen); });
    underIgnoredErrors([&] {
        if (app.Zweitdatenbank)
            app.Zweitsatz = app.Zweitdatenbank->createDynaset(app.Tabellenname);
    });
}

void NeuenEintragSpeichern(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    if (!KarteSpeichernPruefen(app)) {
        typFehltMelden(app);
        return;
    }
    if (app.config.SSCheck2.checked() && verseexiste(app) == 0)
        return;

    m.recdate.Caption = m.Datum.Caption = DatumText(app);
    m.rectime.Caption = m.Zeit.Caption = ZeitText(app);
    if (!maskeSchreiben(app))
        return;

    m.NeueAdresse.Enabled = false;
    app.NeuerEintrag = 0;
    m.NeueAdresse.Caption = kNeuCaption;

    // The counter gives the new card the highest number: the last row after Update is it.
    underIgnoredErrors([&] { kartensatz(app).Update(); });
    underIgnoredErrors([&] { kartensatz(app).MoveLast(); });
    zweitsatzErneuern(app);
    underIgnoredErrors([&] { app.GesuchteNummer = kartensatz(app).Fields(QStringLiteral("Laufendenummer")).text(); });

    if (!KartensatzNachSpeichern(app, app.GesuchteNummer))
        app.ui.MsgBox(QStringLiteral("Cadastro não pode ser encontrado !"));

    kartenGeaendert(app);
    m.Label9.Caption = kReplayOn;
    DatenInMaske(app);
    PositionAnzeigen(app);
    bearbeitungBeenden(app);
    MaskeSchalten(app);
}

void AenderungSpeichern(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    if (!KarteSpeichernPruefen(app)) {
        typFehltMelden(app);
        return;
    }

    // The creation stamps stay as the card got them.
    m.Datum.Caption = DatumText(app);
    m.Zeit.Caption = ZeitText(app);
    if (!maskeSchreiben(app))
        return;

    m.AdresseÄndern.Enabled = false;
    m.AdresseÄndern.Caption = kBearbeitenCaption;

    underIgnoredErrors([&] { kartensatz(app).Update(); });
    zweitsatzErneuern(app);

    if (!KartensatzNachSpeichern(app, app.GesuchteNummer)) {
        if (m.Selektiert.Caption == kSelektierungAktiv)
            app.ui.MsgBox(QStringLiteral("Datensatz kann nicht gefunden werden !") + kZeilenumbruch
                          + QStringLiteral("Datensatz ausserhalb der Selektierung") + kZeilenumbruch + m.Label19.Caption);
        else
            app.ui.MsgBox(QStringLiteral("Datensatz kann nicht gefunden werden !"));
    }

    MaskeSchalten(app);
    suchenFreigeben(app, true);
    m.NeueAdresse.Enabled = true;
    DatenInMaske(app);
    kartenGeaendert(app);
    bearbeitungBeenden(app);
}

// ---- starting an edit --------------------------------------------------------------------------------

// The quick entry form comes up over the mask: empty for a new card, filled from the mask
// for a change. Its labels are the mask's, so the user's names of the fields show.
TextBox& schnellSlot(Merkkartelle& app, int box)
{
    auto& m = app.Hauptmaske;
    static const int felder[] = {5, 4, 6, 9, 10, 14};
    return box < 6 ? m.feld[felder[box]] : m.feldnum[0];
}

const Label& schnellName(const Merkkartelle& app, int box)
{
    const auto& m = app.Hauptmaske;
    static const int felder[] = {5, 4, 6, 9, 10, 14};
    return box < 6 ? m.beschreibung[felder[box]] : m.beschreibungnum[0];
}

void schnelleingabeZeigen(Merkkartelle& app, bool ausMaske)
{
    loadForm(app, app.Form2);
    auto& f = app.Form2;
    for (int i = 0; i < 7; ++i) {
        f.beschreibung[i].Caption = schnellName(app, i).Caption;
        f.Text1[i].Text = ausMaske ? schnellSlot(app, i).Text : QString();
    }
    showForm(app, f);
}

void NeuenEintragBeginnen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    NeuenEintragOeffnen(app);
    m.Text1.Enabled = false;
    for (Button* knopf : {&m.AdresseLöschen, &m.NachAdresseSuchen, &m.Command5, &m.AdresseÄndern, &m.Command3D8})
        knopf->Enabled = false;
    m.NeueAdresse.Enabled = true;
    schnelleingabeZeigen(app, false);
}

void AenderungBeginnen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    app.SortierfeldAlt = app.Sortierfeld;
    underIgnoredErrors([&] { app.GesuchteNummer = kartensatz(app).Fields(QStringLiteral("Laufendenummer")).text(); });
    if (kartenzahl(app) == 0)
        return;

    m.AdresseÄndernAbbruch.Visible = true;
    m.AdresseÄndernAbbruch.Enabled = true;
    m.NeueAdresseAbbruch.Visible = false;
    bewegungFreigeben(app, false);

    m.AdresseÄndern.Caption = kOKCaption;
    medienFreigeben(app);
    entfernenFreigeben(app);

    PositionAnzeigen(app);
    underIgnoredErrors([&] { app.Lesezeichen = kartensatz(app).Bookmark(); });
    underIgnoredErrors([&] { kartensatz(app).Edit(); });

    BildsatzSchalten(app, true);
    MaskeSchalten(app);
    suchenFreigeben(app, false);
    m.NeueAdresse.Enabled = false;
    SetFocus(app, QStringLiteral("Hauptmaske.feld(0)"));

    schnelleingabeZeigen(app, true);
}

// The cancel of either edit: the record buffer dropped, the card shown before put back.
void bearbeitungAbbrechen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    MaskeSchalten(app);
    underIgnoredErrors([&] { kartensatz(app).CancelUpdate(); });
    if (kartenzahl(app) != 0) {
        underIgnoredErrors([&] { kartensatz(app).setBookmark(app.Lesezeichen); });
        DatenInMaske(app);
    } else {
        MaskeLeeren(app);
        PositionAnzeigen(app);
    }
    bearbeitungBeenden(app);
    m.SSCommand8.Enabled = false;
    m.SSCommand9.Enabled = false;
}

}  // namespace

// ---- places of the mask -------------------------------------------------------------------------------

// ---- state tests -------------------------------------------------------------------------------------

bool eingabeGesperrt(const Merkkartelle& app)
{
    return bildschutzSichtbar(app) || app.NurLesen == QStringLiteral("1");
}

bool KarteSpeichernPruefen(const Merkkartelle& app)
{
    for (int i = 0; i <= 6; ++i)
        if (app.Hauptmaske.Typenliste[i].checked())
            return true;
    return false;
}

int verseexiste(Merkkartelle& app)
{
    const QString vorname = app.Hauptmaske.feld[5].Text;
    const QString nachname = app.Hauptmaske.feld[4].Text;
    if (vorname.isEmpty() && nachname.isEmpty())
        return 1;

    RecordsetPtr kopie;
    if (!underIgnoredErrors([&] { kopie = kartensatz(app).clone(); }) || !kopie)
        return 1;
    underIgnoredErrors([&] { kopie->MoveFirst(); });
    const QString kriterium = QStringLiteral("LEFT([Vorname], ") + QString::number(vorname.size())
        + QStringLiteral(") = '") + vorname + QLatin1Char('\'');

    // A criterion the store refuses (a quote in the name) counts as no match.
    int anzahl = 0;
    bool gefunden = false;
    underIgnoredErrors([&] {
        kopie->FindFirst(kriterium);
        gefunden = !kopie->NoMatch();
    });
    while (gefunden) {
        underIgnoredErrors([&] {
            if (kopie->Fields(QStringLiteral("Vorname")).text() == vorname
                && kopie->Fields(QStringLiteral("Nachname")).text() == nachname)
                ++anzahl;
        });
        gefunden = false;
        underIgnoredErrors([&] {
            kopie->FindNext(kriterium);
            gefunden = !kopie->NoMatch();
        });
    }
    underIgnoredErrors([&] { kopie->close(); });

    if (anzahl == 0)
        return 1;
    app.ui.MsgBox(QStringLiteral("   Vorname und Nachname exsistiert schon") + kZeilenumbruch + QString::number(anzahl)
                  + QStringLiteral(" Eintrag von: ") + vorname + QLatin1Char(' ') + nachname + QStringLiteral(" gefunden !"));
    return 0;
}

void AktivFarbe(Merkkartelle& app)
{
    if (bearbeitungOffen(app))
        return;
    app.Hauptmaske.LaufendeNummer.ForeColor = colour::Red;
    if (app.config.SSCheck7.checked())
        app.ui.playSound(joinPath(app.Arbeitsverzeichnis, QStringLiteral("pleaseedit.wav")), kSndAsync);
    // The pointer to the button that opens the card for typing.
    SetFocus(app, QStringLiteral("Hauptmaske.AdresseÄndern"));
}

void MaskeSchalten(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    const long farbe = bearbeitungOffen(app) ? kBearbeitungsFarbe : app.config.Label34.BackColor;
    for (auto& [i, label] : m.beschreibung)
        label.ForeColor = farbe;
    for (auto& [i, label] : m.beschreibungbank)
        label.ForeColor = farbe;
    for (auto& [i, label] : m.beschreibungnum)
        label.ForeColor = farbe;
    for (auto& [i, label] : m.TEL_LBL)
        label.ForeColor = farbe;
    // The warning of AktivFarbe has done its work once the mode changes.
    m.LaufendeNummer.ForeColor = colour::Black;
}

QString DatumText(const Merkkartelle& app)
{
    const QString format = app.Hauptmaske.Label3.Caption;
    return app.clock.Date().toString(format.isEmpty() ? kStandardDatum : format);
}

QString ZeitText(const Merkkartelle& app) { return app.clock.Time().toString(QStringLiteral("HH:mm:ss")); }

// ---- a new card ---------------------------------------------------------------------------------------

void NeuenEintragOeffnen(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    app.SortierfeldAlt = app.Sortierfeld;
    underIgnoredErrors([&] {
        if (kartensatz(app).RecordCount() != 0)
            app.Lesezeichen = kartensatz(app).Bookmark();
    });

    m.LaufendeNummer.Caption.clear();
    m.AdresseÄndernAbbruch.Visible = false;
    m.NeueAdresseAbbruch.Visible = true;
    m.NeueAdresseAbbruch.Enabled = true;
    bewegungFreigeben(app, false);

    BildsatzSchalten(app, true);
    m.NeueAdresse.Caption = kSpeichernCaption;

    medienFreigeben(app);
    for (Button* post : {&m.SSCommand2, &m.SSCommand7, &m.SSCommand5}) {
        post->Picture = m.Leerbild.Picture;
        post->Enabled = false;
    }

    app.NeuerEintrag = -1;
    MaskeSchalten(app);
    PositionAnzeigen(app);
    MaskeLeeren(app);
    entfernenFreigeben(app);

    if (m.Selektiert.Caption != kSelektierungAktiv)
        vorgabenEinsetzen(app);
    typVorgabe(app);

    // A forecast for the display only: the store's counter gives the true number.
    underIgnoredErrors([&] {
        kartensatz(app).MoveLast();
        const QVariant letzte = kartensatz(app).Fields(QStringLiteral("Laufendenummer")).Value();
        if (letzte.isValid())
            m.LaufendeNummer.Caption = QString::number(letzte.toLongLong() + 1);
    });

    underIgnoredErrors([&] { kartensatz(app).AddNew(); });
    // Typing starts in the first slot.
    SetFocus(app, QStringLiteral("Hauptmaske.feld(0)"));
}

// ---- the buttons -------------------------------------------------------------------------------------

void NeueAdresse_Click(Merkkartelle& app)
{
    if (eingabeGesperrt(app))
        return;
    if (neuerEintragOffen(app))
        NeuenEintragSpeichern(app);
    else if (!aenderungOffen(app))
        NeuenEintragBeginnen(app);
}

void AdresseÄndern_Click(Merkkartelle& app)
{
    if (eingabeGesperrt(app))
        return;
    if (aenderungOffen(app))
        AenderungSpeichern(app);
    else if (!neuerEintragOffen(app))
        AenderungBeginnen(app);
}

void NeueAdresseAbbruch_Click(Merkkartelle& app)
{
    if (!neuerEintragOffen(app))
        return;
    app.NeuerEintrag = 0;
    app.Hauptmaske.NeueAdresse.Caption = kNeuCaption;
    bearbeitungAbbrechen(app);
    SetFocus(app, QStringLiteral("Hauptmaske.NeueAdresse"));
}

void AdresseÄndernAbbruch_Click(Merkkartelle& app)
{
    if (!aenderungOffen(app))
        return;
    app.Hauptmaske.AdresseÄndern.Caption = kBearbeitenCaption;
    bearbeitungAbbrechen(app);
}

// ---- the quick entry form ------------------------------------------------------------------------------

void Form2_SSCommand1_Click(Merkkartelle& app)
{
    for (int i = 0; i < 7; ++i)
        schnellSlot(app, i).Text = app.Form2.Text1[i].Text;
    hideForm(app, app.Form2);
}

void Form2_SSCommand2_Click(Merkkartelle& app) { hideForm(app, app.Form2); }

// ---- registration ----------------------------------------------------------------------------------------

void registerEditingHandlers(HandlerTable& table)
{
    table.on("Hauptmaske", "NeueAdresse", "Click", NeueAdresse_Click);
    table.on("Hauptmaske", "AdresseÄndern", "Click", AdresseÄndern_Click);
    table.on("Hauptmaske", "NeueAdresseAbbruch", "Click", NeueAdresseAbbruch_Click);
    table.on("Hauptmaske", "AdresseÄndernAbbruch", "Click", AdresseÄndernAbbruch_Click);
    table.on("Hauptmaske", "AdresseLöschen", "Click", AdresseLöschen_Click);
    table.on("config", "Command7", "Click", config_Command7_Click);

    table.on("Hauptmaske", "menucopy", "Click", menucopy_Click);
    table.on("Hauptmaske", "Menucolar", "Click", Menucolar_Click);
    table.on("Hauptmaske", "menuapagar", "Click", menuapagar_Click);

    table.on("Form2", "SSCommand1", "Click", Form2_SSCommand1_Click);
    table.on("Form2", "SSCommand2", "Click", Form2_SSCommand2_Click);
}

}  // namespace mk
