// The card store through its handlers on a sample card file: the start to the first card
// shown, one move with the position display, and the choice of a sort slot on Form3.
// Start and move are set against their time budgets (1.5 s, 5 ms), the sort against the
// plain sorted SELECT; the ratios appear in the summary after the run.
//
// Card counts: MK_CARD_BENCH_SIZES (default 1000000).

#include "bench_support.h"

#include "card/app_state.h"
#include "card/session.h"
#include "platform/app_home.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/text_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <memory>

namespace mk::bench {

namespace {

constexpr double kStartBudget = 1.5;    // seconds from the start routine to the first card
constexpr double kMoveBudget = 0.005;   // seconds from the button to the filled mask

// An application home whose INI file names the sample file, linked into the home so that
// the companion files of the session stay out of the shared sample folder.
struct CardHome {
    QTemporaryDir dir;
    explicit CardHome(int count)
    {
        qputenv("MERKKARTELLE_HOME", dir.path().toUtf8());
        setProfileLocale(QLocale(QLocale::German, QLocale::Germany));
        layoutApplicationHome();
        const QString sample = session(count).path;
        QFile::link(sample, joinPath(dir.path(), QStringLiteral("karten.mdb")));
        WritePrivateProfileString(QStringLiteral("Databases"), QStringLiteral("Workdir"), dir.path(), iniFilePath());
        WritePrivateProfileString(QStringLiteral("Databases"), QStringLiteral("Filename"), QStringLiteral("karten.mdb"),
                                  iniFilePath());
        // The last session sorted by Nachname and ended on a card in the middle of the file.
        std::vector<WriteValue> records(196, WriteValue(QString()));
        records[29 - 1] = WriteValue(QString::number(count / 2));
        records[65 - 1] = WriteValue(QStringLiteral("5"));
        writePositionalFile(joinPath(dir.path(), QStringLiteral("merkkartelle.cfg")), records);
    }
};

struct System {
    ScriptedUserInterface ui;
    mk::Clock clock;
    Merkkartelle app{ui, clock};
};

void startToFirstCard(benchmark::State& state)
{
    const int count = int(state.range(0));
    CardHome home(count);
    Timings t;
    for (auto _ : state) {
        const Clock::time_point begin = Clock::now();
        auto system = std::make_unique<System>();
        Start(system->app);
        const double seconds = secondsSince(begin);
        if (system->app.Hauptmaske.Label8.Caption.isEmpty())
            state.SkipWithError("no card shown");
        state.SetIterationTime(seconds);
        t.store += seconds;
        t.sql += kStartBudget;
        state.PauseTiming();
        system.reset();
        state.ResumeTiming();
    }
    report(state, "card: start to first card (vs 1.5 s budget)", t);
}

void oneMove(benchmark::State& state)
{
    const int count = int(state.range(0));
    CardHome home(count);
    System system;
    Start(system.app);
    Timings t;
    long moves = 0;
    bool forward = true;
    for (auto _ : state) {
        const Clock::time_point begin = Clock::now();
        for (int i = 0; i < 200; ++i) {
            raiseEvent(system.app, forward ? QStringLiteral("Hauptmaske.EinznachHinten")
                                           : QStringLiteral("Hauptmaske.EinzNachvorne"),
                       QStringLiteral("Click"));
            ++moves;
        }
        const double seconds = secondsSince(begin);
        forward = !forward;
        state.SetIterationTime(seconds);
        t.store += seconds;
        t.sql += 200 * kMoveBudget;
    }
    state.counters["ms_per_move"] = t.store * 1000 / double(moves);
    report(state, "card: one move, mask and position (vs 5 ms budget)", t);
}

void sortSlotOnForm3(benchmark::State& state)
{
    const int count = int(state.range(0));
    CardHome home(count);
    System system;
    Start(system.app);
    Timings t;
    int slot = 6;
    for (auto _ : state) {
        const QString path = QStringLiteral("Form3.Option3D1(%1)").arg(slot);
        const Clock::time_point begin = Clock::now();
        ControlRef option = system.app.forms.control(path);
        applyClick(system.app.forms, option);
        raiseEvent(system.app, path, QStringLiteral("Click"));
        const double seconds = secondsSince(begin);
        state.SetIterationTime(seconds);
        t.store += seconds;
        const char* column = slot == 5 ? "Nachname" : "Vorname";
        t.sql += timeSql(session(count).db,
                         {std::string("SELECT Laufendenummer FROM Adressenstamm ORDER BY ") + column + " COLLATE NOCASE", {}});
        unloadForm(system.app, system.app.Message);
        slot = slot == 5 ? 6 : 5;
    }
    report(state, "card: sort slot chosen on Form3 (vs plain sorted SELECT)", t);
}

std::vector<int> cardSizes()
{
    std::vector<int> sizes;
    for (const QString& part : qEnvironmentVariable("MK_CARD_BENCH_SIZES", QStringLiteral("1000000")).split(QLatin1Char(','))) {
        bool ok = false;
        const int n = part.trimmed().toInt(&ok);
        if (ok && n > 0)
            sizes.push_back(n);
    }
    return sizes;
}

// Registered with the program's other benchmarks when it starts.
const bool registered = [] {
    for (int size : cardSizes()) {
        benchmark::RegisterBenchmark("card/start_to_first_card", startToFirstCard)
            ->Arg(size)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("card/one_move", oneMove)
            ->Arg(size)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("card/sort_slot_on_form3", sortSlotOnForm3)
            ->Arg(size)->UseManualTime()->Iterations(4)->Unit(benchmark::kMillisecond);
    }
    return true;
}();

}  // namespace

}  // namespace mk::bench
