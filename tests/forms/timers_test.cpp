// The clock and the form timers.

#include "card/app_state.h"

#include <gtest/gtest.h>

namespace mk {
namespace {

struct Tick {
    QString timer;
    QTime at;
    bool operator==(const Tick&) const = default;
};

class TimersTest : public ::testing::Test {
protected:
    TimersTest() : app(ui, clock)
    {
        for (const char* timer : {"Hauptmaske.Timer1", "Hauptmaske.Timer2", "Message.Timer1"})
            app.handlers.on(QString(timer).section('.', 0, 0), QString(timer).section('.', 1), "Timer",
                            [this, timer](Merkkartelle& a, EventArgs&) { ticks.push_back({timer, a.clock.Time()}); });
        loadForm(app, "Hauptmaske");
    }
    ScriptedUserInterface ui;
    Clock clock = Clock::fixedAt(QDateTime(QDate(2024, 5, 17), QTime(23, 59, 59)));
    Merkkartelle app;
    std::vector<Tick> ticks;
};

TEST(ClockTest, FixedClockMovesOnlyWhenAdvanced)
{
    Clock clock;
    EXPECT_FALSE(clock.isFixed());
    ASSERT_TRUE(clock.setFixed("2024-02-29 23:59:58"));
    EXPECT_EQ(clock.Date(), QDate(2024, 2, 29));
    EXPECT_DOUBLE_EQ(clock.Timer(), 86398.0);
    clock.advance(2500);
    EXPECT_EQ(clock.Now(), QDateTime(QDate(2024, 3, 1), QTime(0, 0, 0, 500)));
    EXPECT_DOUBLE_EQ(clock.Timer(), 0.5);
    EXPECT_FALSE(clock.setFixed("29.02.2024"));
    EXPECT_EQ(clock.Date(), QDate(2024, 3, 1));
}

TEST_F(TimersTest, TimersFireInTimeOrder)
{
    app.Hauptmaske.Timer1.Interval = 300;
    app.Hauptmaske.Timer2.Interval = 500;
    advanceClock(app, 1000);
    const QTime start(23, 59, 59);
    EXPECT_EQ(ticks, (std::vector<Tick>{
                         {"Hauptmaske.Timer1", start.addMSecs(300)},
                         {"Hauptmaske.Timer2", start.addMSecs(500)},
                         {"Hauptmaske.Timer1", start.addMSecs(600)},
                         {"Hauptmaske.Timer1", start.addMSecs(900)},
                         {"Hauptmaske.Timer2", start.addMSecs(1000)},
                     }));
    EXPECT_EQ(clock.Now(), QDateTime(QDate(2024, 5, 18), QTime(0, 0, 0)));
}

TEST_F(TimersTest, ATickDueIsKeptAcrossWaits)
{
    app.Hauptmaske.Timer2.Enabled = false;  // Timer1: 1000 ms
    advanceClock(app, 600);
    EXPECT_TRUE(ticks.empty());
    advanceClock(app, 600);
    ASSERT_EQ(ticks.size(), 1u);
    EXPECT_EQ(ticks[0].at, QTime(0, 0, 0));
}

TEST_F(TimersTest, OnlyEnabledTimersOfLoadedFormsTick)
{
    app.Hauptmaske.Timer2.Enabled = false;
    app.Hauptmaske.Timer1.Interval = 0;
    advanceClock(app, 5000);  // Message is not loaded; the main mask's timers are off
    EXPECT_TRUE(ticks.empty());

    loadForm(app, "Message");  // its timer runs from now: 2000 ms
    advanceClock(app, 2000);
    EXPECT_EQ(ticks, (std::vector<Tick>{{"Message.Timer1", QTime(0, 0, 6)}}));
}

TEST_F(TimersTest, ANewIntervalStartsTheCountAfresh)
{
    app.Hauptmaske.Timer2.Enabled = false;
    app.handlers.on("Hauptmaske", "Timer1", "Timer", [this](Merkkartelle& a, EventArgs&) {
        ticks.push_back({"Timer1", a.clock.Time()});
        a.Hauptmaske.Timer1.Interval = 250;
    });
    advanceClock(app, 1500);  // ticks at 1000, then every 250
    ASSERT_EQ(ticks.size(), 3u);
    EXPECT_EQ(ticks[1].at, QTime(0, 0, 0, 250));
    EXPECT_EQ(ticks[2].at, QTime(0, 0, 0, 500));
}

}  // namespace
}  // namespace mk

namespace mk {
namespace {

TEST_F(TimersTest, AWaitInsideAModalLoopNeverTurnsTheClockBack)
{
    app.Hauptmaske.Timer2.Enabled = false;
    ui.modalLoop = [this](const QString&, const std::function<bool()>& stillShown) {
        while (stillShown())
            advanceClock(app, 1500);
    };
    app.handlers.on("Hauptmaske", "Timer1", "Timer", [this](Merkkartelle& a, EventArgs&) {
        ticks.push_back({"Hauptmaske.Timer1", a.clock.Time()});
        a.Hauptmaske.Timer1.Enabled = false;
        showForm(a, "Message", true);  // closes by its own timer after 2000 ms
    });
    app.handlers.on("Message", "Timer1", "Timer", [this](Merkkartelle& a, EventArgs&) {
        ticks.push_back({"Message.Timer1", a.clock.Time()});
        unloadForm(a, "Message");
    });
    advanceClock(app, 1000);
    EXPECT_EQ(ticks, (std::vector<Tick>{{"Hauptmaske.Timer1", QTime(0, 0, 0)}, {"Message.Timer1", QTime(0, 0, 2)}}));
    EXPECT_EQ(clock.Now().time(), QTime(0, 0, 3));  // the inner waits went on to 3000 ms
}

}  // namespace
}  // namespace mk
