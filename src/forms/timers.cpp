#include "forms/timers.h"

#include <set>

namespace mk {

void TimerSchedule::sync(FormRegistry& forms, const Clock& clock)
{
    const qint64 now = clock.msecs();
    std::set<QString> running;
    int order = 0;
    for (const QString& name : forms.formNames()) {
        const bool loaded = forms.form(name).Loaded;
        for (const ControlRef& ref : forms.controls(name)) {
            if (ref.kind != ControlKind::Timer)
                continue;
            ++order;
            const auto& timer = ref.as<Timer>();
            if (!loaded || !timer.Enabled || timer.Interval <= 0)
                continue;
            const QString key = ref.path();
            running.insert(key);
            State& state = states_[key];
            if (state.interval != timer.Interval) {
                state.interval = timer.Interval;
                state.due = now + timer.Interval;
            }
            state.order = order;
            state.timer = ref;
        }
    }
    std::erase_if(states_, [&](const auto& entry) { return !running.count(entry.first); });
}

qint64 TimerSchedule::nextDue() const
{
    qint64 next = -1;
    for (const auto& [key, state] : states_)
        if (next < 0 || state.due < next)
            next = state.due;
    return next;
}

void TimerSchedule::advance(FormRegistry& forms, Clock& clock, qint64 ms, const Fire& fire)
{
    const qint64 target = clock.msecs() + ms;
    for (;;) {
        sync(forms, clock);
        const State* first = nullptr;
        for (const auto& [key, state] : states_)
            if (!first || state.due < first->due || (state.due == first->due && state.order < first->order))
                first = &state;
        if (!first || first->due > target)
            break;
        // A wait inside a handler (a modal form's loop) may have moved the clock further
        // on already: it never goes back.
        if (first->due > clock.msecs())
            clock.advance(first->due - clock.msecs());
        State& ticking = states_[first->timer.path()];
        ticking.due += ticking.interval;
        const ControlRef timer = ticking.timer;
        fire(timer);
    }
    if (target > clock.msecs())
        clock.advance(target - clock.msecs());
}

}  // namespace mk
