#include "maintenance/backup_copy.h"

#include "card/app_state.h"
#include "card/card_editing.h"
#include "card/notice.h"
#include "card/session.h"
#include "history/history_list.h"
#include "platform/app_home.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "settings/settings_file.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStorageInfo>

namespace mk {

namespace {

constexpr int kLaufwerkEintrag = 41;
constexpr int kVerzeichnisEintrag = 42;
constexpr int kBlinken = 3;  // DoEvents of one phase of the banner
const QString kZeilenumbruch = QStringLiteral("\r\n");

Form5& form(Merkkartelle& app) { return app.Form5; }

bool istLaufwerksbuchstabe(const QString& text)
{
    static const QRegularExpression buchstabe(QStringLiteral("^[A-Za-z](:[\\\\/]?)?$"));
    return buchstabe.match(text).hasMatch();
}

void warten(Merkkartelle& app)
{
    for (int i = 0; i < kBlinken; ++i)
        app.ui.DoEvents();
}

void banner(Merkkartelle& app, const QString& text, long farbe)
{
    form(app).Label5.Caption = text;
    form(app).Label5.ForeColor = farbe;
    warten(app);
}

QString zielverzeichnis(Merkkartelle& app)
{
    return Sicherungsverzeichnis(form(app).Text3.Text, form(app).Text2.Text);
}

void zielZeigen(Merkkartelle& app)
{
    auto& f = form(app);
    f.Label1.Caption = zielverzeichnis(app);
    f.Command3D1.Hint = QStringLiteral("Datenbank in dieses Verzeichniss kopieren: ") + f.Label1.Caption;
    f.Command3D1.ToolTipText = f.Command3D1.Hint;
}

// The drive list: the mount points of the machine's volumes, the root first.
void laufwerkeEinlesen(Merkkartelle& app)
{
    ComboBox& liste = form(app).Drive1;
    liste.Clear();
    QStringList punkte{QStringLiteral("/")};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const QString punkt = volume.rootPath();
        if (volume.isValid() && volume.isReady() && !punkte.contains(punkt))
            punkte << punkt;
    }
    for (const QString& punkt : punkte)
        liste.AddItem(punkt);
}

void laufwerkWaehlen(Merkkartelle& app)
{
    ComboBox& liste = form(app).Drive1;
    const QString punkt = Sicherungsverzeichnis(form(app).Text3.Text, QString());
    for (int i = 0; i < liste.ListCount(); ++i) {
        if (liste.List(i) == punkt) {
            liste.ListIndex = i;
            liste.Text = punkt;
            return;
        }
    }
}

// A size in kilobytes as the display shows it: the length divided by 1024, with the
// decimal sign of the desktop.
QString kilobyte(Merkkartelle& app, qint64 laenge)
{
    QString text = QString::number(double(laenge) / 1024.0, 'g', 12);
    return text.replace(u'.', app.DezimalZeichen.isEmpty() ? u',' : app.DezimalZeichen.at(0));
}

qint64 laengeOderNull(const QString& pfad)
{
    qint64 laenge = 0;
    underIgnoredErrors([&] { laenge = FileLen(pfad); });
    return laenge;
}

template <class T>
void schliessen(const std::shared_ptr<T>& objekt)
{
    underIgnoredErrors([&] {
        if (objekt)
            objekt->close();
    });
}

// Step 7: a database that is open cannot be copied.
void allesSchliessen(Merkkartelle& app)
{
    schliessen(app.Kartensatz);
    schliessen(app.Kartendatenbank);
    schliessen(app.Anrufsatz);
    schliessen(app.Anrufdatenbank);
    schliessen(app.Zweitsatz);
    schliessen(app.Zweitdatenbank);
    schliessen(app.Gesamtdatenbank);
    schliessen(app.Gesamtsatz);
}

QString kopierfehlerText(const RuntimeError& fehler)
{
    switch (fehler.Number) {
    case 55:
        return QStringLiteral("Die Datenbank wird von einem anderen Programm benutzt ") + kZeilenumbruch
            + QStringLiteral("oder die HD ist voll.");
    case err::BadFileName:
        return QStringLiteral("Die Datenbank kann nicht kopiert werden.");
    case err::PathFileAccess:
        return QStringLiteral("Die Datenbank kann nicht kopiert werden. Laufwerk nicht gültig");
    default:
        return QStringLiteral("Die Datenbank kann nicht kopiert werden.") + fehler.Description;
    }
}

// Step 4: an existing copy at the target is replaced only when the user says so.
bool ueberschreibenErlaubt(Merkkartelle& app, const QString& ziel)
{
    QString vorhanden;
    underIgnoredErrors([&] { vorhanden = Dir(ziel); });
    if (vorhanden.isEmpty())
        return true;
    const QString quelle = form(app).Label2.Caption;
    const QString frage = QStringLiteral("   Soll die externe Datei: ") + ziel + QStringLiteral(" (")
        + kilobyte(app, laengeOderNull(ziel)) + QStringLiteral(" kb) ?") + kZeilenumbruch
        + QStringLiteral("durch die aktuelle Datei: ") + quelle + QStringLiteral(" (")
        + kilobyte(app, laengeOderNull(quelle)) + QStringLiteral(" kb) ersetzt werden ?");
    return app.ui.MsgBox(frage, vbYesNo, QStringLiteral("Aktuelle Datenbank kopieren ?")) == vbYes;
}

// Step 5: the target folder, with the folders above it, when it is not there yet.
void verzeichnisAnlegen(Merkkartelle& app, const QString& verzeichnis)
{
    const QString pfad = resolvePath(verzeichnis);
    if (QFileInfo(pfad).isDir())
        return;
    if (QDir().mkpath(pfad))
        form(app).Label5.Caption = QStringLiteral("Verzeichniss wurde erstellt !");
}

void Form5_Load(Merkkartelle& app)
{
    auto& f = form(app);
    f.Label2.Caption = joinPath(app.Arbeitsverzeichnis, app.Datenbankdatei);
    f.Label4.Caption = ZeitText(app);
    laufwerkeEinlesen(app);
    const QString laufwerk = app.Einstellungsliste[kLaufwerkEintrag];
    const QString verzeichnis = app.Einstellungsliste[kVerzeichnisEintrag];
    if (!laufwerk.isEmpty())
        f.Text3.Text = laufwerk;
    if (!verzeichnis.isEmpty())
        f.Text2.Text = verzeichnis;
    // A first leave proposes a folder in the user's home.
    if (f.Text3.Text.isEmpty())
        f.Text3.Text = QStringLiteral("/");
    if (f.Text2.Text.isEmpty())
        f.Text2.Text = QDir::homePath().mid(1) + QStringLiteral("/Merkkartelle-Sicherung");
    laufwerkWaehlen(app);
    zielZeigen(app);
}

void Form5_Activate(Merkkartelle& app)
{
    banner(app, QStringLiteral("Sicherheitskopie !"), colour::Red);
    banner(app, QStringLiteral("Sicherheitskopie ?"), colour::DarkBlue);
}

void Abbrechen_Click(Merkkartelle& app)
{
    auto& f = form(app);
    banner(app, QStringLiteral("Zurück zum Merkkartelle..."), colour::Black);
    app.Einstellungsliste[kLaufwerkEintrag] = f.Text3.Text;
    app.Einstellungsliste[kVerzeichnisEintrag] = f.Text2.Text;
    unloadForm(app, app.Form5);
}

void KopierenUndBeenden_Click(Merkkartelle& app)
{
    auto& f = form(app);
    banner(app, QStringLiteral("Sicherheitskopie !"), colour::Red);
    if (!f.Text2.Text.isEmpty() && !isPathSeparator(f.Text2.Text.back()))
        f.Text2.Text += QLatin1Char('/');
    zielZeigen(app);
    const QString verzeichnis = zielverzeichnis(app);
    const QString ziel = joinPath(verzeichnis, app.Datenbankdatei);

    if (!ueberschreibenErlaubt(app, ziel)) {
        f.Label5.Caption = QStringLiteral("User abbruch !");
        return;
    }
    verzeichnisAnlegen(app, verzeichnis);
    f.Label5.Caption = QStringLiteral("Kopiere Dateien...");
    allesSchliessen(app);

    try {
        FileCopy(f.Label2.Caption, ziel);
    } catch (const RuntimeError& fehler) {
        app.ui.MsgBox(kopierfehlerText(fehler));
        f.Label5.Caption = QStringLiteral("Kopierfehler !");
        return;
    }

    // The side files come from the program's folder; one that is missing is passed over.
    const QString programm = applicationHome();
    const QStringList& dateien = Sicherungsdateien();
    for (int schritt = 1; schritt <= int(dateien.size()); ++schritt) {
        const QString& datei = dateien.at(schritt - 1);
        if (!datei.isEmpty())
            underIgnoredErrors([&] { FileCopy(joinPath(programm, datei), joinPath(verzeichnis, datei)); });
        f.Label5.Caption = QStringLiteral("Kopiere Dateien...") + QStringLiteral(" ") + QString::number(schritt);
    }

    f.Label5.Caption = QStringLiteral("Speichere konfiguration...");
    app.Hauptmaske.Label36.Caption = app.Hauptmaske.LaufendeNummer.Caption;
    underIgnoredErrors([&] { EinstellungenSchreiben(app); });
    if (app.config.Check3D5.checked())
        VerlaufSichern(app);

    f.Label5.Caption = QStringLiteral("Abgeschlossen !");
    SitzungZaehlen(app);

    QString zeitpunkt;
    underIgnoredErrors([&] { zeitpunkt = FileDateTime(ziel).toString(QStringLiteral("dd.MM.yyyy HH:mm:ss")); });
    ShowMessage(app,
                QStringLiteral("Zieldatei: ") + ziel + kZeilenumbruch + QStringLiteral("mit ")
                    + kilobyte(app, laengeOderNull(ziel)) + QStringLiteral(" Kb wurde erfolgreich gespeichert.")
                    + kZeilenumbruch + zeitpunkt,
                colour::Black, 3000);
    End(app);
}

void Drive1_Change(Merkkartelle& app)
{
    auto& f = form(app);
    if (!f.Drive1.Text.isEmpty())
        f.Text3.Text = f.Drive1.Text;
    zielZeigen(app);
}

void Text3_Change(Merkkartelle& app)
{
    underIgnoredErrors([&] { laufwerkWaehlen(app); });
    zielZeigen(app);
}

// The mask's exit button: the question about an open card, then the dialog in the mask's
// colours.
void Hauptmaske_Command3D1_Click(Merkkartelle& app)
{
    if (!OffeneBearbeitungBeenden(app))
        return;
    loadForm(app, app.Form5);
    const long farbe = app.Hauptmaske.SSPanel2.BackColor;
    for (Label* label : {&app.Form5.Label2, &app.Form5.Label3, &app.Form5.Label7})
        label->BackColor = farbe;
    showForm(app, app.Form5, true);
}

}  // namespace

