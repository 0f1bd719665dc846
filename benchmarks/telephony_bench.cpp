// The dialer's wait for rings on a simulated modem behind a pseudo-terminal, through
// QSerialPort: the processor an idle wait costs (target: under 2 % of one core), and how
// soon a reply of the modem stands in Label1 after it arrived (target: within 50 ms).

#include "card/app_state.h"
#include "platform/profile.h"
#include "platform/user_interface.h"
#include "support/pty_modem.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <ctime>
#include <memory>

namespace mk::bench {

namespace {

using Steady = std::chrono::steady_clock;

double processSeconds()
{
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
}

double millisecondsSince(Steady::time_point start)
{
    return std::chrono::duration<double, std::milli>(Steady::now() - start).count();
}

struct ModemSession {
    QTemporaryDir home;
    test::PtyModem modem;
    ScriptedUserInterface ui;
    mk::Clock clock = mk::Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(10, 0, 0)));
    Merkkartelle app{ui, clock};

    ModemSession()
    {
        // The serial port wants an application object for its notifiers.
        static int argc = 1;
        static char name[] = "merkkartelle-bench";
        static char* argv[] = {name, nullptr};
        if (!QCoreApplication::instance())
            static QCoreApplication application(argc, argv);
        qputenv("MERKKARTELLE_HOME", home.path().toUtf8());
        WritePrivateProfileString(QStringLiteral("Ports"), QStringLiteral("COM1"), modem.device(),
                                  QStringLiteral("MERKKARTELLE.INI"));
        app.Arbeitsverzeichnis = home.path();
    }
    // Waits for rings until stop says so; stop runs inside every DoEvents.
    void waitForRings(const std::function<bool()>& stop)
    {
        ui.onDoEvents = [this, stop] {
            modem.pump();
            if (stop())
                raiseEvent(app, QStringLiteral("DIALER.Abrir"), QStringLiteral("Click"));
        };
        raiseEvent(app, QStringLiteral("DIALER.Command3D8"), QStringLiteral("Click"));
        ui.onDoEvents = nullptr;
    }
};

void idleWaitForRings(benchmark::State& state)
{
    ModemSession s;
    double busy = 0;
    double wall = 0;
    for (auto _ : state) {
        const Steady::time_point start = Steady::now();
        const double cpuStart = processSeconds();
        bool stopped = false;
        s.waitForRings([&] {
            if (stopped || millisecondsSince(start) < 2000)
                return false;
            return stopped = true;
        });
        busy += processSeconds() - cpuStart;
        const double seconds = millisecondsSince(start) / 1000;
        wall += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["cpu_percent"] = 100 * busy / wall;
    std::printf("Idle wait for rings: %.2f %% of one core (target under 2 %%)\n", 100 * busy / wall);
}

void replyShownInLabel1(benchmark::State& state)
{
    ModemSession s;
    double worst = 0;
    double total = 0;
    int rings = 0;
    for (auto _ : state) {
        Steady::time_point sent;
        bool waiting = false;
        int quiet = 0;
        double shown = 0;
        s.waitForRings([&] {
            if (!waiting && ++quiet == 10) {
                s.app.DIALER.Label1.Caption.clear();
                s.modem.send("\r\nRING\r\n");
                sent = Steady::now();
                waiting = true;
            } else if (waiting && s.app.DIALER.Label1.Caption == QLatin1String("Anruf")) {
                shown = millisecondsSince(sent);
                return true;
            }
            return false;
        });
        worst = std::max(worst, shown);
        total += shown;
        ++rings;
        state.SetIterationTime(shown / 1000);
    }
    state.counters["worst_ms"] = worst;
    state.counters["mean_ms"] = total / std::max(rings, 1);
    std::printf("Reply of the modem in Label1: worst %.1f ms, mean %.1f ms over %d rings (target 50 ms)\n", worst,
                total / std::max(rings, 1), rings);
}

const bool registered = [] {
    benchmark::RegisterBenchmark("telephony/idle_wait_for_rings", idleWaitForRings)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1);
    benchmark::RegisterBenchmark("telephony/reply_in_label1", replyShownInLabel1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(20);
    return true;
}();

}  // namespace

}  // namespace mk::bench
