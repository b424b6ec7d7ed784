#include "velcoredata/data/DateTimeSpan.h"

#include <ostream>

#include "main/data/TickRounding.h"

long long detail::ComposeTicks(long long days, long long hours, long long minutes, long long seconds,
                               double fraction) noexcept
{
    unsigned long long const wholeSeconds =
        ((Magnitude(hours) + Magnitude(days) * 24) * 60 + Magnitude(minutes)) * 60 + Magnitude(seconds);
    unsigned long long const ticks = wholeSeconds * 10000 + Magnitude(RealToInt64(fraction * 10000.0 + 0.5));
    bool const isNegative = days < 0 || hours < 0 || minutes < 0 || seconds < 0 || fraction < 0.0;
    return static_cast<long long>(isNegative ? 0 - ticks : ticks);
}

DateTimeSpan::DateTimeSpan(long long days, long long hours, long long minutes, long long seconds,
                           double fraction) noexcept
    : m_ticks(detail::ComposeTicks(days, hours, minutes, seconds, fraction))
{}

void DateTimeSpan::SetDateTimeSpan(long long days, long long hours, long long minutes, long long seconds,
                                   double fraction) noexcept
{
    m_ticks = detail::ComposeTicks(days, hours, minutes, seconds, fraction);
}

long long DateTimeSpan::OleSpanToFixedPrecision(double oleSpan) noexcept
{
    return static_cast<long long>(detail::TicksOfDays(oleSpan));
}

double DateTimeSpan::OleSpanFromFixedPrecision(long long ticks, bool wholeSeconds) noexcept
{
    unsigned long long magnitude = detail::Magnitude(ticks);
    if (wholeSeconds)
        magnitude -= magnitude % 10000;
    double const days = static_cast<double>(magnitude) / 864000000.0;
    return ticks < 0 ? -days : days;
}

std::ostream & operator<<(std::ostream & stream, DateTimeSpan const & span)
{
    return stream << span.ToOleSpan();
}