const QStringList& Sicherungsdateien()
{
    static const QStringList dateien = {
        QStringLiteral("merkkartelle.cfg"), QStringLiteral("standart.den"), QString(), QString(), QString(),
        QStringLiteral("LASTUSER.DAT"), QStringLiteral("Telephone.mdb"), QStringLiteral("Schluessel.txt"),
        QStringLiteral("Titel.txt"), QStringLiteral("Firma.txt"), QStringLiteral("Vorname.txt"),
        QStringLiteral("Nachname.txt"), QStringLiteral("Strasse.txt"), QStringLiteral("Stadt.txt"),
        QStringLiteral("Staat.txt"), QStringLiteral("Land.txt"), QStringLiteral("Telefon.txt"),
        QStringLiteral("Telefax.txt"), QStringLiteral("Firmenreg.-nr.txt"), QStringLiteral("USt.Nr..txt"),
        QStringLiteral("Passport.txt"), QStringLiteral("Postfach.txt"), QStringLiteral("Mobil.txt"),
        QStringLiteral("PIN.txt"),
    };
    return dateien;
}

QString Sicherungsverzeichnis(const QString& laufwerk, const QString& verzeichnis)
{
    const QString punkt = laufwerk.trimmed();
    const QString wurzel = punkt.isEmpty() || istLaufwerksbuchstabe(punkt) ? QStringLiteral("/") : punkt;
    QString rest = verzeichnis;
    while (!rest.isEmpty() && isPathSeparator(rest.front()))
        rest.remove(0, 1);
    return rest.isEmpty() ? wurzel : joinPath(wurzel, rest);
}

