#pragma once

#include <concepts>
#include <cstdint>
#include <iosfwd>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/Time.h"
#include "velcoreplatform/TString.h"
#include "velsys/Arithmetic.h"

/// A signed duration in microseconds.
///
/// A plain value of 8 bytes. Sums and differences wrap in 64 bits without notice. `DateTimeSpan` counts ticks of
/// 1/10,000 second and does not convert to or from this type.
///
/// All parts have the sign of the interval: minus 90 minutes has GetHours() -1 and GetMinutes() -30.
class VELCOREDATA_API Interval
{
public:
    constexpr Interval(long long micros = 0) noexcept : m_micros(micros) {}

    /// The signed sum of the parts: Interval(-1, 2, 0, 0, 0.0) is minus 22 hours (where DateTimeSpan says minus 26).
    /// `fraction` is in seconds and is rounded to microseconds, half of one away from zero. Nothing limits the result.
    Interval(int days, long long hours, long long minutes, long long seconds, double fraction) noexcept;

    Interval & operator=(long long micros) noexcept
    {
        m_micros = micros;
        return *this;
    }

    /// Replaces the value as the constructor of the same arguments does.
    void SetDateTimeSpan(int days, long long hours, long long minutes, long long seconds, double fraction) noexcept;

    constexpr long long GetRepresentation() const noexcept { return m_micros; }

    // Parts. Whole days are held in 32 bits.

    int GetDays() const noexcept { return static_cast<int>(m_micros / 86400000000); }
    signed char GetHours() const noexcept { return static_cast<signed char>(GetTotalHours() % 24); }
    signed char GetMinutes() const noexcept { return static_cast<signed char>(GetTotalMinutes() % 60); }
    signed char GetSeconds() const noexcept { return static_cast<signed char>(GetTotalSeconds() % 60); }
    /// The part below a second, -999999 to 999999.
    int GetMicroseconds() const noexcept { return static_cast<int>(m_micros % 1000000); }
    /// The same in seconds.
    double GetFraction() const noexcept { return GetMicroseconds() / 1e6; }

    // Totals, truncated toward zero.

    int GetTotalDays() const noexcept { return GetDays(); }
    long long GetTotalHours() const noexcept { return m_micros / 3600000000 % 24 + GetTotalDays() * 24LL; }
    long long GetTotalMinutes() const noexcept { return GetTotalHours() * 60 + m_micros / 60000000 % 60; }
    long long GetTotalSeconds() const noexcept { return GetTotalMinutes() * 60 + m_micros / 1000000 % 60; }

    /// The microseconds without the whole days: minus one day and one second gives -1000000.
    long long GetTimePart() const noexcept { return m_micros % 86400000000; }

    /// Midnight plus this interval: minus one second is 23:59:59.
    operator Time() const noexcept { return Time() + *this; }

    /// Truncated: Interval(5) * 0.5 is 2. Out of range (or NaN) is the lowest interval.
    Interval operator*(double factor) const noexcept;
    /// A half is added and the sum truncated: Interval(5) / 2.0 is 3, Interval(-5) / 2.0 is -2. Out of range (or NaN,
    /// or a zero divisor) is the lowest interval.
    Interval operator/(double divisor) const noexcept;
    /// How often the other goes into this, truncated toward zero. REQUIRES: other != 0 and not (lowest / -1): either
    /// ends the process.
    long long operator/(Interval const & other) const noexcept { return detail::DivideOrDie(m_micros, other.m_micros); }

    constexpr Interval operator+(Interval const & other) const noexcept
    {
        return detail::WrapAdd(m_micros, other.m_micros);
    }
    constexpr Interval operator-(Interval const & other) const noexcept
    {
        return detail::WrapSub(m_micros, other.m_micros);
    }
    constexpr Interval operator-() const noexcept { return detail::WrapNeg(m_micros); }
    Interval & operator+=(Interval const & other) noexcept { return *this = *this + other; }
    Interval & operator-=(Interval const & other) noexcept { return *this = *this - other; }

    /// The time moved by this interval.
    Time operator+(Time time) const noexcept { return time + *this; }

    /// The interval since midnight less the time. Throws VeltriaException_AutoGen_0x9370C2A6 ("Output out of range for
    /// Interval Type") for a result below -(2^63 - 1).
    Interval operator-(Time time) const;

    constexpr bool operator==(Interval const & other) const noexcept { return m_micros == other.m_micros; }
    constexpr bool operator!=(Interval const & other) const noexcept { return m_micros != other.m_micros; }
    constexpr bool operator<(Interval const & other) const noexcept { return m_micros < other.m_micros; }
    constexpr bool operator<=(Interval const & other) const noexcept { return m_micros <= other.m_micros; }
    constexpr bool operator>(Interval const & other) const noexcept { return m_micros > other.m_micros; }
    constexpr bool operator>=(Interval const & other) const noexcept { return m_micros >= other.m_micros; }

    /// -1, 0 or 1 as this interval is less than, equal to or greater than the other.
    constexpr int Compare(Interval const & other) const noexcept { return (*this > other) - (*this < other); }

    /// "1 day 2 hour 3 minute 4 second 5 microsecond", the same in every locale. Each part has the interval's sign.
    TString Format() const;

    /// The same question and range as Time::IsFractionRounded. Throws VeltriaException_AutoGen_0x40C02767.
    static bool IsFractionRounded(double fraction);

private:
    long long m_micros;
};

/// Prints the microseconds with the unit, for logs and tests.
VELCOREDATA_API std::ostream & operator<<(std::ostream & stream, Interval const & interval);
