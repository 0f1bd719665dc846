#include "card/session.h"

#include "card/app_state.h"
#include "printing/birthday_list.h"
#include "card/card_cursor.h"
#include "card/card_editing.h"
#include "card/mask_transfer.h"
#include "card/notice.h"
#include "history/global_view.h"
#include "history/history_list.h"
#include "platform/app_home.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/store.h"
#include "platform/text_files.h"
#include "settings/field_naming.h"
#include "settings/password.h"
#include "settings/settings_file.h"

namespace mk {

namespace {

const QString kStandardDatenbank = QStringLiteral("merkkartelle.mdb");
const QString kStandardTabelle = QStringLiteral("Adressenstamm");
// The INI file the start removes when its database is gone: the literal path of the old
// Windows folder, which the file functions map onto the folder that stands in for it.
const QString kIniPfadFest = QStringLiteral("c:\\windows\\MERKKARTELLE.INI");
const QString kDatenbankFilter = QStringLiteral("Datenbank (*.mdb)|*.mdb|");
constexpr int kNurLesenFlags = 1025;  // the open dialog with its read-only box ticked

QString datenbankPfad(const Merkkartelle& app) { return joinPath(app.Arbeitsverzeichnis, app.Datenbankdatei); }

Database& datenbank(const DatabasePtr& db)
{
    if (!db)
        throw RuntimeError(91, QStringLiteral("Objektvariable oder With-Blockvariable nicht festgelegt"));
    return *db;
}

void iniEntfernen() { underIgnoredErrors([] { Kill(kIniPfadFest); }); }

void aufStandardZurueck(Merkkartelle& app)
{
    app.Datenbankdatei = kStandardDatenbank;
    app.Arbeitsverzeichnis = applicationHome();
    app.Tabellenname = kStandardTabelle;
}

// Steps 4 and 5 of the start: the database file tested; a missing one, or a folder that
// cannot be looked into, ends in the program's own database.
void datenbankdateiPruefen(Merkkartelle& app)
{
    QString gefunden;
    try {
        gefunden = Dir(datenbankPfad(app));
    } catch (const RuntimeError&) {
        // The recovery step: an invalid drive or folder.
        app.ui.MsgBox(QStringLiteral("Das verzeichniss ist üngültig !"));
        iniEntfernen();
        aufStandardZurueck(app);
        app.NurLesen = QStringLiteral("0");
        return;
    }
    if (gefunden.isEmpty()) {
        app.ui.MsgBox(QStringLiteral("Die Ursprüngliche Datenbank konnte nicht gefunden werden"));
        iniEntfernen();
        aufStandardZurueck(app);
    }
}

// The splash shows the file (blue when read-only, red otherwise), the folder and the
// table as the INI file names it.
void splashBeschriften(Merkkartelle& app)
{
    auto& box = app.AboutBox;
    box.Label7.Caption = app.Datenbankdatei;
    box.Label7.ForeColor = app.NurLesen == QStringLiteral("1") ? rgb(0, 0, 255) : rgb(255, 0, 0);
    box.Label10.Caption = app.Arbeitsverzeichnis;
    box.Label9.Caption = INILesen(QStringLiteral("Dbmerkkartelle"), kStandardTabelle);
}

void fortschritt(Merkkartelle& app, int breite, const QString& text = QString())
{
    app.AboutBox.Label5.Width = breite;
    if (!text.isNull())
        app.AboutBox.Label6.Caption = text;
}

void anrufsitzungOeffnen(Merkkartelle& app)
{
    underIgnoredErrors([&] { app.Anrufdatenbank = Database::open(joinPath(app.Arbeitsverzeichnis, kTelefonDatei)); });
    underIgnoredErrors([&] { app.Anrufsatz = datenbank(app.Anrufdatenbank).createDynaset(kTelefonTabelle); });
    underIgnoredErrors([&] {
        if (!app.Anrufsatz)
            return;
        app.Anrufsatz->Sort = QStringLiteral("[Numeroatual]") + QStringLiteral(" ASC");
        app.Anrufsatz = app.Anrufsatz->createDynaset();
    });
}

template <class T>
void schliessen(const std::shared_ptr<T>& objekt)
{
    underIgnoredErrors([&] {
        if (objekt)
            objekt->close();
    });
}

}  // namespace

// ---- the INI file ------------------------------------------------------------------------------

QString INILesen(const QString& key, const QString& defaultValue)
{
    return GetPrivateProfileString(kIniSection, key, defaultValue, kIniFile);
}

void INISchreiben(const QString& key, const QString& value)
{
    WritePrivateProfileString(kIniSection, key, value, kIniFile);
}

// ---- start -------------------------------------------------------------------------------------

void Start(Merkkartelle& app)
{
    layoutApplicationHomeIfNeeded();
    const QString programm = applicationHome();
    app.Datenbankdatei = INILesen(QStringLiteral("Filename"), kStandardDatenbank);
    app.Arbeitsverzeichnis = INILesen(QStringLiteral("Workdir"), programm);
    app.Tabellenname = INILesen(QStringLiteral("Dbmerkkartelle"), kStandardTabelle);
    app.NurLesen = INILesen(QStringLiteral("ReadOnly"), QStringLiteral("0"));

    // A missing global view is no error: the view merely stays without records.
    underIgnoredErrors([&] { app.Gesamtdatenbank = Database::open(joinPath(programm, QString::fromLatin1(GlobalViewName))); });
    underIgnoredErrors([&] { app.Gesamtsatz = datenbank(app.Gesamtdatenbank).createDynaset(QStringLiteral("GlobalView")); });

    datenbankdateiPruefen(app);
    // A guarded directory: only the right word lets the start go on.
    if (!PasswortAbfragen(app))
        End(app);

    splashBeschriften(app);
    showForm(app, app.AboutBox);
    fortschritt(app, 250, QStringLiteral("Programm start..."));
    fortschritt(app, 250, QStringLiteral("Öffne Datenbank..."));

    KartensitzungOeffnen(app, app.NurLesen != QStringLiteral("0"));
    fortschritt(app, 500);

    anrufsitzungOeffnen(app);
    ArbeitsverzeichnisSetzen(app);

    showForm(app, app.Hauptmaske);
}

void KartensitzungOeffnen(Merkkartelle& app, bool nurLesen)
{
    const QString pfad = datenbankPfad(app);
    // Read-only is exclusive as well; writing shares the file. A missing file stays silent,
    // as the start expects; any other failure (a file in the old Jet format, a damaged, empty
    // or foreign file, one held by another program) is told, since an empty mask would hide
    // that the cards are still there and need the user.
    const auto melden = [&](const RuntimeError& fehler) {
        app.ui.MsgBox(fehler.Description, vbExclamation, QStringLiteral("Datenbank öffnen"));
    };
    try {
        app.Kartendatenbank = Database::open(pfad, nurLesen, nurLesen);
    } catch (const RuntimeError& fehler) {
        if (fehler.Number != err::FileNotFoundDb)
            melden(fehler);
    }
    // The cursor is the first read of the cards: a damaged file shows here.
    try {
        if (app.Kartendatenbank)
            app.Kartensatz = app.Kartendatenbank->createDynaset(app.Tabellenname);
    } catch (const RuntimeError& fehler) {
        if (fehler.Number == err::DatabaseDamaged || fehler.Number == err::UnrecognizedFormat)
            melden(fehler);
    }
    underIgnoredErrors([&] { app.Zweitdatenbank = Database::open(pfad, nurLesen, nurLesen); });
    underIgnoredErrors([&] { app.Zweitsatz = datenbank(app.Zweitdatenbank).createDynaset(app.Tabellenname); });
}

void KartensitzungSchliessen(Merkkartelle& app)
{
    schliessen(app.Kartensatz);
    schliessen(app.Kartendatenbank);
    schliessen(app.Zweitsatz);
    schliessen(app.Zweitdatenbank);
}

QString HauptmaskeTitel(const Merkkartelle& app)
{
    const QString& verzeichnis = app.Arbeitsverzeichnis;
    const bool laufwerk = verzeichnis.size() >= 2 && verzeichnis[1] == QLatin1Char(':') && verzeichnis[0].isLetter();
    const QString trenner = QStringLiteral("  -  ");
    const QString ort = laufwerk ? verzeichnis.left(1) + trenner + verzeichnis.mid(3) : verzeichnis;
    return ort + trenner + app.Datenbankdatei + trenner + app.Tabellenname;
}

void Hauptmaske_Load(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;

    fortschritt(app, 1000);
    const auto intl = [](const char* key) { return GetProfileString(QStringLiteral("Intl"), QString::fromLatin1(key), QString()); };
    m.Label6.Caption = intl("sDecimal");
    app.DezimalZeichen = m.Label6.Caption;
    m.Label4.Caption = intl("sThousand");
    m.Label2.Caption = intl("sDate");
    m.Label3.Caption = intl("sShortDate");
    m.Label7.Caption = GetProfileString(QStringLiteral("windows"), QStringLiteral("spooler"), QString());

    fortschritt(app, 1500);
    ArbeitsverzeichnisSetzen(app);
    EinstellungenEinlesen(app);
    loadForm(app, app.config);
    loadForm(app, app.mala);
    loadForm(app, app.malasp);
    loadForm(app, app.Form3);

    // Widths 2000 to 6500: the settings, with the saved order and the first card at 4000.
    EinstellungenBeimStart(app, [&app] { OrdnungBeimStart(app); });

    m.Caption = HauptmaskeTitel(app);
    fortschritt(app, 7000);
    if (app.config.Check3D3.checked())
        GeburtstagslisteZeigen(app);

    PositionAnzeigen(app);
    LetzteKarteZeigen(app);
    unloadForm(app, app.AboutBox);
    StandardBenennungEinlesen(app, NamingReset::AtStart);
    // With "Verlauf speichern" on, the cards visited in the last session come back into the
    // history list.
    if (app.config.Check3D5.checked())
        VerlaufLaden(app, joinPath(applicationHome(), kLetzterVerlauf));
}

void ArbeitsverzeichnisSetzen(Merkkartelle& app)
{
    underIgnoredErrors([&] { ChDrive(app.Arbeitsverzeichnis); });
    underIgnoredErrors([&] { ChDir(app.Arbeitsverzeichnis); });
}

// ---- another database ------------------------------------------------------------------------

void abrirdmb_Click(Merkkartelle& app)
{
    if (bearbeitungOffen(app))
        return;

    VerlaufSichern(app);
    if (app.config.Check3D13.checked()) {
        underIgnoredErrors([&] { EinstellungenSchreiben(app); });
        ShowMessage(app, QStringLiteral("Aktuelle Einstellungen wurden gespeichert") + QStringLiteral("\r\n")
                               + QStringLiteral("Datenbank wird geöffnet..."),
                      colour::Black, app.Message.Timer1.Interval);
        underIgnoredErrors([&] { StandardBenennungSchreiben(app); });
    }

    const QString bisherVerzeichnis = app.Arbeitsverzeichnis;
    const QString bisherDatei = app.Datenbankdatei;
    int flags = 0;
    const GlobalViewChoice gewaehlt = malaglobalviewZeigen(app);
    if (gewaehlt.chosen) {
        app.Arbeitsverzeichnis = gewaehlt.directory;
        app.Datenbankdatei = gewaehlt.file;
    } else {
        FileDialog dialog;
        dialog.Filter = kDatenbankFilter;
        dialog.DialogTitle = QStringLiteral("Datenbank öffnen...");
        const FileChoice wahl = app.ui.ShowOpen(dialog);
        if (wahl.cancelled || wahl.FileName.isEmpty())
            return;  // nothing chosen: the open database stays
        app.Arbeitsverzeichnis = DateiPfad(wahl.FileName);
        app.Datenbankdatei = DateiName(wahl.FileName);
        flags = wahl.Flags;
    }

    // The word of a guarded directory is asked while the old session is still whole; a
    // window closed without it keeps the old database.
    if (!PasswortAbfragen(app)) {
        app.Arbeitsverzeichnis = bisherVerzeichnis;
        app.Datenbankdatei = bisherDatei;
        return;
    }

    KartensitzungSchliessen(app);
    const bool nurLesen = flags == kNurLesenFlags;
    app.NurLesen = nurLesen ? QStringLiteral("1") : QStringLiteral("0");
    KartensitzungOeffnen(app, nurLesen);

    underIgnoredErrors([&] { INISchreiben(QStringLiteral("Dbmerkkartelle"), app.Tabellenname); });
    underIgnoredErrors([&] { INISchreiben(QStringLiteral("Workdir"), app.Arbeitsverzeichnis); });
    underIgnoredErrors([&] { INISchreiben(QStringLiteral("Filename"), app.Datenbankdatei); });
    underIgnoredErrors([&] { INISchreiben(QStringLiteral("ReadOnly"), app.NurLesen); });

    showForm(app, app.AboutBox);
    app.AboutBox.Label6.Caption = QStringLiteral("Datenbank wird geladen...");
    splashBeschriften(app);

    ArbeitsverzeichnisSetzen(app);
    EinstellungenEinlesen(app);
    EinstellungenLaden(app);
    QString benennung;
    underIgnoredErrors([&] { benennung = Dir(joinPath(app.Arbeitsverzeichnis, kStandardNamingFile)); });
    if (benennung.isEmpty())
        BenennungenZuruecksetzen(app);
    else
        StandardBenennungEinlesen(app, NamingReset::AfterLoad);

    underIgnoredErrors([&] { kartensatz(app).MoveFirst(); });
    DatenInMaske(app);
    app.Hauptmaske.Caption = HauptmaskeTitel(app);
    PositionAnzeigen(app);
    unloadForm(app, app.AboutBox);
}

void fechardb_Click(Merkkartelle& app)
{
    if (bearbeitungOffen(app))
        return;
    KartensitzungSchliessen(app);
    MaskeLeeren(app);
    auto& m = app.Hauptmaske;
    for (Button* knopf : {&m.Command3D15, &m.Command3D16, &m.EinzNachvorne, &m.EinznachHinten})
        knopf->Enabled = false;
    for (MenuItem* eintrag : {&m.menumaladata, &m.menuauto, &m.menusilabas})
        eintrag->Enabled = false;
    for (Button* knopf : {&m.NeueAdresse, &m.AdresseLöschen, &m.NachAdresseSuchen, &m.Command3D8, &m.Command5, &m.AdresseÄndern})
        knopf->Enabled = false;
    m.Text1.Enabled = false;
}

// ---- the end ---------------------------------------------------------------------------------

long SitzungenLesen(Merkkartelle& app)
{
    ArbeitsverzeichnisSetzen(app);
    double zahl = 0;
    underIgnoredErrors([&] { zahl = Val(TextReader(kSessionDatei).next()); });
    return long(zahl);
}

void SitzungZaehlen(Merkkartelle& app)
{
    const long bisher = SitzungenLesen(app);
    const long neu = bisher == 0 ? 1 : bisher + 1;
    underIgnoredErrors([&] { writePositionalFile(kSessionDatei, {WriteValue(neu)}); });
}

bool OffeneBearbeitungBeenden(Merkkartelle& app)
{
    if (!bearbeitungOffen(app))
        return true;
    const QString frage = (aenderungOffen(app) ? QStringLiteral("Editierung des Eintrags abbrechen ?")
                                                : QStringLiteral("Neuen Eintrag abbrechen ?"))
        + QStringLiteral("\r\n") + QStringLiteral("Programm beenden ?");
    if (app.ui.MsgBox(frage, vbYesNo) != vbYes)
        return false;
    if (aenderungOffen(app))
        AdresseÄndernAbbruch_Click(app);
    else
        NeueAdresseAbbruch_Click(app);
    return true;
}

void SSCommand1_Click(Merkkartelle& app)
{
    auto& m = app.Hauptmaske;
    const bool offen = bearbeitungOffen(app);
    if (!OffeneBearbeitungBeenden(app))
        return;

    m.Label36.Caption = m.LaufendeNummer.Caption;
    m.Label5.ForeColor = colour::Red;
    m.Label5.Caption = QStringLiteral("Programm wird geschossen...");
    // The serial-letter list keeps its true size in the settings.
    if (app.mala.WindowState == vbMinimized)
        app.mala.WindowState = vbNormal;

    KartensitzungSchliessen(app);
    schliessen(app.Gesamtdatenbank);
    schliessen(app.Gesamtsatz);

    ArbeitsverzeichnisSetzen(app);
    underIgnoredErrors([&] { EinstellungenSchreiben(app); });
    if (!offen)
        underIgnoredErrors([&] { StandardBenennungSchreiben(app); });
    // The history is kept whether or not it records: what the list holds comes back next time.
    VerlaufSichern(app);

    SitzungZaehlen(app);
    End(app);
}

void Hauptmaske_Unload(Merkkartelle& app)
{
    KartensitzungSchliessen(app);
    VerlaufSichern(app);
    SitzungZaehlen(app);
    End(app);
}

}  // namespace mk