void registerBackupHandlers(HandlerTable& table)
{
    const QString click = QStringLiteral("Click");
    const QString change = QStringLiteral("Change");
    const QString haupt = QStringLiteral("Hauptmaske");
    table.on(haupt, QStringLiteral("Command3D1"), click, Hauptmaske_Command3D1_Click);
    table.on(haupt, QStringLiteral("saidapr"), click,
             +[](Merkkartelle& app) { raiseEvent(app, QStringLiteral("Hauptmaske.Command3D1"), QStringLiteral("Click")); });

    const QString f = QStringLiteral("Form5");
    table.onForm(f, QStringLiteral("Load"), [](Merkkartelle& app, EventArgs&) { Form5_Load(app); });
    table.onForm(f, QStringLiteral("Activate"), [](Merkkartelle& app, EventArgs&) { Form5_Activate(app); });
    table.on(f, QStringLiteral("Command3D1"), click, KopierenUndBeenden_Click);
    table.on(f, QStringLiteral("Command3D3"), click, Abbrechen_Click);
    table.on(f, QStringLiteral("Drive1"), change, Drive1_Change);
    table.on(f, QStringLiteral("Drive1"), click, Drive1_Change);
    table.on(f, QStringLiteral("Text3"), change, Text3_Change);
    table.on(f, QStringLiteral("Text2"), change, zielZeigen);
}

}  // namespace mk
