#include "fuzzing/fuzz_home.h"

#include "platform/clock.h"
#include "platform/profile.h"
#include "platform/user_interface.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

namespace mk::fuzz {

QString fuzzHome()
{
    static QTemporaryDir dir;
    static const bool ready = [] {
        qputenv("MERKKARTELLE_HOME", dir.path().toUtf8());
        setProfileLocale(QLocale(QLocale::German, QLocale::Germany));
        return true;
    }();
    (void)ready;
    return dir.path();
}

void writeFuzzFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size()) {
        fprintf(stderr, "cannot write %s\n", qPrintable(path));
        std::abort();
    }
}

namespace {
struct System {
    ScriptedUserInterface ui;
    Clock clock = Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(10, 0, 0)));
    Merkkartelle app{ui, clock};
};
}  // namespace

Merkkartelle& fuzzSystem()
{
    static System* system = [] {
        auto* s = new System;  // lives as long as the run
        s->app.Arbeitsverzeichnis = fuzzHome();
        return s;
    }();
    // Boxes shown by the last input are no memory to keep.
    system->ui.boxes.clear();
    system->ui.formsShown.clear();
    return system->app;
}

}  // namespace mk::fuzz
