// merkkartelle-bench: the benchmarks of the store on sample card files of 10,000, 100,000
// and 1,000,000 cards. Choose sizes with --sizes=10000,100000 or MK_BENCH_SIZES; the other
// arguments are Google Benchmark's.

#include "bench_support.h"

#include <QString>
#include <QStringList>
#include <cstdio>
#include <cstring>

namespace {

std::vector<int> parseSizes(const QString& text)
{
    std::vector<int> sizes;
    for (const QString& part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        bool ok = false;
        const int n = part.trimmed().toInt(&ok);
        if (ok && n > 0)
            sizes.push_back(n);
    }
    return sizes;
}

}  // namespace

int main(int argc, char** argv)
{
    QString sizeText = qEnvironmentVariable("MK_BENCH_SIZES", QStringLiteral("10000,100000,1000000"));
    std::vector<char*> args;
    for (int i = 0; i < argc; ++i) {
        if (std::strncmp(argv[i], "--sizes=", 8) == 0)
            sizeText = QString::fromLocal8Bit(argv[i] + 8);
        else
            args.push_back(argv[i]);
    }
    const std::vector<int> sizes = parseSizes(sizeText);
    if (sizes.empty()) {
        std::fprintf(stderr, "no card counts in \"%s\"\n", qPrintable(sizeText));
        return 2;
    }
    int count = int(args.size());
    benchmark::Initialize(&count, args.data());
    if (benchmark::ReportUnrecognizedArguments(count, args.data()))
        return 2;
    mk::bench::registerAll(sizes);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    mk::bench::printSummary();
    return 0;
}
