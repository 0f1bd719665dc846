#include "attachments/linked_files.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/text_files.h"

namespace mk {

namespace {

const QString kWinIni = QStringLiteral("win.ini");
const QString kExtensions = QStringLiteral("Extensions");
constexpr int kBildfeld = 16;  // feld(16) holds the path of the card's picture
constexpr int kErsteVerknuepfung = 1;
constexpr int kLetzteVerknuepfung = 20;

Hauptmaske& maske(Merkkartelle& app) { return app.Hauptmaske; }

QString endung(const QString& pfad) { return pfad.right(3); }

long ruhefarbe(Merkkartelle& app, int eintrag, long vorgabe)
{
    const QString wert = app.Einstellungsliste[std::size_t(eintrag)];
    return wert.trimmed().isEmpty() ? vorgabe : long(Val(wert));
}

// The boxes back in their resting colours; the one started in black on cyan.
void startfarben(Merkkartelle& app, int index)
{
    const long hinten = ruhefarbe(app, 90, TextBox{}.BackColor);
    const long vorne = ruhefarbe(app, 91, TextBox{}.ForeColor);
    for (auto& [i, box] : maske(app).prog) {
        box.BackColor = hinten;
        box.ForeColor = vorne;
    }
    maske(app).prog[index].ForeColor = rgb(0, 0, 0);
    maske(app).prog[index].BackColor = rgb(0, 255, 255);
}

int aktiverIndex(Merkkartelle& app)
{
    const int index = int(Val(maske(app).Curindex.Caption));
    return maske(app).prog.exists(index) ? index : kErsteVerknuepfung;
}

// The filter index of the file choice follows the extension of the box's path.
int filterIndex(const QString& muster)
{
    static const QStringList muster_ = {QStringLiteral("*.DOC"), QStringLiteral("*.WRI"), QStringLiteral("*.TXT"),
                                        QStringLiteral("*.CDR"), QStringLiteral("*.XLS"), QStringLiteral("*.MAK"),
                                        QStringLiteral("*.DWG"), QStringLiteral("*.BMP")};
    const int at = int(muster_.indexOf(muster.toUpper()));
    return at < 0 ? int(muster_.size()) + 1 : at + 1;
}

// Choosing a file for box i, while the card is being edited.
void DateiWaehlen(Merkkartelle& app, int index)
{
    if (!bearbeitungOffen(app))
        return;
    TextBox& box = maske(app).prog[index];
    FileDialog dialog;
    dialog.DialogTitle = QStringLiteral("Merkkartelle");
    dialog.Filter = QStringLiteral("Dokumente (*.doc)|*.doc|Write(*.wri)|*.wri|Notepad(*.txt)|*.txt|Coreldrw(*.cdr)|*.cdr|"
                                   "Tabelle (*.xls)|*.xls|Visual Basic (*.mak)|*.mak|Autocad (*.dwg)|*.dwg|"
                                   "Paintbrush (*.bmp)|*.bmp|Alle Dateien (*.*)|*.*|");
    if (!box.Text.isEmpty()) {
        const QString ordner = DateiPfad(box.Text);
        underIgnoredErrors([&] { ChDrive(ordner.left(2)); });
        underIgnoredErrors([&] { ChDir(ordner); });
        dialog.InitDir = ordner;
        dialog.FileName = QStringLiteral("*") + box.Text.right(4);
        dialog.FilterIndex = filterIndex(dialog.FileName);
    }
    const FileChoice wahl = app.ui.ShowOpen(dialog);
    if (wahl.cancelled || wahl.FileName.isEmpty())
        return;
    box.Text = wahl.FileName;
    raiseEvent(app, QStringLiteral("Hauptmaske.prog(%1)").arg(index), QStringLiteral("Change"));
    // The boxes are filled in order: the next one opens once this one has a path.
    if (maske(app).prog.exists(index + 1) && index >= 2 && !maske(app).prog[index - 1].Text.isEmpty())
        maske(app).prog[index + 1].Enabled = true;
}

void init_Click(Merkkartelle& app, int index)
{
    Hauptmaske& m = maske(app);
    m.Curindex.Caption = QString::number(index);
    if (bearbeitungOffen(app)) {
        DateiWaehlen(app, index);
        return;
    }
    startfarben(app, index);
    m.progLabel2.Caption = m.prog[index].Text;
    m.progLabel4.Caption.clear();
    if (m.progLabel2.Caption.isEmpty())
        return;
    VerknuepfungStarten(app, m.progLabel2.Caption, m.Curindex.Caption);
}

void AssociarComOP_Click(Merkkartelle& app)
{
    const int index = aktiverIndex(app);
    Verknuepfen(app, maske(app).prog[index].Text, QString::number(index));
}

// The desktop's own file manager on the folder of the active link.
void SSCommand13_Click(Merkkartelle& app)
{
    const QString ordner = DateiPfad(maske(app).prog[aktiverIndex(app)].Text);
    if (ordner.isEmpty())
        return;
    underIgnoredErrors([&] { app.ui.Shell(QStringLiteral("xdg-open ") + ordner, vbNormalFocus); });
}

void hinweis(Merkkartelle& app, const QString& text) { maske(app).Panel3D3.Caption = text; }

void prog_MouseMove(Merkkartelle& app, int index)
{
    const QString pfad = maske(app).prog[index].Text;
    qint64 laenge = -1;
    underIgnoredErrors([&] { laenge = FileLen(pfad); });
    hinweis(app, laenge < 0 ? QStringLiteral("Datei: ") + pfad
                            : QStringLiteral("Datei: ") + pfad + QStringLiteral("   ") + QString::number(laenge)
                                  + QStringLiteral(" bytes"));
}

void progshow_Click(Merkkartelle& app)
{
    const QString programm = app.config.Text18.Text;
    if (!programm.isEmpty())
        underIgnoredErrors([&] { app.ui.Shell(programm, vbNormalFocus); });
}

}  // namespace

QString VerknuepftesProgramm(const QString& pfad)
{
    QString wert = GetPrivateProfileString(kExtensions, endung(pfad), QString(), kWinIni).left(255);
    // "program ^.ext": the tail of a blank, the caret, the dot and three letters goes.
    if (wert.size() >= 5 && wert.at(wert.size() - 5) == u'^') {
        wert.chop(5);
        if (wert.endsWith(u' '))
            wert.chop(1);
    }
    return wert;
}

void Verknuepfen(Merkkartelle& app, const QString& pfad, const QString& index)
{
    if (pfad.isEmpty())
        return;
    app.ui.MsgBox(QStringLiteral("Zu verknüpfende Datei ") + index);
    FileDialog dialog;
    dialog.InitDir = QStringLiteral("/usr/bin");
    dialog.FileName = QStringLiteral("*");
    dialog.DialogTitle = QStringLiteral("Programm zur verknüpfung auswählen");
    dialog.Filter = QStringLiteral("Programme (*)|*|");
    const FileChoice wahl = app.ui.ShowOpen(dialog);
    if (wahl.cancelled || wahl.FileName.isEmpty())
        return;
    maske(app).progname.Caption = wahl.FileName;
    // Writing the table is not checked.
    underIgnoredErrors([&] {
        WritePrivateProfileString(kExtensions, endung(pfad), wahl.FileName + QStringLiteral(" ^.") + endung(pfad),
                                  QStringLiteral("Win.ini"));
    });
}

void VerknuepfungStarten(Merkkartelle& app, const QString& pfad, const QString& index)
{
    const QString programm = VerknuepftesProgramm(pfad);
    bool gestartet = false;
    if (!programm.isEmpty()) {
        const QString befehl = programm + QStringLiteral(" ") + pfad;
        maske(app).progLabel4.Caption = befehl;
        gestartet = underIgnoredErrors([&] { app.ui.Shell(befehl, vbNormalFocus); });
    }
    if (!gestartet)
        Verknuepfen(app, pfad, index);
}

void registerAttachmentHandlers(HandlerTable& table)
{
    const QString haupt = QStringLiteral("Hauptmaske");
    const QString click = QStringLiteral("Click");
    const QString move = QStringLiteral("MouseMove");
    table.on(haupt, QStringLiteral("init"), click, init_Click);
    table.on(haupt, QStringLiteral("prog"), QStringLiteral("DblClick"), DateiWaehlen);
    table.on(haupt, QStringLiteral("AssociarComOP"), click, AssociarComOP_Click);
    table.on(haupt, QStringLiteral("SSCommand13"), click, SSCommand13_Click);
    table.on(haupt, QStringLiteral("progshow"), click, progshow_Click);
    // The picture's own buttons: the same start and association on its path.
    table.on(haupt, QStringLiteral("Command11"), click,
             +[](Merkkartelle& app) { VerknuepfungStarten(app, maske(app).feld[kBildfeld].Text, QStringLiteral("0")); });
    table.on(haupt, QStringLiteral("SSCommand11"), click,
             +[](Merkkartelle& app) { Verknuepfen(app, maske(app).feld[kBildfeld].Text, QStringLiteral("0")); });

    table.on(haupt, QStringLiteral("prog"), move, prog_MouseMove);
    table.on(haupt, QStringLiteral("init"), move, +[](Merkkartelle& app, int index) {
        hinweis(app, QStringLiteral("Verknüpfung aktivieren: ") + maske(app).prog[index].Text);
    });
    table.on(haupt, QStringLiteral("AssociarComOP"), move, +[](Merkkartelle& app) {
        hinweis(app, QStringLiteral("Dateinummer ") + maske(app).Curindex.Caption
                         + QStringLiteral(" verknüpfen mit einem Programm"));
    });
    table.on(haupt, QStringLiteral("SSCommand13"), move, +[](Merkkartelle& app) {
        hinweis(app, QStringLiteral("Windows Explorer im Verzeichniss starten: ")
                         + DateiPfad(maske(app).prog[aktiverIndex(app)].Text));
    });
}

}  // namespace mk
