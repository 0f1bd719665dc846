#include "maintenance/database_tools.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "card/session.h"
#include "platform/app_home.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <QFileInfo>

namespace mk {

namespace {

const QString kDatenbankFilter = QStringLiteral("Datenbank (*.mdb)|*.mdb|");
const QString kTitel = QStringLiteral("Datenbank Compactieren");
const QString kZeilenumbruch = QStringLiteral("\r\n");

bool dieselbeDatei(const QString& a, const QString& b)
{
    const QString ka = QFileInfo(resolvePath(a)).canonicalFilePath();
    return !ka.isEmpty() && ka == QFileInfo(resolvePath(b)).canonicalFilePath();
}

QString unveraendert(const QString& pfad, const RuntimeError& fehler)
{
    return QStringLiteral("Die Datenbank ") + pfad + kZeilenumbruch
        + QStringLiteral("wurde nicht compaktiert und ist unverändert.") + kZeilenumbruch + fehler.Description;
}

}  // namespace

QString DatenbankName(const QString& chosen)
{
    return chosen.right(4).toUpper() == QStringLiteral(".MDB") ? chosen : chosen + QStringLiteral(".mdb");
}

QString DatenbankCompactieren(const QString& pfad)
{
    const QString basis = pfad.left(pfad.size() - 4);
    const QString kopie = basis + QStringLiteral("1.mdb");
    const QString sicherung = basis + QStringLiteral(".bak");

    underIgnoredErrors([&] { Kill(kopie); });  // left over by an earlier failure
    try {
        Database::compact(resolvePath(pfad), resolvePath(kopie));
    } catch (const RuntimeError& fehler) {
        underIgnoredErrors([&] { Kill(kopie); });
        return unveraendert(pfad, fehler);
    }
    underIgnoredErrors([&] { Kill(sicherung); });
    try {
        Name(pfad, sicherung);
    } catch (const RuntimeError& fehler) {
        underIgnoredErrors([&] { Kill(kopie); });
        return unveraendert(pfad, fehler);
    }
    try {
        Name(kopie, pfad);
    } catch (const RuntimeError& fehler) {
        // The old file goes back under its name; where even that fails, the .bak is it.
        if (underIgnoredErrors([&] { Name(sicherung, pfad); })) {
            underIgnoredErrors([&] { Kill(kopie); });
            return unveraendert(pfad, fehler);
        }
        return QStringLiteral("Die Datenbank ") + pfad + kZeilenumbruch + QStringLiteral("wurde nicht compaktiert.")
            + kZeilenumbruch + QStringLiteral("Die unveränderte Datenbank liegt in ") + sicherung + kZeilenumbruch
            + QStringLiteral("die compaktierte Kopie in ") + kopie + kZeilenumbruch + fehler.Description;
    }
    return QString();
}

void newdb_Click(Merkkartelle& app)
{
    if (bearbeitungOffen(app))
        return;
    const QString vorlage = joinPath(applicationHome(), QString::fromLatin1(TemplateDatabaseName));
    ArbeitsverzeichnisSetzen(app);

    FileDialog dialog;
    dialog.FileName = QStringLiteral("Leer.mdb");
    dialog.Filter = kDatenbankFilter;
    dialog.DialogTitle = QStringLiteral("Bitte den Namen der neuen Datenbank eingeben");
    const FileChoice wahl = app.ui.ShowSave(dialog);
    if (wahl.cancelled || wahl.FileName.isEmpty())
        return;
    const QString pfad = DatenbankName(wahl.FileName);

    QString vorhanden;
    underIgnoredErrors([&] { vorhanden = Dir(pfad); });
    if (!vorhanden.isEmpty() && app.ui.MsgBox(QStringLiteral("Exsitierende Datei überschreiben ?"), vbYesNo) != vbYes)
        return;
    // The open database is in use and is never replaced by an empty one; a failed copy
    // keeps the old database open, without a word.
    if (dieselbeDatei(pfad, joinPath(app.Arbeitsverzeichnis, app.Datenbankdatei)))
        return;
    if (!underIgnoredErrors([&] { FileCopy(vorlage, pfad); }))
        return;

    app.Arbeitsverzeichnis = DateiPfad(resolvePath(pfad));
    app.Datenbankdatei = DateiName(pfad);
    app.Hauptmaske.Image2.Picture.clear();

    underIgnoredErrors([&] { INISchreiben(QStringLiteral("Dbmerkkartelle"), app.Tabellenname); });
    underIgnoredErrors([&] { INISchreiben(QStringLiteral("Workdir"), app.Arbeitsverzeichnis); });
    underIgnoredErrors([&] { INISchreiben(QStringLiteral("Filename"), app.Datenbankdatei); });
    underIgnoredErrors([&] { INISchreiben(QStringLiteral("ReadOnly"), QStringLiteral("0")); });
    underIgnoredErrors([&] { INISchreiben(QStringLiteral("DbTelephone"), QStringLiteral("0")); });

    ArbeitsverzeichnisSetzen(app);
    KartensitzungSchliessen(app);
    app.NurLesen = QStringLiteral("0");
    KartensitzungOeffnen(app, false);
    MaskeLeeren(app);
    PositionAnzeigen(app);
    app.Hauptmaske.Caption = HauptmaskeTitel(app);
}

void compactar_Click(Merkkartelle& app)
{
    FileDialog dialog;
    dialog.Filter = kDatenbankFilter;
    dialog.FilterIndex = 1;
    dialog.DialogTitle = QStringLiteral("Datenbank zum compaktieren auswählen");
    dialog.Flags = cdlOFNFileMustExist | cdlOFNPathMustExist;
    const FileChoice wahl = app.ui.ShowOpen(dialog);
    if (wahl.cancelled || wahl.FileName.isEmpty())
        return;
    const QString fehler = DatenbankCompactieren(wahl.FileName);
    if (fehler.isEmpty())
        app.ui.MsgBox(QStringLiteral("Die Datenbank ") + wahl.FileName + kZeilenumbruch + QStringLiteral("wurde compaktiert."),
                      vbOKOnly, kTitel);
    else
        app.ui.MsgBox(fehler, vbExclamation, kTitel);
    ArbeitsverzeichnisSetzen(app);
}

void registerDatabaseToolHandlers(HandlerTable& table)
{
    const QString haupt = QStringLiteral("Hauptmaske");
    table.on(haupt, QStringLiteral("newdb"), QStringLiteral("Click"), newdb_Click);
    table.on(haupt, QStringLiteral("compactar"), QStringLiteral("Click"), compactar_Click);
}

}  // namespace mk
