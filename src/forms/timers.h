#pragma once
// The schedule of the forms' Timer controls. A timer ticks every Interval milliseconds while
// it is Enabled, its Interval is above 0 and its form is loaded; switching it on, or giving
// it a new Interval, starts its count afresh from that moment.
//
// The clock does not run by itself in a script: advance() moves it on and fires, in time
// order, every tick that falls due on the way.

#include "forms/registry.h"
#include "platform/clock.h"

#include <QString>
#include <functional>
#include <map>

namespace mk {

class TimerSchedule {
public:
    using Fire = std::function<void(const ControlRef& timer)>;

    // Notes which timers run now; call it after anything that may have switched one on.
    void sync(FormRegistry& forms, const Clock& clock);
    // Moves the clock on by ms, firing each tick that falls due on the way (the clock
    // stands at the tick's moment while its handler runs).
    void advance(FormRegistry& forms, Clock& clock, qint64 ms, const Fire& fire);
    // Moment (ms since the epoch) of the next tick, or -1 when no timer runs.
    qint64 nextDue() const;

private:
    struct State {
        int interval = 0;
        qint64 due = 0;
        int order = 0;  // forms in registration order, controls in declaration order
        ControlRef timer;
    };
    std::map<QString, State> states_;
};

}  // namespace mk
