// The history and the connections through their handlers on a sample card file: a click on
// a history line bringing its card into the mask, the button that follows a connection, and
// what recording a visit adds to a move. The first two are set against the budget of a move
// (5 ms), the recording against the move without it plus 1 ms; a ratio under 1 is in budget.
//
// Registered for the card counts of MK_BENCH_SIZES (or --sizes).

#include "bench_support.h"

#include "card/app_state.h"
#include "card/card_cursor.h"
#include "card/mask_transfer.h"
#include "card/session.h"
#include "history/connections.h"
#include "platform/paths.h"
#include "platform/user_interface.h"

#include <QDateTime>
#include <benchmark/benchmark.h>
#include <memory>

namespace mk::bench {

namespace {

constexpr double kMoveBudget = 0.005;
constexpr double kRecordingBudget = 0.001;

struct HistorySession {
    ScriptedUserInterface ui;
    mk::Clock clock = mk::Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(10, 0, 0)));
    Merkkartelle app{ui, clock};
};

// Both card sessions opened on the sample file as the start opens them, sorted by surname,
// the first card shown.
std::unique_ptr<HistorySession> startedOn(const QString& path)
{
    auto s = std::make_unique<HistorySession>();
    Merkkartelle& app = s->app;
    app.Arbeitsverzeichnis = DateiPfad(path);
    app.Datenbankdatei = DateiName(path);
    app.Tabellenname = QStringLiteral("Adressenstamm");
    app.Sortierfeld = QStringLiteral("Nachname");
    KartensitzungOeffnen(app, false);
    auto base = app.Kartendatenbank->createDynaset(app.Tabellenname);
    base->Sort = QStringLiteral("[Nachname]");
    app.Kartensatz = base->createDynaset();
    app.Kartensatz->MoveFirst();
    DatenInMaske(app);
    return s;
}

// Numbers spread over the whole file.
long spreadNumber(int i, int count, int of) { return 1 + long(i) * (count / of); }

void historyLineToMask(benchmark::State& state)
{
    const int count = int(state.range(0));
    auto s = startedOn(session(count).path);
    Merkkartelle& app = s->app;
    ListBox& list = app.replay.Schnelleauswahlliste;
    for (int i = 0; i < 100; ++i) {
        const int line = list.AddItem(QStringLiteral("Karte"));
        list.setItemData(line, spreadNumber(i, count, 100));
    }
    Timings t;
    int line = 0;
    for (auto _ : state) {
        const Clock::time_point begin = Clock::now();
        for (int i = 0; i < 20; ++i) {
            list.ListIndex = line;
            raiseEvent(app, QStringLiteral("replay.Schnelleauswahlliste"), QStringLiteral("Click"));
            line = (line + 37) % 100;
        }
        const double seconds = secondsSince(begin);
        if (app.replay.Label2.Caption != app.Hauptmaske.LaufendeNummer.Caption)
            state.SkipWithError("the card of the line was not shown");
        state.SetIterationTime(seconds);
        t.store += seconds;
        t.sql += 20 * kMoveBudget;
    }
    report(state, "history: a history line into the mask (vs 5 ms budget)", t);
}

void followConnection(benchmark::State& state)
{
    const int count = int(state.range(0));
    auto s = startedOn(session(count).path);
    Merkkartelle& app = s->app;
    Command3_Click(app);
    Timings t;
    int slot = 1;
    for (auto _ : state) {
        const Clock::time_point begin = Clock::now();
        for (int i = 0; i < 20; ++i) {
            // Each card shown brings its own slots: the slot in use names the next card.
            app.Aform.feldB[slot].Text = QString::number(spreadNumber(slot, count, 11));
            app.Aform.Label5.Caption = QString::number(slot);
            raiseEvent(app, QStringLiteral("Aform.Command6"), QStringLiteral("Click"));
            slot = slot % 10 + 1;
        }
        const double seconds = secondsSince(begin);
        state.SetIterationTime(seconds);
        t.store += seconds;
        t.sql += 20 * kMoveBudget;
    }
    const int last = slot == 1 ? 10 : slot - 1;
    if (app.Hauptmaske.LaufendeNummer.Caption != QString::number(spreadNumber(last, count, 11)))
        state.SkipWithError("the connected card was not shown");
    report(state, "history: following a connection into the mask (vs 5 ms budget)", t);
}

// The same forward moves once without and once with recording; each recorded card is new to
// the list, the dearer case.
void recordingAVisit(benchmark::State& state)
{
    const int count = int(state.range(0));
    auto s = startedOn(session(count).path);
    Merkkartelle& app = s->app;
    constexpr int kMoves = 100;
    const auto moves = [&](bool recording) {
        app.config.Check3D5.Value = recording ? 1 : 0;
        app.replay.Schnelleauswahlliste.Clear();
        underIgnoredErrors([&] { kartensatz(app).MoveFirst(); });
        const Clock::time_point begin = Clock::now();
        for (int i = 0; i < kMoves; ++i)
            raiseEvent(app, QStringLiteral("Hauptmaske.EinznachHinten"), QStringLiteral("Click"));
        return secondsSince(begin);
    };
    Timings t;
    double added = 0;
    long rounds = 0;
    for (auto _ : state) {
        const double without = moves(false);
        const double with = moves(true);
        if (app.replay.Schnelleauswahlliste.ListCount() != kMoves)
            state.SkipWithError("the moves were not recorded");
        state.SetIterationTime(with);
        t.store += with;
        t.sql += without + kMoves * kRecordingBudget;
        added += (with - without) / kMoves;
        ++rounds;
    }
    state.counters["added_ms_per_move"] = added * 1000 / double(std::max(rounds, 1L));
    report(state, "history: a move with recording (vs the move without it + 1 ms)", t);
}

void registerHistoryBenchmarks(const std::vector<int>& sizes)
{
    for (int size : sizes) {
        benchmark::RegisterBenchmark("history/line_to_mask", historyLineToMask)
            ->Arg(size)->UseManualTime()->Iterations(std::max(iterationsFor(size), 3))->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("history/follow_connection", followConnection)
            ->Arg(size)->UseManualTime()->Iterations(std::max(iterationsFor(size), 3))->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("history/recording_a_visit", recordingAVisit)
            ->Arg(size)->UseManualTime()->Iterations(std::max(iterationsFor(size), 3))->Unit(benchmark::kMillisecond);
    }
}

const bool registered = forEachSize(registerHistoryBenchmarks);

}  // namespace

}  // namespace mk::bench
