// The click on a type filter button of the main mask, through the handler table, against the
// plain SQL it stands for: the cards of one mark in the order of the sort column. The click
// does all the system does: the database opened afresh, the cursor of the table, the filtered
// and sorted cursor, the first card into the mask, the filter display and the counter.
//
// Registered on its own for the card counts of MK_BENCH_SIZES (default 10,000, 100,000 and
// 1,000,000); its lines join the summary of the store benchmarks.

#include "bench_support.h"

#include "card/app_state.h"
#include "platform/user_interface.h"

#include <QDateTime>
#include <QStringList>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <memory>
#include <string>

namespace mk::bench {

namespace {

struct ClickSession {
    ScriptedUserInterface ui;
    mk::Clock clock = mk::Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(10, 0, 0)));
    Merkkartelle app{ui, clock};
};

// The session as the start leaves it, sorted by surname.
std::unique_ptr<ClickSession> startedOn(const QString& path)
{
    auto s = std::make_unique<ClickSession>();
    openSortedBySurname(s->app, path);
    return s;
}

std::string likeMask(int type)
{
    std::string mask(7, '_');
    mask[std::size_t(type)] = '1';
    return mask;
}

void selectorClick(benchmark::State& state)
{
    Session& data = session(int(state.range(0)));
    auto click = startedOn(data.path);
    Timings t;
    int type = 0;
    long cards = 0;
    for (auto _ : state) {
        const QString button = QStringLiteral("Hauptmaske.Selector(%1)").arg(type);
        const Clock::time_point start = Clock::now();
        raiseEvent(click->app, button, QStringLiteral("Click"));
        const double seconds = secondsSince(start);
        t.store += seconds;
        state.SetIterationTime(seconds);
        cards = click->app.Kartensatz->RecordCount();

        const QString criterion = QStringLiteral("[Typ] like '%1'").arg(QString::fromStdString(likeMask(type)).replace(QLatin1Char('_'), QLatin1Char('?')));
        jet::Sql translated = translatedWhere(data.db, criterion);
        translated.text += " ORDER BY Nachname COLLATE NOCASE";
        t.sql += timeSql(data.db, translated);
        t.native += timeSql(data.db, {"SELECT rowid FROM Adressenstamm WHERE Typ LIKE '" + likeMask(type)
                                          + "' ORDER BY Nachname COLLATE NOCASE", {}});
        type = (type + 1) % 7;
    }
    state.counters["cards"] = double(cards);
    report(state, "Selector click (type filter, sorted)", t);
}

const bool registered = [] {
    for (const QString& part : qEnvironmentVariable("MK_BENCH_SIZES", QStringLiteral("10000,100000,1000000"))
                                   .split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const int size = part.trimmed().toInt();
        if (size <= 0)
            continue;
        benchmark::RegisterBenchmark("types/selector_click", selectorClick)
            ->Arg(size)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(std::max(iterationsFor(size), 3));
    }
    return true;
}();

}  // namespace

}  // namespace mk::bench
