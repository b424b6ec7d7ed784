#pragma once

#include <cstdint>
#include <iosfwd>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

class Interval;

/// A time of day without a date: microseconds since midnight, 0 to 86,400,000,000.
///
/// The upper end, one count past the day, is a value of its own: Time(23, 59, 59, 1000000u) holds it, and so does the
/// result of subtracting from a time exactly its own value. It has the hour 24.
///
/// A plain value of 8 bytes. `DateTime` counts ticks of 1/10,000 second and does not convert to or from this type.
class VELCOREDATA_API Time
{
public:
    static constexpr unsigned long long MicrosecondsPerDay = 86400000000;

    /// 00:00:00.
    constexpr Time() noexcept : m_micros(0) {}

    /// Microseconds since midnight, modulo a day.
    constexpr explicit Time(unsigned long long micros) noexcept : m_micros(micros % MicrosecondsPerDay) {}

    /// Throws VeltriaException_AutoGen_0x5A975297 unless hour < 24, minute < 60, second < 60, micro <= 1000000.
    Time(unsigned hour, unsigned minute, unsigned second, unsigned micro);

    /// `fraction` is in seconds and counts truncate(fraction x 1e6 + 0.5) microseconds, cut to 32 bits. Throws
    /// VeltriaException_AutoGen_0x22D59FE2 under the conditions above.
    Time(unsigned hour, unsigned minute, unsigned second, double fraction);

    unsigned char GetHour() const noexcept { return static_cast<unsigned char>(m_micros / 3600000000); }
    unsigned char GetMinute() const noexcept { return static_cast<unsigned char>(m_micros / 60000000 % 60); }
    unsigned char GetSecond() const noexcept { return static_cast<unsigned char>(m_micros / 1000000 % 60); }
    /// The part below a second: 0 to 999999.
    unsigned GetMicrosecond() const noexcept { return static_cast<unsigned>(m_micros % 1000000); }

    constexpr unsigned long long GetRepresentation() const noexcept { return m_micros; }

    /// The interval since midnight.
    operator Interval() const noexcept;

    /// The signed difference: 00:00:00 - 00:00:01 is minus one second.
    Interval operator-(Time const & other) const noexcept;

    /// Moves around the clock. Only the interval's part below a day counts, with its sign; whole days are dropped.
    /// 00:00:01 minus one second is 86,400,000,000, not 0: going back passes midnight by "greater", not "at least".
    Time operator+(Interval interval) const noexcept;
    Time operator-(Interval interval) const noexcept;
    Time operator+=(Interval interval) noexcept;
    Time operator-=(Interval interval) noexcept;

    constexpr bool operator==(Time const & other) const noexcept { return m_micros == other.m_micros; }
    constexpr bool operator!=(Time const & other) const noexcept { return m_micros != other.m_micros; }
    constexpr bool operator<(Time const & other) const noexcept { return m_micros < other.m_micros; }
    constexpr bool operator<=(Time const & other) const noexcept { return m_micros <= other.m_micros; }
    constexpr bool operator>(Time const & other) const noexcept { return m_micros > other.m_micros; }
    constexpr bool operator>=(Time const & other) const noexcept { return m_micros >= other.m_micros; }

    /// "7:5:9.0": hour, minute, second and microsecond without padding, the same in every locale.
    TString Format() const;

    /// Whether a fraction of a second holds more digits than a microsecond can and would be rounded: 0.1234567 does.
    /// Throws VeltriaException_AutoGen_0xBE17C602 unless 0 <= fraction < 1; a NaN does not throw and gives false.
    static bool IsFractionRounded(double fraction);

private:
    void MoveForward(unsigned long long micros) noexcept;
    void MoveBack(unsigned long long micros) noexcept;

    unsigned long long m_micros;
};

/// Prints h:mm:ss.ffffff, for logs and tests.
VELCOREDATA_API std::ostream & operator<<(std::ostream & stream, Time const & time);
