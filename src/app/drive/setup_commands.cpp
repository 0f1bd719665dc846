// Set-up commands: the home, the INI file, cards, files and the clock the system will meet.

#include "app/drive/faults.h"
#include "app/drive/interpreter.h"
#include "platform/app_home.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/printer.h"
#include "platform/profile.h"
#include "platform/store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace mk::drive {

namespace {

const QString Section = QStringLiteral("Databases");
const QString IniFile = QStringLiteral("MERKKARTELLE.INI");

QString iniValue(const char* key, const QString& defaultValue)
{
    return GetPrivateProfileString(Section, QLatin1String(key), defaultValue, IniFile);
}

}  // namespace

void Interpreter::home(const ScriptLine& line)
{
    need(line, 2, "home DIR");
    if (started_)
        fault(QStringLiteral("home must come before start"));
    const QString dir = QDir::cleanPath(QDir::current().absoluteFilePath(line.tokens[1].text));
    if (!QDir().mkpath(dir))
        fault(QStringLiteral("cannot create the home %1").arg(quotedValue(dir)));
    qputenv("MERKKARTELLE_HOME", dir.toUtf8());
    ChDir(dir);
}

void Interpreter::layout(const ScriptLine& line)
{
    need(line, 1, "layout");
    try {
        layoutApplicationHome();
    } catch (const RuntimeError& e) {
        fault(QStringLiteral("layout: %1").arg(e.Description));
    }
}

void Interpreter::ini(const ScriptLine& line)
{
    need(line, 3, "ini KEY VALUE");
    WritePrivateProfileString(Section, line.tokens[1].text, line.tokens[2].text, IniFile);
}

// The card database as the start routine finds it: Workdir and Filename of the INI file,
// with the program's folder and "merkkartelle.mdb" where they are missing.
QString Interpreter::cardDatabasePath()
{
    const QString dir = fromHome(iniValue("Workdir", applicationHome()));
    return resolvePath(joinPath(dir, iniValue("Filename", QStringLiteral("merkkartelle.mdb"))));
}

QString Interpreter::cardTableName()
{
    return iniValue("Dbmerkkartelle", QStringLiteral("Adressenstamm"));
}

void Interpreter::card(const ScriptLine& line)
{
    if (line.tokens.size() < 2)
        fault(QStringLiteral("usage: card COL=VALUE …"));
    const QString path = cardDatabasePath();
    if (!QFileInfo::exists(path))
        fault(QStringLiteral("card: there is no database %1 (layout first?)").arg(quotedValue(path)));
    try {
        DatabasePtr db = Database::open(path);
        RecordsetPtr rs = db->createDynaset(cardTableName());
        rs->AddNew();
        for (std::size_t i = 1; i < line.tokens.size(); ++i) {
            const Token& t = line.tokens[i];
            const qsizetype eq = t.text.indexOf(u'=');
            if (eq <= 0)
                fault(QStringLiteral("card: %1 is no COL=VALUE").arg(quotedValue(t.text)));
            const QString value = t.text.mid(eq + 1);
            // Null only for the bare word: COL="null" is the text.
            const bool null = !t.quoted && value.compare(QLatin1String("null"), Qt::CaseInsensitive) == 0;
            rs->Fields(t.text.left(eq)).setValue(null ? QVariant() : QVariant(value));
        }
        rs->Update();
        rs->close();
        db->close();
    } catch (const RuntimeError& e) {
        fault(QStringLiteral("card: %1").arg(e.Description));
    }
}

void Interpreter::write(const ScriptLine& line)
{
    need(line, 3, "write PATH VALUE");
    const QString path = filePath(line.tokens[1].text);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        || file.write(line.tokens[2].text.toUtf8()) < 0)
        fault(QStringLiteral("cannot write %1").arg(quotedValue(path)));
}

void Interpreter::clock(const ScriptLine& line)
{
    need(line, 2, "clock \"YYYY-MM-DD HH:MM:SS\"");
    if (!app_.clock.setFixed(line.tokens[1].text))
        fault(QStringLiteral("clock takes \"YYYY-MM-DD HH:MM:SS\", not %1").arg(quotedValue(line.tokens[1].text)));
    // Timers count afresh from the new moment.
    app_.timers = TimerSchedule{};
    app_.timers.sync(app_.forms, app_.clock);
}

namespace {

// An empty log file; false when it cannot be written.
bool freshLog(const QString& path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

}  // namespace

void Interpreter::printer(const ScriptLine& line)
{
    need(line, 2, "printer PATH");
    const QString log = QFileInfo(filePath(line.tokens[1].text)).absoluteFilePath();
    if (!freshLog(log))
        fault(QStringLiteral("cannot write %1").arg(quotedValue(log)));
    app_.printing.setPrinter(nullptr);
    app_.printing.makePrinter = [log] {
        auto printer = std::make_unique<RecordingSurface>(kA4HeightTwips, kA4WidthTwips);
        printer->logPath = log;
        printer->keepOps = false;  // the log is what a script reads
        return printer;
    };
}

void Interpreter::preview(const ScriptLine& line)
{
    need(line, 2, "preview PATH");
    const QString log = QFileInfo(filePath(line.tokens[1].text)).absoluteFilePath();
    if (!freshLog(log))
        fault(QStringLiteral("cannot write %1").arg(quotedValue(log)));
    app_.printing.previewLog = log;
}

}  // namespace mk::drive
