#pragma once
// What the benchmarks share: the open sample files, timing of plain SQL, and the summary of
// the ratios printed after the run.

#include "platform/jet_expression.h"
#include "platform/store.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <vector>

namespace mk {
struct Merkkartelle;
}

namespace mk::bench {

using Clock = std::chrono::steady_clock;
double secondsSince(Clock::time_point start);

struct Session {
    QString path;
    DatabasePtr db;
};
// The sample card file of count cards, opened once and read through once to warm the cache.
Session& session(int count);

// The session as the start leaves it on a sample file: the database open and the cursor of
// the card table sorted by surname.
void openSortedBySurname(Merkkartelle& app, const QString& path);

// Runs a plain statement to its end (reading column 0 as text when asked); its seconds.
double timeSql(const DatabasePtr& db, const jet::Sql& sql, bool readText = false);
// "SELECT rowid FROM Adressenstamm WHERE <criterion translated>".
jet::Sql translatedWhere(const DatabasePtr& db, const QString& criterion);

struct Timings {
    double store = 0;
    double sql = 0;
    double native = 0;  // a hand-written SQL without the expression functions, if timed
};
// Sets the counters sql_ms and ratio (and native_ms, ratio_native) and keeps the line for
// the summary.
void report(benchmark::State& state, const char* what, const Timings& t);
void printSummary();

int iterationsFor(int size);

// Benchmark files hand main a registration to run for the card counts chosen on the command
// line (--sizes=10000,100000) or in MK_BENCH_SIZES; default 10,000, 100,000 and 1,000,000.
// Use it from a static initialiser: const bool registered = forEachSize(myRegistration);
using Registration = void (*)(const std::vector<int>& sizes);
bool forEachSize(Registration registration);
void registerAll(const std::vector<int>& sizes);  // called by main

}  // namespace mk::bench
