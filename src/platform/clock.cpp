#include "platform/clock.h"

namespace mk {

Clock Clock::fixedAt(const QDateTime& moment)
{
    Clock clock;
    clock.setFixed(moment);
    return clock;
}

bool Clock::setFixed(const QString& moment)
{
    QDateTime parsed = QDateTime::fromString(moment.trimmed(), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    if (!parsed.isValid())
        return false;
    setFixed(parsed);
    return true;
}

void Clock::setFixed(const QDateTime& moment)
{
    fixed_ = true;
    moment_ = moment;
    offset_ = 0;
}

QDateTime Clock::Now() const
{
    if (fixed_)
        return moment_;
    return QDateTime::currentDateTime().addMSecs(offset_);
}

double Clock::Timer() const
{
    return Now().time().msecsSinceStartOfDay() / 1000.0;
}

void Clock::advance(qint64 ms)
{
    if (fixed_)
        moment_ = moment_.addMSecs(ms);
    else
        offset_ += ms;
}

}  // namespace mk
