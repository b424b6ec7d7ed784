#include "velcoredata/data/DateTime.h"

#include <cmath>
#include <limits>
#include <ostream>
#include <utility>

#include "main/data/CalendarSteps.h"
#include "main/data/DateTimeErrors.h"
#include "main/data/TickRounding.h"
#include "velcoreplatform/TFormatString.h"
#include "velcoreplatform/TLog.h"
#include "velsys/ThrowSite.h"

constinit DateTime const DateTime::OLEEpoch = DateTime::FromValue(s_OLEEpoch);
constinit DateTime const DateTime::BaseDateEpoch = DateTime::FromValue(s_baseDateEpoch);
constinit DateTime const DateTime::UnixEpoch = DateTime::FromValue(2440587 * s_scaling);

namespace {

struct ClockFields
{
    int hour;
    int minute;
    int second;
    double fraction;  // seconds

    // What is above the last second, minute and hour goes to the fraction.
    ClockFields Carried() const
    {
        ClockFields result = *this;
        if (second > 59) {
            result.fraction += second - 59;
            result.second = 59;
        }
        if (minute > 59) {
            result.fraction += (minute - 59) * 60.0;
            result.minute = 59;
        }
        if (hour > 23) {
            result.fraction += (hour - 23) * 3600.0;
            result.hour = 23;
        }
        return result;
    }
};

DateTime Compose(date day, ClockFields const & clock)
{
    long long const midnight =
        detail::WrapMul<long long>(day.GetDayNumber(), static_cast<long long>(DateTime::s_scaling));
    long long const ticks = detail::ComposeTicks(0, clock.hour, clock.minute, clock.second, clock.fraction);
    return DateTime(detail::WrapAdd(midnight, ticks));
}

date DayOf(int year, int month, int day)
{
    return date::gregoriandate(year, static_cast<std::int8_t>(month), static_cast<std::int8_t>(day));
}

// Whether the parts come back when a value is composed of them and taken apart.
bool AreParts(int year, int month, int day, ClockFields clock)
{
    clock.fraction = 0.0;
    DateTime const value = Compose(DayOf(year, month, day), clock);
    return value.GetYearMonthDay() == DateTime::YearMonthDay(year, month, day) && value.GetHour() == clock.hour &&
           value.GetMinute() == clock.minute && value.GetSecond() == clock.second;
}

}  // namespace

DateTime::DateTime(int year, int month, int day, int hour, int minute, int second, double fraction) : m_value(0)
{
    SetDateTime(year, month, day, hour, minute, second, fraction);
}

bool DateTime::SetDateTime(int year, int month, int day, int hour, int minute, int second, double fraction)
{
    ClockFields const clock = ClockFields{hour, minute, second, fraction}.Carried();
    if (year < 400 || !AreParts(year, month, day, clock)) {
        LogMessage(TFormatString(u"DateTime::SetDateTime: invalid datetime #%1-%2-%3T%4:%5:%6.%7#")
                       .arg(year, 4, 10, u'0')
                       .arg(month, 2, 10, u'0')
                       .arg(day, 2, 10, u'0')
                       .arg(clock.hour, 2, 10, u'0')
                       .arg(clock.minute, 2, 10, u'0')
                       .arg(clock.second, 2, 10, u'0')
                       .arg(detail::RealToInt64(clock.fraction / s_accuracy), 6, 10, u'0'));
        VELTRIA_THROW(VeltriaException, 0xDD90F63D, detail::InvalidDateTimeText());
    }
    *this = Compose(DayOf(year, month, day), clock);
    return true;
}

void DateTime::SetTime(int hour, int minute, int second, double fraction)
{
    ClockFields const clock = ClockFields{hour, minute, second, fraction}.Carried();
    if (!AreParts(1899, 12, 30, clock))
        VELTRIA_THROW(VeltriaException, 0x87C06BF7, detail::InvalidDateTimeText());
    YearMonthDay const own = GetYearMonthDay();
    *this = Compose(DayOf(own.year, own.month, own.day), clock);
}

void DateTime::swap(DateTime & other) noexcept
{
    std::swap(m_value, other.m_value);
}

DateTime DateTime::FromMillisecondsAfterUnixEpoch(long long milliseconds) noexcept
{
    return UnixEpoch + DateTimeSpan::FromMilliseconds(milliseconds);
}

std::int16_t DateTime::GetDayOfYear() const noexcept
{
    std::int32_t const newYear = date::gregoriandate(GetYear(), 1, 1).GetDayNumber();
    return static_cast<std::int16_t>(detail::WrapAdd(detail::WrapSub(Day().GetDayNumber(), newYear), 1));
}

int DateTime::GetWeek(int startDay) const noexcept
{
    std::int32_t const newYear = date::gregoriandate(GetYear(), 1, 1).GetDayNumber();
    std::int32_t const n = detail::WrapSub(Day().GetDayNumber(), newYear);
    std::int32_t const newYearDayOfWeek = detail::WrapAdd(newYear, 2) % 7 + 1;
    std::int32_t const w = detail::WrapAdd(detail::WrapSub(newYearDayOfWeek, startDay), 7) % 7;
    return detail::WrapAdd(detail::WrapAdd(n, 7), w) / 7;
}

