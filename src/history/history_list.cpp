#include "history/history_list.h"

#include "card/app_state.h"
#include "card/session.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "platform/app_home.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text_files.h"
#include "settings/form_places.h"

#include <algorithm>

namespace mk {

namespace {

using M = Merkkartelle;

const QString kMarke = QStringLiteral("D");

ListBox& liste(M& app) { return app.replay.Schnelleauswahlliste; }

void anzahlZeigen(M& app) { app.replay.Label1.Caption = QString::number(liste(app).ListCount()); }

int zeileDerNummer(M& app, long nummer)
{
    for (int i = 0; i < liste(app).ListCount(); ++i)
        if (liste(app).ItemData(i) == nummer)
            return i;
    return -1;
}

// The visible line of a card: surname, first name, firm, telephone and number, parted by
// tabs; Null reads as the empty text.
QString kartenzeile(Recordset& satz)
{
    QStringList spalten;
    for (const char* name : {"Nachname", "Vorname", "Firma", "Telefon", "Laufendenummer"}) {
        QString wert;
        underIgnoredErrors([&] { wert = satz.Fields(QString::fromLatin1(name)).text(); });
        spalten << wert;
    }
    return spalten.join(QLatin1Char('\t'));
}

void zeileAnfuegen(M& app, const QString& text, long nummer)
{
    const int index = liste(app).AddItem(text);
    liste(app).setItemData(index, nummer);
}

// The three list-file dialogs start in the folder of the card database.
FileDialog listenDialog(M& app, const char* filter, const char* titel)
{
    FileDialog dialog;
    dialog.Filter = QString::fromUtf8(filter);
    dialog.DialogTitle = QString::fromUtf8(titel);
    dialog.InitDir = app.Arbeitsverzeichnis;
    dialog.DefaultExt = QStringLiteral("dat");
    return dialog;
}

void knoepfeFreigeben(M& app, bool frei)
{
    replay& f = app.replay;
    for (Button* knopf : {&f.Command3D1, &f.Command3D2, &f.Command3D5, &f.Command3d4, &f.Command3D6})
        knopf->Enabled = frei;
    f.Command5.Enabled = frei && f.Schnelleauswahlliste.ListIndex >= 0;
}

QString lastuserPfad() { return joinPath(applicationHome(), kLetzterVerlauf); }

// ---- the form ------------------------------------------------------------------------------

// Position and size of replay: records 114 to 117 of the settings (Top, Left, Height, Width).
const Formplatz kVerlaufPlatz{114, 115, 116, 117};

void replay_Resize(M& app)
{
    replay& f = app.replay;
    if (f.WindowState == vbMinimized)
        return;
    ListBox& l = f.Schnelleauswahlliste;
    l.Width = std::max(0, f.Width - 2 * l.Left - 120);
    l.Height = std::max(0, f.Height - l.Top - 1560);
    f.Panel3D1.Top = l.Top + l.Height + 540;
    f.Panel3D1.Width = f.Width;
}

void Command3D6_Click(M& app)
{
    FormplatzMerken(app, app.replay, kVerlaufPlatz);
    hideForm(app, app.replay);
}

void replay_KeyDown(M& app, EventArgs& args)
{
    if (args.KeyCode == vbKeyEscape)
        Command3D6_Click(app);
    else if (args.KeyCode == vbKeyF1)
        app.ui.MsgBox(QStringLiteral("ESC = Sair "));
}

void replay_QueryUnload(M& app, EventArgs& args)
{
    // Closed by the user: the list lives on in the hidden form.
    FormplatzMerken(app, app.replay, kVerlaufPlatz);
    if (args.UnloadMode == 0) {
        args.Cancel = 1;
        hideForm(app, app.replay);
    }
}

void hinweisZeigen(M& app, Control& control)
{
    app.replay.Panel3D1.Caption = control.Hint;
}

// ---- the list -----------------------------------------------------------------------------

// A click on a line: its card into the mask, without recording it again.
void Schnelleauswahlliste_Click(M& app)
{
    ListBox& l = liste(app);
    if (l.ListIndex < 0)
        return;
    app.replay.Command5.Enabled = true;
    if (bearbeitungOffen(app))
        return;
    const long nummer = l.ItemData(l.ListIndex);
    app.replay.Label2.Caption = QString::number(nummer);
    // The number alone, as "[Laufendenummer] LIKE n" asks it, through the store's key.
    if (!KarteFinden(app, QString::number(nummer)))
        return;  // a card that is gone: the mask stays on its card
    auto& m = app.Hauptmaske;
    if (long(Val(m.LaufendeNummer.Caption)) != nummer)
        m.dataold.Caption = m.datalabel.Caption;
    DatenInMaske(app);
    PositionAnzeigen(app);
}

void Command3D2_Click(M& app)  // save
{
    ArbeitsverzeichnisSetzen(app);
    const FileChoice wahl = app.ui.ShowSave(listenDialog(app, "Eintragsliste (*.dat)|*.dat|", "Liste speichern"));
    if (wahl.cancelled || wahl.FileName.isEmpty())
        return;
    QString vorhanden;
    underIgnoredErrors([&] { vorhanden = Dir(wahl.FileName); });
    if (!vorhanden.isEmpty()
        && app.ui.MsgBox(QStringLiteral("Bestehende Datei überschreiben ") + DateiName(wahl.FileName) + QStringLiteral(" ?"),
                         vbYesNo + vbQuestion, QStringLiteral("Speichern unter"))
               != vbYes)
        return;
    try {
        VerlaufsdateiSchreiben(app, wahl.FileName);
    } catch (const RuntimeError& fehler) {
        // A folder that cannot be written: the list stays, and the user hears why.
        app.ui.MsgBox(fehler.Description, vbExclamation, QStringLiteral("Liste speichern"));
    }
}

void Command3D5_Click(M& app)  // load
{
    knoepfeFreigeben(app, false);
    const FileChoice wahl = app.ui.ShowOpen(listenDialog(app, "Verlaufslisten (*.dat)|*.dat|", "Liste laden"));
    if (!wahl.cancelled && !wahl.FileName.isEmpty())
        VerlaufLaden(app, wahl.FileName);
    knoepfeFreigeben(app, true);
    app.replay.Command5.Enabled = false;
}

void Command3D1_Click(M& app)  // the last history
{
    knoepfeFreigeben(app, false);
    VerlaufLaden(app, lastuserPfad());
    knoepfeFreigeben(app, true);
    app.replay.Command5.Enabled = false;
}

void Command3d4_Click(M& app)  // empty the list
{
    if (app.ui.MsgBox(QStringLiteral("Gesamte Verlaufsliste löschen ?"), vbYesNo + vbQuestion, QStringLiteral("Verlauf löschen"))
        != vbYes)
        return;
    liste(app).Clear();
    app.replay.Command5.Enabled = false;
    anzahlZeigen(app);
}

void Command5_Click(M& app)  // remove the selected line
{
    ListBox& l = liste(app);
    if (l.ListIndex >= 0 && l.ListIndex < l.ListCount())
        l.RemoveItem(l.ListIndex);
    l.ListIndex = -1;
    app.replay.Command5.Enabled = false;
    anzahlZeigen(app);
}

void menuloeschen_Click(M& app)  // delete a list file
{
    const FileChoice wahl = app.ui.ShowOpen(listenDialog(app, "Verlaufliste (*.dat)|*.dat|", "Verlaufliste löschen"));
    if (wahl.cancelled || wahl.FileName.isEmpty())
        return;
    if (app.ui.MsgBox(QStringLiteral("Soll die Verlaufsliste:") + QStringLiteral("\r\n") + DateiName(wahl.FileName)
                          + QStringLiteral(" gelöscht werden?"),
                      vbYesNo + vbQuestion, QStringLiteral("Verlaufsliste löschen"))
        != vbYes)
        return;
    underIgnoredErrors([&] { Kill(wahl.FileName); });
}

}  // namespace

// ---- recording ------------------------------------------------------------------------------

void Verlaufsaufnahme(Merkkartelle& app)
{
    const QString nummer = app.Hauptmaske.LaufendeNummer.Caption;
    const long zahl = long(Val(nummer));
    const int vorhanden = zeileDerNummer(app, zahl);
    if (vorhanden >= 0) {
        liste(app).ListIndex = vorhanden;
        return;
    }
    // The card is read from a clone, so that the current record does not move.
    RecordsetPtr klon;
    bool gefunden = false;
    underIgnoredErrors([&] {
        klon = kartensatz(app).clone();
        klon->FindFirst(KarteFindenKriterium(nummer));
        gefunden = !klon->NoMatch();
    });
    if (!gefunden)
        return;
    bool firmaNull = true;
    underIgnoredErrors([&] { firmaNull = klon->Fields(QStringLiteral("Firma")).isNull(); });
    zeileAnfuegen(app, firmaNull ? kStrichzeile : kartenzeile(*klon), zahl);
    liste(app).ListIndex = liste(app).ListCount() - 1;
    anzahlZeigen(app);
}

// ---- list files ---------------------------------------------------------------------------------

Verlaufsdatei VerlaufsdateiLesen(const QString& pfad)
{
    Verlaufsdatei datei;
    try {
        TextReader leser(pfad);
        // The reading array has room for the numbers and the marker; one item more is a fault.
        QStringList posten;
        while (!leser.atEnd()) {
            const QString posten1 = leser.next();
            if (posten.size() > kVerlaufGrenze)
                return {};
            posten << posten1;
            if (posten1 == kMarke)
                break;
        }
        if (!posten.isEmpty() && posten.last() == kMarke)
            posten.removeLast();
        for (const QString& p : posten)
            datei.nummern.push_back(long(Val(p)));
        datei.ok = true;
    } catch (const RuntimeError&) {
        return {};
    }
    return datei;
}

void VerlaufsdateiSchreiben(Merkkartelle& app, const QString& pfad)
{
    TextWriter schreiber(pfad);
    const ListBox& l = liste(app);
    for (int i = 0; i < l.ListCount(); ++i)
        schreiber.write({WriteValue(l.ItemData(i))});
    schreiber.write({WriteValue(kMarke)});
    schreiber.write({WriteValue(app.clock.Now().toString(QStringLiteral("MM-dd-yyyy HH:mm:ss")))});
    schreiber.close();
}

void VerlaufLaden(Merkkartelle& app, const QString& pfad)
{
    const Verlaufsdatei datei = VerlaufsdateiLesen(pfad);
    if (!datei.ok || datei.nummern.empty())
        return;
    // One dynaset of the whole table for the whole load: the list may name cards that the
    // main cursor's selection hides.
    RecordsetPtr satz;
    underIgnoredErrors([&] {
        if (!app.Kartendatenbank)
            return;  // a closed database: every line a hyphen line
        RecordsetPtr basis = app.Kartendatenbank->createDynaset(app.Tabellenname);
        basis->Sort = QStringLiteral("[Laufendenummer]");
        satz = basis->createDynaset();
    });
    for (const long nummer : datei.nummern) {
        app.ui.DoEvents();
        if (zeileDerNummer(app, nummer) >= 0)
            continue;  // a card stands in the list once
        bool gefunden = false;
        if (satz)
            underIgnoredErrors([&] {
                satz->FindFirst(KarteFindenKriterium(QString::number(nummer)));
                gefunden = !satz->NoMatch();
            });
        zeileAnfuegen(app, gefunden ? kartenzeile(*satz) : kStrichzeile, nummer);
    }
    anzahlZeigen(app);
}

void VerlaufSichern(Merkkartelle& app)
{
    underIgnoredErrors([&] { VerlaufsdateiSchreiben(app, lastuserPfad()); });
}

void menuauto_Click(Merkkartelle& app)
{
    FormplatzNehmen(app, app.replay, kVerlaufPlatz);
    showForm(app, app.replay);
}

void registerHistoryHandlers(HandlerTable& table)
{
    const QString form = QStringLiteral("replay");
    const QString click = QStringLiteral("Click");
    table.onForm(form, QStringLiteral("Resize"), [](M& app, EventArgs&) { replay_Resize(app); });
    table.onForm(form, QStringLiteral("KeyDown"), replay_KeyDown);
    table.onForm(form, QStringLiteral("QueryUnload"), replay_QueryUnload);
    table.on(form, QStringLiteral("Schnelleauswahlliste"), click, Schnelleauswahlliste_Click);
    table.on(form, QStringLiteral("Command3D1"), click, Command3D1_Click);
    table.on(form, QStringLiteral("Command3D2"), click, Command3D2_Click);
    table.on(form, QStringLiteral("Command3D5"), click, Command3D5_Click);
    table.on(form, QStringLiteral("Command3d4"), click, Command3d4_Click);
    table.on(form, QStringLiteral("Command5"), click, Command5_Click);
    table.on(form, QStringLiteral("Command3D6"), click, Command3D6_Click);
    table.on(form, QStringLiteral("menuloeschen"), click, menuloeschen_Click);
    for (const char* knopf : {"Command3D1", "Command3D2", "Command3D5", "Command3d4", "Command5", "Command3D6"}) {
        const QString name = QString::fromLatin1(knopf);
        table.on(form, name, QStringLiteral("MouseMove"), [name](M& app, EventArgs&) {
            hinweisZeigen(app, *app.forms.control(QStringLiteral("replay"), name, -1).control);
        });
    }

    table.on(QStringLiteral("Hauptmaske"), QStringLiteral("menuauto"), click, menuauto_Click);
}

}  // namespace mk
