#pragma once
// The clock behind Now, Date, Time and Timer. It runs with the system clock, or stands at a
// fixed moment (tests and driver scripts) and then moves only when advanced. Advancing also
// works on the running clock, as an offset, so that the driver's waits mean the same in both.

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>

namespace mk {

class Clock {
public:
    Clock() = default;  // the system clock
    static Clock fixedAt(const QDateTime& moment);
    // "YYYY-MM-DD HH:MM:SS"; false (and no change) for a text that is no such moment.
    bool setFixed(const QString& moment);
    void setFixed(const QDateTime& moment);
    bool isFixed() const { return fixed_; }

    QDateTime Now() const;
    QDate Date() const { return Now().date(); }
    QTime Time() const { return Now().time(); }
    // Seconds since midnight, with the fraction of the second.
    double Timer() const;
    // Milliseconds since the epoch, for schedules.
    qint64 msecs() const { return Now().toMSecsSinceEpoch(); }

    void advance(qint64 ms);

private:
    bool fixed_ = false;
    QDateTime moment_;   // the fixed moment
    qint64 offset_ = 0;  // advances of the running clock
};

}  // namespace mk
