// The card file survives being killed at any moment. A child process saves, changes, deletes,
// pastes and restores cards and writes the settings and a list file, reporting each finished
// step through a pipe; the test kills it at a random moment (SIGKILL), then checks that the
// database passes its integrity check and holds every card whose save was reported, and that
// the files it owns are either the old or the new whole file. Two hundred times, on the same
// home, so each run also starts on what the killed one left.

#include "card/app_state.h"
#include "card/session.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/text_files.h"
#include "settings/settings_file.h"
#include "support/scripted_system.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <csignal>
#include <map>
#include <random>
#include <set>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace mk::test {
namespace {

constexpr int kKills = 200;
constexpr int kListLines = 40;

void report(int fd, const QString& line)
{
    const QByteArray bytes = (line + u'\n').toUtf8();
    [[maybe_unused]] const ssize_t n = ::write(fd, bytes.constData(), size_t(bytes.size()));
}

void click(Merkkartelle& app, const char* path) { raiseEvent(app, QString::fromUtf8(path), QStringLiteral("Click")); }

// Saves the open card under a name of its own; the name is reported once the save returned
// and the mask is back to browsing with the card's number, which is how the user knows.
void saveAs(ScriptedSystem& s, int fd, const QString& name)
{
    auto& m = s.app.Hauptmaske;
    m.feld[4].Text = name;
    m.Typenliste[0].Value = 1;
    click(s.app, "Hauptmaske.NeueAdresse");
    if (m.NeueAdresse.Caption == QStringLiteral("&Neu") && m.feld[4].Text == name && !m.LaufendeNummer.Caption.isEmpty())
        report(fd, u'+' + name);
}

// The work of one child: steps chosen at random until it is killed.
[[noreturn]] void work(int fd, unsigned seed)
{
    ScriptedSystem s;
    Merkkartelle& app = s.app;
    Start(app);
    std::mt19937 pick(seed);
    for (int step = 0;; ++step) {
        const QString name = QStringLiteral("K%1-%2").arg(seed).arg(step);
        const bool empty = !app.Kartensatz || app.Kartensatz->RecordCount() == 0;
        switch (empty ? 0 : int(pick() % 6)) {
        case 0:
            click(app, "Hauptmaske.NeueAdresse");
            saveAs(s, fd, name);
            break;
        case 1:  // a change keeps the card's name
            click(app, "Hauptmaske.AdresseÄndern");
            app.Hauptmaske.feld[10].Text = name;
            click(app, "Hauptmaske.AdresseÄndern");
            break;
        case 2: {
            const QString victim = app.Hauptmaske.feld[4].Text;
            report(fd, u'?' + victim);  // from here on the card may or may not be there
            s.ui.answerMsgBox(vbYes);
            click(app, "Hauptmaske.AdresseLöschen");
            report(fd, u'-' + victim);
            break;
        }
        case 3:
            click(app, "Hauptmaske.menucopy");
            click(app, "Hauptmaske.NeueAdresse");
            click(app, "Hauptmaske.Menucolar");
            saveAs(s, fd, name);
            break;
        case 4: {
            const QStringList copies = QDir(app.Arbeitsverzeichnis).entryList({QStringLiteral("*.dat")});
            if (copies.isEmpty())
                break;
            s.ui.answerOpen(joinPath(app.Arbeitsverzeichnis, copies.at(int(pick() % unsigned(copies.size())))));
            click(app, "config.Command7");
            saveAs(s, fd, name);
            break;
        }
        default: {
            EinstellungenSchreiben(app);
            QStringList lines;
            for (int i = 0; i < kListLines; ++i)
                lines << QStringLiteral("%1 %2").arg(name).arg(i);
            printLines(joinPath(app.Arbeitsverzeichnis, QStringLiteral("Stadt.txt")), lines);
            break;
        }
        }
    }
}

// What the child reported: the cards that must be there, and those whose delete was under
// way when it died.
struct Reported {
    std::set<QString> saved;
    std::set<QString> deleting;
};

void readReports(int fd, Reported& r)
{
    QByteArray all;
    char buffer[4096];
    for (ssize_t n; (n = ::read(fd, buffer, sizeof buffer)) > 0;)
        all.append(buffer, n);
    const QList<QByteArray> lines = all.split('\n');
    // The last piece has no line end: a report cut by the kill counts as not made.
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
        const QString line = QString::fromUtf8(lines.at(i));
        const QString name = line.mid(1);
        if (line.startsWith(u'+')) {
            r.saved.insert(name);
        } else if (line.startsWith(u'?')) {
            r.deleting.insert(name);
        } else if (line.startsWith(u'-')) {
            r.deleting.erase(name);
            r.saved.erase(name);
        }
    }
}

