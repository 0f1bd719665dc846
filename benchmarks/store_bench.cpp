// The store against the plain SQL each of its routines stands for, on sample card files.
// Every benchmark reports the store's time (manual time), the plain SQL's time (sql_ms) and
// their ratio; a summary of the ratios follows the run.

#include "bench_support.h"

#include "platform/jet_expression.h"
#include "platform/store.h"

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

namespace mk::bench {

namespace {

const QString Table = QStringLiteral("Adressenstamm");

// A dynaset sorted by a text column, against ORDER BY ... COLLATE NOCASE.
void sortedByName(benchmark::State& state)
{
    Session& s = session(int(state.range(0)));
    auto base = s.db->createDynaset(Table);
    base->Sort = QStringLiteral("[Nachname]");
    Timings t;
    double heldMb = 0;
    for (auto _ : state) {
        const std::size_t heapBefore = mallinfo2().uordblks;
        const Clock::time_point start = Clock::now();
        auto rs = base->createDynaset();
        benchmark::DoNotOptimize(rs->RecordCount());
        t.store += secondsSince(start);
        state.SetIterationTime(secondsSince(start));
        heldMb = double(mallinfo2().uordblks - heapBefore) / (1024.0 * 1024.0);
        rs.reset();

        t.sql += timeSql(s.db, {"SELECT Laufendenummer FROM Adressenstamm ORDER BY Nachname COLLATE NOCASE", {}});
    }
    state.counters["held_MB"] = heldMb;
    report(state, "dynaset sorted by Nachname", t);
}

// MoveNext over every card with one field read each, against one scan reading the column.
void moveNextWithRead(benchmark::State& state)
{
    Session& s = session(int(state.range(0)));
    auto rs = s.db->createDynaset(Table);
    Timings t;
    std::size_t moves = 0;
    for (auto _ : state) {
        const Clock::time_point start = Clock::now();
        rs->MoveFirst();
        while (!rs->IsEOF()) {
            benchmark::DoNotOptimize(rs->Fields(QStringLiteral("Nachname")).Value());
            rs->MoveNext();
            ++moves;
        }
        t.store += secondsSince(start);
        state.SetIterationTime(secondsSince(start));

        t.sql += timeSql(s.db, {"SELECT Nachname FROM Adressenstamm ORDER BY rowid", {}}, true);
    }
    state.counters["us_per_move"] = t.store * 1e6 / double(moves);
    report(state, "MoveNext + field read, all cards", t);
}

// The walk of a Find criterion over every match, with a fresh dynaset (nothing cached).
double findWalk(const DatabasePtr& db, const QStringList& criteria, benchmark::State& state, std::size_t& hits)
{
    state.PauseTiming();
    auto rs = db->createDynaset(Table);
    state.ResumeTiming();
    const Clock::time_point start = Clock::now();
    for (const QString& c : criteria) {
        rs->FindFirst(c);
        while (!rs->NoMatch()) {
            ++hits;
            rs->FindNext(c);
        }
    }
    return secondsSince(start);
}

void prefixFind(benchmark::State& state)
{
    Session& s = session(int(state.range(0)));
    const QString criterion = QStringLiteral("LEFT([Nachname],3) = 'Mül'");
    Timings t;
    std::size_t hits = 0;
    for (auto _ : state) {
        const double store = findWalk(s.db, {criterion}, state, hits);
        t.store += store;
        state.SetIterationTime(store);
        t.sql += timeSql(s.db, translatedWhere(s.db, criterion));
        t.native += timeSql(s.db, {"SELECT rowid FROM Adressenstamm WHERE substr(Nachname, 1, 3) = 'Mül'", {}});
    }
    state.counters["hits"] = double(hits) / double(state.iterations());
    report(state, "FindFirst/FindNext walk LEFT([Nachname],3) = 'Mül'", t);
}

void typeFilter(benchmark::State& state)
{
    Session& s = session(int(state.range(0)));
    const QString filter = QStringLiteral("[Typ] like '?1?????" "'");
    auto base = s.db->createDynaset(Table);
    base->Filter = filter;
    Timings t;
    for (auto _ : state) {
        const Clock::time_point start = Clock::now();
        auto rs = base->createDynaset();
        benchmark::DoNotOptimize(rs->RecordCount());
        t.store += secondsSince(start);
        state.SetIterationTime(secondsSince(start));
        t.sql += timeSql(s.db, translatedWhere(s.db, filter));
        t.native += timeSql(s.db, {"SELECT rowid FROM Adressenstamm WHERE Typ LIKE '_1_____'", {}});
    }
    report(state, "type Filter [Typ] like '?1?????" "'", t);
}

// One prefix criterion per field of the full search, in turn.
QStringList fullSearchCriteria()
{
    const std::vector<std::pair<const char*, const char*>> fields = {
        {"Firma", "Bä"},        {"Schluessel", "Ku"},   {"Vorname", "Jü"},        {"Telefon", "089"},
        {"PLZ", "80"},          {"Landescod", "DE"},    {"Land", "Deu"},          {"Strasse", "Hau"},
        {"Stadt", "Mün"},       {"Titel", "Dr"},        {"Nachname", "Mül"},      {"Geburtstag", "12"},
        {"Staat", "Bay"},       {"Stadteil", "Alt"},    {"Telefax", "030"},       {"Telex", "Bil"},
        {"Departament", "Ver"}, {"Celphone", "017"},    {"Bemerkung", "Ruf"},     {"Texto", "Wert 1"},
        {"Bank", "Spa"},        {"BankLeitZahl", "80"}, {"Kontonummer", "12"},    {"Firmenregisternummer", "HRB 1"},
        {"Staatsregister", "St-1"}, {"Passportnummer", "C0"}, {"Postfach", "12"}, {"Laufendenummer", "123 "},
        {"C1", "an"}};
    QStringList criteria;
    for (const auto& [column, text] : fields) {
        const QString t = QString::fromUtf8(text);
        criteria << QStringLiteral("LEFT([%1],%2) = '%3'").arg(QString::fromUtf8(column)).arg(t.size()).arg(t);
    }
    return criteria;
}

void fullSearch(benchmark::State& state)
{
    Session& s = session(int(state.range(0)));
    const QStringList criteria = fullSearchCriteria();
    Timings t;
    std::size_t hits = 0;
    for (auto _ : state) {
        const double store = findWalk(s.db, criteria, state, hits);
        t.store += store;
        state.SetIterationTime(store);
        for (const QString& c : criteria)
            t.sql += timeSql(s.db, translatedWhere(s.db, c));
    }
    state.counters["hits"] = double(hits) / double(state.iterations());
    report(state, "29 prefix criteria of the full search", t);
}

void registerStoreBenchmarks(const std::vector<int>& sizes)
{
    const std::vector<std::pair<const char*, void (*)(benchmark::State&)>> all = {
        {"store/sorted_dynaset", sortedByName},
        {"store/move_next_read", moveNextWithRead},
        {"store/find_prefix_walk", prefixFind},
        {"store/type_filter", typeFilter},
        {"store/full_search_29", fullSearch},
    };
    for (const auto& [name, fn] : all) {
        for (int size : sizes) {
            benchmark::RegisterBenchmark(name, fn)
                ->Arg(size)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond)
                ->Iterations(iterationsFor(size));
        }
    }
}

const bool registered = forEachSize(registerStoreBenchmarks);

}  // namespace

}  // namespace mk::bench
