// The data maintenance on sample card files: the export of all cards against the plain
// SELECT * written to a file, the compaction against VACUUM INTO, and the copy of all cards
// into another database against 20,000 cards a second.

#include "bench_support.h"

#include "card/app_state.h"
#include "card/session.h"
#include "maintenance/card_transfer.h"
#include "maintenance/database_tools.h"
#include "maintenance/export.h"
#include "platform/app_home.h"
#include "platform/paths.h"
#include "platform/profile.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>
#include <sqlite3.h>

namespace mk::bench {

namespace {

constexpr double kKartenProSekunde = 20000;

struct System {
    ScriptedUserInterface ui;
    mk::Clock clock;
    Merkkartelle app{ui, clock};
};

// A started card file on a copy of the sample file, in its own home.
struct Home {
    QTemporaryDir dir;
    std::unique_ptr<System> system = std::make_unique<System>();
    QString file(const char* name) const { return joinPath(dir.path(), QString::fromLatin1(name)); }
    explicit Home(int count)
    {
        qputenv("MERKKARTELLE_HOME", dir.path().toUtf8());
        setProfileLocale(QLocale(QLocale::German, QLocale::Germany));
        layoutApplicationHome();
        QFile::copy(session(count).path, file("karten.mdb"));
        WritePrivateProfileString(QStringLiteral("Databases"), QStringLiteral("Workdir"), dir.path(), iniFilePath());
        WritePrivateProfileString(QStringLiteral("Databases"), QStringLiteral("Filename"), QStringLiteral("karten.mdb"),
                                  iniFilePath());
        Start(system->app);
    }
};

QStringList alleSpalten(Merkkartelle& app)
{
    QStringList spalten;
    for (const FieldDef& f : app.Kartendatenbank->tableDef(app.Tabellenname))
        spalten << f.Name;
    return spalten;
}

// SELECT * with every value written as text between blanks, one line per card.
double plainSelectToFile(sqlite3* db, const QString& path)
{
    const Clock::time_point start = Clock::now();
    std::FILE* out = std::fopen(QFile::encodeName(path).constData(), "wb");
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(db, "SELECT * FROM Adressenstamm", -1, &stmt, nullptr);
    const int columns = sqlite3_column_count(stmt);
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        for (int c = 0; c < columns; ++c) {
            const unsigned char* text = sqlite3_column_text(stmt, c);
            std::fputc(' ', out);
            std::fputs(text ? reinterpret_cast<const char*>(text) : "*", out);
            std::fputc(' ', out);
        }
        std::fputs("\r\n", out);
    }
    sqlite3_finalize(stmt);
    std::fclose(out);
    return secondsSince(start);
}

void exportAll(benchmark::State& state)
{
    Home home(int(state.range(0)));
    Merkkartelle& app = home.system->app;
    const QStringList spalten = alleSpalten(app);
    Timings t;
    for (auto _ : state) {
        const Clock::time_point start = Clock::now();
        ExportSchreiben(app, home.file("export.txt"), spalten, true);
        const double seconds = secondsSince(start);
        state.SetIterationTime(seconds);
        t.store += seconds;
        t.sql += plainSelectToFile(app.Kartendatenbank->handle(), home.file("plain.txt"));
    }
    report(state, "export of all cards (vs SELECT * to a file)", t);
}

void compaction(benchmark::State& state)
{
    const int count = int(state.range(0));
    QTemporaryDir dir;
    const QString path = joinPath(dir.path(), QStringLiteral("karten.mdb"));
    Timings t;
    for (auto _ : state) {
        QFile::remove(path);
        QFile::remove(joinPath(dir.path(), QStringLiteral("karten.bak")));
        QFile::copy(session(count).path, path);
        const Clock::time_point start = Clock::now();
        if (!DatenbankCompactieren(path).isEmpty())
            state.SkipWithError("the compaction failed");
        const double seconds = secondsSince(start);
        state.SetIterationTime(seconds);
        t.store += seconds;

        const QString plain = joinPath(dir.path(), QStringLiteral("plain.mdb"));
        QFile::remove(plain);
        sqlite3* db = nullptr;
        sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READONLY, nullptr);
        const Clock::time_point vacuum = Clock::now();
        const QByteArray sql = "VACUUM INTO '" + QFile::encodeName(plain) + "'";
        sqlite3_exec(db, sql.constData(), nullptr, nullptr, nullptr);
        t.sql += secondsSince(vacuum);
        sqlite3_close(db);
    }
    report(state, "compaction (vs VACUUM INTO)", t);
}

void transferAll(benchmark::State& state)
{
    const int count = int(state.range(0));
    Home home(count);
    Merkkartelle& app = home.system->app;
    Timings t;
    for (auto _ : state) {
        QFile::remove(home.file("ziel.mdb"));
        createEmptyDatabase(DatabaseKind::Cards, home.file("ziel.mdb"));
        const Clock::time_point start = Clock::now();
        const long copied = AlleKartenKopieren(app, home.file("ziel.mdb"));
        const double seconds = secondsSince(start);
        if (copied != count)
            state.SkipWithError("not every card was copied");
        state.SetIterationTime(seconds);
        t.store += seconds;
        t.sql += double(count) / kKartenProSekunde;
    }
    state.counters["cards_per_s"] = benchmark::Counter(double(count) * double(state.iterations()) / t.store);
    report(state, "transfer of all cards (vs 20,000 cards/s)", t);
}

void registrieren(const std::vector<int>& sizes)
{
    for (const int n : sizes) {
        benchmark::RegisterBenchmark("maintenance/export_all", exportAll)
            ->Arg(n)->UseManualTime()->Iterations(iterationsFor(n))->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("maintenance/compaction", compaction)
            ->Arg(n)->UseManualTime()->Iterations(iterationsFor(n))->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("maintenance/transfer_all", transferAll)
            ->Arg(n)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
    }
}

const bool registriert = forEachSize(registrieren);

}  // namespace

}  // namespace mk::bench
