#pragma once
// What the benchmarks share: the open sample files, timing of plain SQL, and the summary of
// the ratios printed after the run.

#include "platform/jet_expression.h"
#include "platform/store.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <vector>

namespace mk::bench {

using Clock = std::chrono::steady_clock;
double secondsSince(Clock::time_point start);

struct Session {
    QString path;
    DatabasePtr db;
};
// The sample card file of count cards, opened once and read through once to warm the cache.
Session& session(int count);

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
void registerStoreBenchmarks(const std::vector<int>& sizes);

}  // namespace mk::bench
