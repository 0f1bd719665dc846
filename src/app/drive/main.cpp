// merkkartelle-drive SCRIPT [--home DIR] [--keep]: runs the system without a screen from a
// script and checks what the script says. Exit status 0 when every line held, 1 at the first
// expectation that failed (or a failure of the system), 2 for a fault of the script.

#include "app/drive/faults.h"
#include "app/drive/interpreter.h"
#include "app/drive/script_lexer.h"
#include "card/app_state.h"
#include "platform/files.h"
#include "platform/profile.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QStringList>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>
#include <optional>

namespace {

using namespace mk;
using namespace mk::drive;

constexpr int Held = 0;
constexpr int Failed = 1;
constexpr int Fault = 2;

struct Options {
    QString script;
    QString home;
    bool keep = false;
};

void say(FILE* stream, const QString& text)
{
    std::fputs(text.toUtf8().constData(), stream);
    std::fputc('\n', stream);
    std::fflush(stream);
}

std::optional<Options> parseArguments(const QStringList& args)
{
    Options options;
    for (qsizetype i = 1; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--keep"))
            options.keep = true;
        else if (args[i] == QLatin1String("--home") && i + 1 < args.size())
            options.home = args[++i];
        else if (options.script.isEmpty() && !args[i].startsWith(QLatin1String("--")))
            options.script = args[i];
        else
            return std::nullopt;
    }
    if (options.script.isEmpty())
        return std::nullopt;
    return options;
}

// The home the run starts in: the one given, or a fresh temporary folder that goes away at
// the end unless it is to be kept.
bool prepareHome(const Options& options, std::unique_ptr<QTemporaryDir>& temporary)
{
    QString dir = options.home;
    if (dir.isEmpty()) {
        temporary = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/merkkartelle-drive-XXXXXX"));
        if (!temporary->isValid())
            return false;
        temporary->setAutoRemove(!options.keep);
        dir = temporary->path();
        if (options.keep)
            say(stderr, QStringLiteral("home: %1").arg(dir));
    }
    dir = QDir::cleanPath(QDir::current().absoluteFilePath(dir));
    if (!QDir().mkpath(dir))
        return false;
    qputenv("MERKKARTELLE_HOME", dir.toUtf8());
    // The program starts in its home, so relative folders in the INI file mean the same to
    // the program and to the script.
    return underIgnoredErrors([&] { ChDir(dir); });
}

int runScript(const QByteArray& bytes)
{
    ScriptedUserInterface ui;
    // The clock stands still from the start, at this moment unless the script says another:
    // it moves only by wait, so that timers fall due where the script says.
    QDateTime now = QDateTime::currentDateTime();
    now.setTime(QTime(now.time().hour(), now.time().minute(), now.time().second()));
    Clock clock = Clock::fixedAt(now);
    try {
        Merkkartelle app(ui, clock);
        Interpreter interpreter(lexScript(bytes), app, ui);
        interpreter.note = [](const QString& text) { say(stderr, text); };
        const int passed = interpreter.run();
        say(stdout, QStringLiteral("%1 passed, 0 failed").arg(passed));
        return Held;
    } catch (const ExpectFailed& e) {
        say(stdout, QStringLiteral("line %1: expected %2 got %3").arg(e.line).arg(e.expected, e.got));
        return Failed;
    } catch (const SystemFailure& e) {
        say(stdout, QStringLiteral("line %1: %2").arg(e.line).arg(e.message));
        return Failed;
    } catch (const ScriptFault& e) {
        say(stdout, QStringLiteral("line %1: %2").arg(e.line).arg(e.message));
        return Fault;
    } catch (const std::exception& e) {
        say(stdout, QStringLiteral("line 0: %1").arg(QString::fromUtf8(e.what())));
        return Failed;
    }
}

}  // namespace

int main(int argc, char** argv)
{
    // Printing to PDF needs fonts, so the driver is a GUI program without a screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const std::optional<Options> options = parseArguments(QCoreApplication::arguments());
    if (!options) {
        say(stderr, QStringLiteral("usage: merkkartelle-drive SCRIPT [--home DIR] [--keep]"));
        return Fault;
    }
    QFile file(options->script);
    if (!file.open(QIODevice::ReadOnly)) {
        say(stdout, QStringLiteral("line 0: cannot read the script %1").arg(options->script));
        return Fault;
    }
    std::unique_ptr<QTemporaryDir> temporary;
    if (!prepareHome(*options, temporary)) {
        say(stdout, QStringLiteral("line 0: cannot make the application home"));
        return Fault;
    }
    // The locale values that win.ini lacks: German, as the card file was made for it.
    setProfileLocale(QLocale(QLocale::German, QLocale::Germany));
    return runScript(file.readAll());
}