QString integrity(const QString& path)
{
    sqlite3* db = nullptr;
    QString result = QStringLiteral("cannot open");
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK) {
        sqlite3_stmt* stmt = nullptr;
        if (sqlite3_prepare_v2(db, "PRAGMA integrity_check", -1, &stmt, nullptr) == SQLITE_OK
            && sqlite3_step(stmt) == SQLITE_ROW)
            result = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
        sqlite3_finalize(stmt);
    }
    sqlite3_close(db);
    return result;
}

std::multiset<QString> storedNames(const QString& path)
{
    std::multiset<QString> names;
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
        sqlite3_stmt* stmt = nullptr;
        if (sqlite3_prepare_v2(db, "SELECT Nachname FROM Adressenstamm", -1, &stmt, nullptr) == SQLITE_OK)
            while (sqlite3_step(stmt) == SQLITE_ROW)
                names.insert(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0))));
        sqlite3_finalize(stmt);
    }
    sqlite3_close(db);
    return names;
}

// A file the program owns is whole: missing (never written) or every line of one writing.
void expectWholeList(const QString& path, int kill)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return;
    const QList<QByteArray> lines = f.readAll().split('\n');
    ASSERT_EQ(lines.size(), kListLines + 1) << "kill " << kill;
    const QByteArray stem = lines.at(0).left(lines.at(0).lastIndexOf(' '));
    for (int i = 0; i < kListLines; ++i)
        EXPECT_EQ(lines.at(i), stem + ' ' + QByteArray::number(i) + '\r') << "kill " << kill;
}

void expectWholeSettings(const QString& path, int kill)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = f.readAll();
    EXPECT_EQ(bytes.count("\r\n"), 196) << "kill " << kill;
    EXPECT_TRUE(bytes.endsWith("\r\n")) << "kill " << kill;
}

TEST(CrashSafety, AKillAtAnyMomentLosesNoSavedCardAndDamagesNoFile)
{
    QTemporaryDir home;
    ASSERT_TRUE(home.isValid());
    qputenv("MERKKARTELLE_HOME", home.path().toUtf8());
    setProfileLocale(QLocale(QLocale::German, QLocale::Germany));
    const QString database = joinPath(home.path(), QStringLiteral("merkkartelle.mdb"));

    std::mt19937 timing(20261123);
    Reported reported;
    int killedWhileWorking = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        int pipeFds[2];
        ASSERT_EQ(::pipe(pipeFds), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            ::close(pipeFds[0]);
            try {
                work(pipeFds[1], unsigned(kill));
            } catch (...) {
                ::_exit(3);
            }
        }
        ::close(pipeFds[1]);
        std::this_thread::sleep_for(std::chrono::milliseconds(15 + timing() % 120));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the child stopped by itself at kill " << kill;
        killedWhileWorking += WTERMSIG(status) == SIGKILL;
        readReports(pipeFds[0], reported);
        ::close(pipeFds[0]);

        ASSERT_EQ(integrity(database), QStringLiteral("ok")) << "kill " << kill;
        const std::multiset<QString> stored = storedNames(database);
        for (const QString& name : reported.saved) {
            if (!reported.deleting.count(name))
                ASSERT_EQ(stored.count(name), 1u) << name.toStdString() << " lost at kill " << kill;
        }
        expectWholeSettings(joinPath(home.path(), QStringLiteral("merkkartelle.cfg")), kill);
        expectWholeList(joinPath(home.path(), QStringLiteral("Stadt.txt")), kill);
    }
    EXPECT_EQ(killedWhileWorking, kKills);
    EXPECT_GT(reported.saved.size(), std::size_t(kKills / 10));  // the children got real work done
    qunsetenv("MERKKARTELLE_HOME");
}

}  // namespace
}  // namespace mk::test
