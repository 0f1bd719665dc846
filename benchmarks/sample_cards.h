#pragma once
// Sample card databases for the benchmarks: German names with umlauts, firms, streets,
// cities, telephones, birthdays, type marks and notes, the same cards on every run.

#include <QString>
#include <cstdint>

namespace mk::bench {

// Writes count sample cards into a new card database at path (built from the schema source).
void writeSampleCards(const QString& path, int count, std::uint32_t seed = 4711);

// The folder of generated card files: $MK_BENCH_DATA, else bench-data in the build folder.
QString benchDataFolder();

// A card file of count cards in the bench-data folder, generated on first use and reused.
QString sampleCardFile(int count);

}  // namespace mk::bench
