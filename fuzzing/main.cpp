// merkkartelle-fuzz TARGET SECONDS [--runs N] [--corpus DIR] [--seed S]
//
// Feeds one reader of outside data with its seeds, the inputs kept under DIR/TARGET, and then
// with mutations of them until SECONDS have passed or N inputs have run. The program's own
// refusal of a bad file (RuntimeError) is an answer; a crash, a sanitizer report, an input
// that takes longer than ten seconds, or any other exception is a finding: the input stands
// in fuzz-current-TARGET.bin of the working folder when the program stops. "list" names the
// targets.

#include "fuzzing/fuzz_target.h"

#include "platform/runtime_error.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <random>
#include <unistd.h>

namespace mk::fuzz {

std::vector<Target> platformTargets();
std::vector<Target> settingsTargets();

const std::vector<Target>& targets()
{
    static const std::vector<Target> all = [] {
        std::vector<Target> t = platformTargets();
        for (auto&& more : {settingsTargets()})
            t.insert(t.end(), more.begin(), more.end());
        return t;
    }();
    return all;
}

namespace {

constexpr int kHangSeconds = 10;
constexpr qsizetype kLargest = 64 * 1024;

const char* const kTokens[] = {
    "\"", ",", "\r\n", "\n", "\r", "#TRUE#", "#FALSE#", "#NULL#", "[", "]", "(", ")", "'", "*", "?", "#",
    "!", "-", " LIKE ", " AND ", " OR ", " NOT ", " BETWEEN ", " IS NULL", "=", "<>", "&", "0", "-1",
    "99999999999999999999", "1e308", "\xff", "\xc3", "\xe2\x82", "ä", "ß", " DESC", "LEFT(", "MID(",
    "\\", "/", "..", "=\r\n", "[Intl]", "\t", " ",
};

class Mutator {
public:
    explicit Mutator(unsigned seed) : random_(seed) {}

    QByteArray mutate(QByteArray input, const std::vector<QByteArray>& pool)
    {
        const int steps = 1 + int(below(4));
        for (int i = 0; i < steps; ++i)
            step(input, pool);
        if (input.size() > kLargest)
            input.truncate(kLargest);
        return input;
    }
    std::size_t below(std::size_t n) { return n == 0 ? 0 : std::size_t(random_() % n); }

private:
    qsizetype at(const QByteArray& b) { return qsizetype(below(std::size_t(b.size()) + 1)); }

    void step(QByteArray& b, const std::vector<QByteArray>& pool)
    {
        switch (below(8)) {
        case 0:
            if (!b.isEmpty())
                b[at(b) % b.size()] = char(b[at(b) % b.size()] ^ char(1 << below(8)));
            break;
        case 1:
            if (!b.isEmpty())
                b[at(b) % b.size()] = char(below(256));
            break;
        case 2:
            b.insert(at(b), QByteArray(1 + qsizetype(below(4)), char(below(256))));
            break;
        case 3: {
            const qsizetype from = at(b);
            b.remove(from, qsizetype(below(16)) + 1);
            break;
        }
        case 4: {
            const qsizetype from = at(b);
            const QByteArray piece = b.mid(from, qsizetype(below(64)) + 1);
            b.insert(at(b), piece.repeated(1 + qsizetype(below(3))));
            break;
        }
        case 5:
            b.insert(at(b), kTokens[below(std::size(kTokens))]);
            break;
        case 6: {
            const QByteArray& other = pool[below(pool.size())];
            b = b.left(at(b)) + other.mid(qsizetype(below(std::size_t(other.size()) + 1)));
            break;
        }
        default:
            b.truncate(at(b));
            break;
        }
    }

    std::mt19937 random_;
};

QString currentFile;

void hang(int)
{
    static const char message[] = "finding: an input ran longer than the hang limit\n";
    [[maybe_unused]] const ssize_t n = ::write(2, message, sizeof message - 1);
    ::_exit(2);
}

// Runs one input; the file holds it first, so a crash leaves it behind.
void runOne(const Target& target, const QByteArray& input)
{
    QFile keep(currentFile);
    if (keep.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        keep.write(input);
        keep.close();
    }
    ::alarm(kHangSeconds);
    try {
        target.run(input);
    } catch (const RuntimeError&) {
        // The reader refused the input with the program's own error: its answer, no finding.
    }
    ::alarm(0);
}

int usage()
{
    std::fprintf(stderr, "usage: merkkartelle-fuzz TARGET SECONDS [--runs N] [--corpus DIR] [--seed S]\n"
                         "       merkkartelle-fuzz list\n");
    return 2;
}

}  // namespace
}  // namespace mk::fuzz

int main(int argc, char** argv)
{
    using namespace mk::fuzz;
    QCoreApplication application(argc, argv);
    if (argc >= 2 && std::strcmp(argv[1], "list") == 0) {
        for (const Target& t : targets())
            std::printf("%-12s %s\n", t.name, t.what);
        return 0;
    }
    if (argc < 3)
        return usage();
    const Target* target = nullptr;
    for (const Target& t : targets())
        if (std::strcmp(t.name, argv[1]) == 0)
            target = &t;
    if (!target)
        return usage();
    const double seconds = std::atof(argv[2]);
    long runs = -1;
    QString corpus;
    unsigned seed = 20261123;
    for (int i = 3; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--runs") == 0)
            runs = std::atol(argv[i + 1]);
        else if (std::strcmp(argv[i], "--corpus") == 0)
            corpus = QString::fromLocal8Bit(argv[i + 1]);
        else if (std::strcmp(argv[i], "--seed") == 0)
            seed = unsigned(std::strtoul(argv[i + 1], nullptr, 10));
        else
            return usage();
    }
    currentFile = QStringLiteral("fuzz-current-%1.bin").arg(QString::fromLatin1(target->name));
    std::signal(SIGALRM, hang);

    std::vector<QByteArray> pool = target->seeds();
    if (!corpus.isEmpty()) {
        const QDir kept(QDir(corpus).filePath(QString::fromLatin1(target->name)));
        for (const QString& name : kept.entryList(QDir::Files, QDir::Name)) {
            QFile f(kept.filePath(name));
            if (f.open(QIODevice::ReadOnly))
                pool.push_back(f.readAll());
        }
    }
    for (const QByteArray& input : pool)
        runOne(*target, input);

    Mutator mutator(seed);
    QElapsedTimer clock;
    clock.start();
    long done = long(pool.size());
    while ((runs < 0 || done < runs) && (runs >= 0 || clock.elapsed() < qint64(seconds * 1000))) {
        const QByteArray input = mutator.mutate(pool[mutator.below(pool.size())], pool);
        runOne(*target, input);
        ++done;
    }
    QFile::remove(currentFile);
    std::printf("%s: %ld inputs in %.1f s, no finding\n", target->name, done, double(clock.elapsed()) / 1000);
    return 0;
}