int DateTime::GetISO8601Quarter() const noexcept
{
    int const quarter = (GetISO8601Week() - 1) / 13 + 1;
    return quarter < 4 ? quarter : 4;
}

DateTime DateTime::GetDate() const
{
    YearMonthDay const own = GetYearMonthDay();
    return DateTime(own.year, own.month, own.day, 0, 0, 0, 0.0);
}

bool DateTime::HasDate() const noexcept
{
    return GetYearMonthDay() != YearMonthDay(1899, 12, 30);
}

void DateTime::Validate() const
{
    if (!IsValid())
        VELTRIA_THROW(VeltriaException, 0xE154043D, detail::InvalidDateTimeText());
}

int DateTime::LastDay(int year, int month)
{
    switch (month) {
    case -1:
    case 1:
    case 3:
    case 5:
    case 7:
    case 8:
    case 10:
    case 12: return 31;
    case 2: {
        if (year == -1)
            return 29;
        DateTimeSpan const toMarch = DateTime(year, 3, 1, 0, 0, 0, 0.0) - DateTime(year, 1, 31, 0, 0, 0, 0.0);
        return toMarch.GetDays() - 1;
    }
    default: return 30;
    }
}

bool DateTime::IsFractionTruncated(double fraction)
{
    if (fraction < 0.0 || fraction >= 1.0)
        VELTRIA_THROW(VeltriaException, 0x47EE95FC, detail::InvalidDateTimeText());
    return std::fmod(fraction * 10000.0, 1.0) > std::numeric_limits<double>::epsilon();
}

DateTime DateTime::FromISO8601Date(int isoYear, int isoWeek, int isoDay) noexcept
{
    std::int32_t const week = static_cast<std::int8_t>(isoWeek);
    std::int32_t const day = static_cast<std::int8_t>(isoDay);
    std::int32_t const dayNumber =
        detail::WrapAdd(detail::calendarsteps::IsoYearStart(isoYear), (week - 1) * 7 + (day - 1));
    return Compose(date(dayNumber), {0, 0, 0, 0.0});
}

DateTime DateTime::ISO8601YearStart(int isoYear) noexcept
{
    return FromISO8601Date(isoYear, 1, 1);
}

DateTime DateTime::ISO8601YearEnd(int isoYear) noexcept
{
    return ISO8601YearStart(detail::WrapAdd(isoYear, 1)) - DateTimeSpan::Days(1);
}

DateTime DateTime::ISO8601QuarterStart(int isoYear, int isoQuarter) noexcept
{
    return FromISO8601Date(isoYear, detail::WrapSub(detail::WrapMul(13, isoQuarter), 12), 1);
}

DateTime DateTime::ISO8601QuarterEnd(int isoYear, int isoQuarter) noexcept
{
    DateTime const next = isoQuarter < 4 ? ISO8601QuarterStart(isoYear, isoQuarter + 1)
                                         : ISO8601QuarterStart(detail::WrapAdd(isoYear, 1), 1);
    return next - DateTimeSpan::Days(1);
}

DateTime DateTime::ISO8601WeekStart(int isoYear, int isoWeek) noexcept
{
    return FromISO8601Date(isoYear, isoWeek, 1);
}

DateTime DateTime::ISO8601WeekEnd(int isoYear, int isoWeek) noexcept
{
    return FromISO8601Date(isoYear, isoWeek, 7);
}

int DateTime::FirstISO8601Week(int isoYear, int isoQuarter)
{
    if (isoYear == -1)
        isoYear = 2015;
    if (isoQuarter == -1)
        isoQuarter = 1;
    VELTRIA_ASSERT(isoYear >= 0, 0x6B1D0A41);
    VELTRIA_ASSERT(1 <= isoQuarter && isoQuarter <= 4, 0x6B1D0A42);
    return 13 * isoQuarter - 12;
}

int DateTime::LastISO8601Week(int isoYear, int isoQuarter)
{
    if (isoYear == -1)
        isoYear = 2015;
    if (isoQuarter == -1)
        isoQuarter = 4;
    VELTRIA_ASSERT(isoYear >= 0, 0x6B1D0A43);
    VELTRIA_ASSERT(1 <= isoQuarter && isoQuarter <= 4, 0x6B1D0A44);
    if (isoQuarter < 4)
        return 13 * isoQuarter;
    // 28 December is always in the last week. Counted from the week of 4 January, so that it holds for every year.
    std::int32_t const lastDay = date::gregoriandate(isoYear, 12, 28).GetDayNumber();
    return detail::WrapSub(lastDay, detail::calendarsteps::IsoYearStart(isoYear)) / 7 + 1;
}

unsigned long long DateTime::OleDateToFixedPrecision(double oleDate) noexcept
{
    return s_OLEEpoch + detail::TicksOfDays(oleDate);
}

double DateTime::OleDateFromFixedPrecision(unsigned long long value, bool truncateToSeconds) noexcept
{
    if (truncateToSeconds)
        value -= value % 10000;
    // The magnitude is converted: the difference may need all 64 bits.
    double const ticks =
        value >= s_OLEEpoch ? static_cast<double>(value - s_OLEEpoch) : -static_cast<double>(s_OLEEpoch - value);
    return ticks / 864000000.0;
}

std::ostream & operator<<(std::ostream & stream, DateTime const & value)
{
    return stream << value.ToOleDate();
}
