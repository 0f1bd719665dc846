#include "card/deleted_cards.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "card/session.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/store.h"
#include "platform/text_files.h"

namespace mk {

namespace {

const QString kZeilenumbruch = QStringLiteral("\r\n");
const QString kEinzug = QStringLiteral("   ");

QString dateiPfad(const Merkkartelle& app, const QString& nummer)
{
    return joinPath(app.Arbeitsverzeichnis, nummer + QStringLiteral(".dat"));
}

// "Eintrag: 12 löschen ? " and the card's names below, each line indented; the company
// only when there is one.
QString loeschFrage(const Merkkartelle& app, const QString& nummer)
{
    const auto& m = app.Hauptmaske;
    QString frage = QStringLiteral("Eintrag: ") + nummer + QStringLiteral(" löschen ? ");
    frage += kZeilenumbruch + kEinzug + m.feld[4].Text;
    frage += kZeilenumbruch + kEinzug + m.feld[5].Text;
    if (!m.feld[2].Text.isEmpty())
        frage += kZeilenumbruch + kEinzug + m.feld[2].Text;
    return frage;
}

// With SSCheck5 ticked the question warns hard and proposes no; without it, yes.
int loeschKnoepfe(const Merkkartelle& app)
{
    return app.config.SSCheck5.checked() ? vbYesNo + vbCritical + vbDefaultButton2
                                         : vbYesNo + vbExclamation + vbDefaultButton1;
}

// The copy of the card before it goes. An existing copy of the same number is replaced only
// when the user says so; either way the delete goes on. A copy that cannot be written (a
// full disk, a folder without rights) stops the delete with a word: the card is the only
// copy left. False then.
bool kopieSichern(Merkkartelle& app, const QString& nummer)
{
    ArbeitsverzeichnisSetzen(app);
    const QString pfad = dateiPfad(app, nummer);
    QString vorhanden;
    underIgnoredErrors([&] { vorhanden = Dir(pfad); });
    if (!vorhanden.isEmpty()
        && app.ui.MsgBox(QStringLiteral("Bestehende Datei überschreiben "), vbYesNo, QStringLiteral("Speichern unter")) != vbYes)
        return true;
    try {
        GeloeschteKarteSchreiben(app, pfad);
        return true;
    } catch (const RuntimeError& fehler) {
        app.ui.MsgBox(QStringLiteral("Die Sicherungskopie des Eintrags konnte nicht geschrieben werden:") + kZeilenumbruch
                          + kEinzug + pfad + kZeilenumbruch + kEinzug + fehler.Description + kZeilenumbruch
                          + QStringLiteral("Der Eintrag wurde nicht gelöscht."),
                      vbOKOnly + vbCritical, QStringLiteral("Eintrag löschen"));
        return false;
    }
}

}  // namespace

std::vector<MaskenPlatz> geloeschteKartePlaetze(Merkkartelle& app)
{
    return Maskenplaetze(app, karte::kGeloeschteKarte);
}

void GeloeschteKarteSchreiben(Merkkartelle& app, const QString& path)
{
    std::vector<WriteValue> werte;
    for (const MaskenPlatz& p : geloeschteKartePlaetze(app))
        werte.emplace_back(p.lesen());
    writePositionalFile(path, werte);
}

void GeloeschteKarteLesen(Merkkartelle& app, const QString& path)
{
    TextReader datei(path);
    const std::vector<MaskenPlatz> plaetze = geloeschteKartePlaetze(app);
    for (std::size_t i = 0; i < plaetze.size() && !datei.atEnd(); ++i)
        plaetze[i].schreiben(datei.next());
}

void AdresseLöschen_Click(Merkkartelle& app)
{
    // An open card cannot be deleted: the button is off then anyway.
    if (eingabeGesperrt(app) || bearbeitungOffen(app))
        return;
    auto& m = app.Hauptmaske;
    m.AdresseLöschen.Enabled = false;

    // The user sees what goes.
    DatenInMaske(app);
    PositionAnzeigen(app);
    SerienbriefVeraltet(app);

    if (kartenzahl(app) == 0) {
        MaskeLeeren(app);
        PositionAnzeigen(app);
        app.ui.MsgBox(QStringLiteral("Keine Daten gefunden - leere Datenbank.") + kZeilenumbruch
                          + QStringLiteral("Löschen nicht möglich."),
                      vbOKOnly, QStringLiteral("Löschen"));
        return;
    }

    const QString nummer = m.LaufendeNummer.Caption;
    if (app.ui.MsgBox(loeschFrage(app, nummer), loeschKnoepfe(app), QStringLiteral("Eintrag löschen")) != vbYes)
        return;

    if (!kopieSichern(app, nummer)) {
        m.AdresseLöschen.Enabled = true;
        return;
    }

    underIgnoredErrors([&] { kartensatz(app).Delete(); });
    underIgnoredErrors([&] { kartensatz(app).MoveNext(); });
    bool amEnde = false;
    underIgnoredErrors([&] { amEnde = kartensatz(app).IsEOF(); });
    if (amEnde)
        underIgnoredErrors([&] { kartensatz(app).MoveLast(); });

    SerienbriefVeraltet(app);
    MaskeLeeren(app);
    DatenInMaske(app);
    PositionAnzeigen(app);
    if (kartenzahl(app) == 0)
        MaskeLeeren(app);
    m.AdresseLöschen.Enabled = true;
}

void config_Command7_Click(Merkkartelle& app)
{
    if (app.NurLesen == QStringLiteral("1") || bearbeitungOffen(app))
        return;
    NeuenEintragOeffnen(app);

    ArbeitsverzeichnisSetzen(app);
    FileDialog& dialog = app.config.CMDialog1;
    dialog.Filter = QStringLiteral("Gelöschte Einträge (*.dat)|*.dat|");
    dialog.DialogTitle = QStringLiteral("Gelöschten Einträge wiederherstellen");
    dialog.InitDir = app.Arbeitsverzeichnis;
    dialog.FileName.clear();
    const FileChoice wahl = app.ui.ShowOpen(dialog);
    if (wahl.cancelled)
        return;  // the new card stays open
    underIgnoredErrors([&] { GeloeschteKarteLesen(app, wahl.FileName); });
}

}  // namespace mk
