#pragma once

#include <cstdint>
#include <iosfwd>

#include "velcoredata/core/Export.h"
#include "velsys/Arithmetic.h"

/// A signed difference between two `DateTime`s, counted in ticks of 1/10,000 second (864,000,000 ticks are a day).
///
/// A plain value of 8 bytes. Sums, differences and products wrap in 64 bits without notice. `Time` and `Interval` count
/// microseconds and do not convert to or from this type.
///
/// Example: the span of 26 hours has GetDays() 1, GetHours() 2, GetTotalHours() 26.
class VELCOREDATA_API DateTimeSpan
{
public:
    /// A span of the given ticks.
    constexpr DateTimeSpan(long long ticks = 0) noexcept : m_ticks(ticks) {}
    constexpr DateTimeSpan(long ticks) noexcept : m_ticks(ticks) {}
    constexpr DateTimeSpan(int ticks) noexcept : m_ticks(ticks) {}

    /// A span of (fractions of) days: DateTimeSpan(-1.25).GetTotalHours() is -30. Half a tick rounds away from zero.
    explicit DateTimeSpan(double oleSpan) noexcept : m_ticks(OleSpanToFixedPrecision(oleSpan)) {}

    /// The span of the magnitudes of all five parts added up, `fraction` in seconds and rounded to ticks by
    /// truncate(fraction x 10000 + 0.5). If any one of the five is negative, the whole span is:
    /// DateTimeSpan(-1, 2, 0, 0, 0.0) is minus 26 hours, not minus 22.
    DateTimeSpan(long long days, long long hours, long long minutes, long long seconds, double fraction) noexcept;

    DateTimeSpan & operator=(long long ticks) noexcept
    {
        m_ticks = ticks;
        return *this;
    }

    /// Replaces the value as the constructor of the same arguments does.
    void SetDateTimeSpan(long long days, long long hours, long long minutes, long long seconds,
                         double fraction) noexcept;

    static DateTimeSpan Days(long long days) noexcept { return {days, 0, 0, 0, 0.0}; }

    /// FromMilliseconds(1).GetRepresentation() is 10.
    static constexpr DateTimeSpan FromMilliseconds(long long milliseconds) noexcept
    {
        return detail::WrapMul(milliseconds, 10LL);
    }

    /// The ticks.
    constexpr long long GetRepresentation() const noexcept { return m_ticks; }

    // Parts within the next larger unit. Every part has the sign of the span. Hours, minutes and seconds are taken
    // from the low 32 bits of the total.

    std::int32_t GetDays() const noexcept { return static_cast<std::int32_t>(GetTotalDays()); }
    std::int32_t GetHours() const noexcept { return static_cast<std::int32_t>(GetTotalHours()) % 24; }
    std::int32_t GetMinutes() const noexcept { return static_cast<std::int32_t>(GetTotalMinutes()) % 60; }
    std::int32_t GetSeconds() const noexcept { return static_cast<std::int32_t>(GetTotalSeconds()) % 60; }
    /// The part below a second, in seconds: -0.9999 to 0.9999.
    double GetFraction() const noexcept { return static_cast<double>(m_ticks % 10000) / 10000.0; }

    // Totals, truncated toward zero. Days are held in 32 bits, and hours and minutes are composed from them.

    long long GetTotalDays() const noexcept { return static_cast<std::int32_t>(m_ticks / 864000000); }
    long long GetTotalHours() const noexcept { return GetTotalDays() * 24 + m_ticks / 36000000 % 24; }
    long long GetTotalMinutes() const noexcept { return GetTotalHours() * 60 + m_ticks / 600000 % 60; }
    long long GetTotalSeconds() const noexcept { return m_ticks / 10000; }
    long long GetTotalMilliseconds() const noexcept { return m_ticks / 10; }

    /// The span in days: DateTimeSpan(0, 12, 0, 0, 0.0).ToOleSpan() is 0.5.
    double ToOleSpan() const noexcept { return OleSpanFromFixedPrecision(m_ticks, false); }

    constexpr DateTimeSpan operator+(DateTimeSpan const & other) const noexcept
    {
        return detail::WrapAdd(m_ticks, other.m_ticks);
    }
    constexpr DateTimeSpan operator-(DateTimeSpan const & other) const noexcept
    {
        return detail::WrapSub(m_ticks, other.m_ticks);
    }
    constexpr DateTimeSpan operator-() const noexcept { return detail::WrapNeg(m_ticks); }
    DateTimeSpan & operator+=(DateTimeSpan const & other) noexcept { return *this = *this + other; }
    DateTimeSpan & operator-=(DateTimeSpan const & other) noexcept { return *this = *this - other; }

    constexpr bool operator==(DateTimeSpan const & other) const noexcept { return m_ticks == other.m_ticks; }
    constexpr bool operator!=(DateTimeSpan const & other) const noexcept { return m_ticks != other.m_ticks; }
    constexpr bool operator<(DateTimeSpan const & other) const noexcept { return m_ticks < other.m_ticks; }
    constexpr bool operator<=(DateTimeSpan const & other) const noexcept { return m_ticks <= other.m_ticks; }
    constexpr bool operator>(DateTimeSpan const & other) const noexcept { return m_ticks > other.m_ticks; }
    constexpr bool operator>=(DateTimeSpan const & other) const noexcept { return m_ticks >= other.m_ticks; }

    /// -1, 0 or 1 as this span is less than, equal to or greater than the other.
    constexpr int Compare(DateTimeSpan const & other) const noexcept { return (*this > other) - (*this < other); }

private:
    static long long OleSpanToFixedPrecision(double oleSpan) noexcept;
    static double OleSpanFromFixedPrecision(long long ticks, bool wholeSeconds) noexcept;

    long long m_ticks;
};

/// Ticks times the factor, wrapping.
constexpr DateTimeSpan operator*(DateTimeSpan const & span, int factor) noexcept
{
    return detail::WrapMul(span.GetRepresentation(), static_cast<long long>(factor));
}

/// Ticks divided by the divisor, truncated toward zero. REQUIRES: divisor != 0 and not (lowest ticks / -1): either
/// ends the process.
inline DateTimeSpan operator/(DateTimeSpan const & span, int divisor) noexcept
{
    return detail::DivideOrDie(span.GetRepresentation(), static_cast<long long>(divisor));
}

/// How often `b` goes into `a`, truncated toward zero. REQUIRES: as above.
inline long long operator/(DateTimeSpan const & a, DateTimeSpan const & b) noexcept
{
    return detail::DivideOrDie(a.GetRepresentation(), b.GetRepresentation());
}

namespace detail {
/// The rule of the five-part constructor on ticks, for callers that go on counting.
VELCOREDATA_API long long ComposeTicks(long long days, long long hours, long long minutes, long long seconds,
                                       double fraction) noexcept;
}  // namespace detail

/// Prints the span in days, for logs and tests.
VELCOREDATA_API std::ostream & operator<<(std::ostream & stream, DateTimeSpan const & span);
