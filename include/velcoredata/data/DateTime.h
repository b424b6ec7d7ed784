#pragma once

#include <concepts>
#include <cstdint>
#include <iosfwd>

#include "velcoredata/core/DateTimeParseOptions.h"
#include "velcoredata/core/Export.h"
#include "velcoredata/data/Date.h"
#include "velcoredata/data/DateTimeSpan.h"
#include "velcoreplatform/TString.h"

class IDateOptions;
class QDate;
class QDateTime;
class TLocale;
enum FYSValues : std::int32_t;
struct SYSTEMTIME;

/// A date and a time of day on the proleptic Gregorian calendar, without a time zone: one unsigned 64-bit count.
///
///      representation = day number x 864,000,000 + ticks since midnight
///
///      2000-01-01 12:00:00.5 is       2118134448005000
///                                     |
///                   +-----------------+-------------+
///                   |                               |
///      +-----------------------------+ +-----------------------------+
///      |  / 864,000,000 = 2451544    | |  % 864,000,000 = 432005000  |
///      |  day number of the date:    | |  ticks of 1/10,000 second:  |
///      |  its Julian Day Number - 1  | |  ((h x 60 + m) x 60 + s)    |
///      |                             | |    x 10,000 + fraction      |
///      +-----------------------------+ +-----------------------------+
///
/// A date is a `DateTime` with zero ticks; no flag tells the two apart, and 1899-12-30 stands for "no date"
/// (`HasDate`). There is no switch to the Julian calendar in 1582.
///
/// Which years work?
///  * `SetDateTime` and the constructor from parts accept the years from 400 up, without an upper limit.
///  * `IsValid` is true from day 1757584 (0100-01-01) to 9999-12-31 23:59:59.0000; the 9,999 ticks after that second
///    are not valid, and neither is 10000-01-01, although it can be set.
///  * The getters read a calendar from 0300-03-02 up. Below it they answer values off the calendar:
///    FromValue(minGregorianDate).GetYear() is 8819334.
///
/// Arithmetic is counting ticks and checks nothing: 2020-01-31 + DateTimeSpan::Days(30) is 2020-03-01. "A month after
/// 31 January" is a question for the calendar: see AdjustByDatePeriod.
///
/// A plain value of 8 bytes, trivially copied. Days of the week count 1 = Sunday to 7 = Saturday, but
/// `GetISO8601DayOfWeek` counts 1 = Monday to 7 = Sunday. Months count from 1.
class VELCOREDATA_API DateTime
{
public:
    struct YearMonthDay
    {
        std::int32_t year;
        std::int32_t month;
        std::int32_t day;

        constexpr YearMonthDay(std::int32_t y, std::int32_t m, std::int32_t d) noexcept : year(y), month(m), day(d) {}
        constexpr bool operator==(YearMonthDay const &) const noexcept = default;
    };

    static constexpr unsigned long long s_scaling = 864000000;               ///< ticks in a day
    static constexpr unsigned long long s_OLEEpoch = 2086575552000000;       ///< 1899-12-30 00:00:00
    static constexpr unsigned long long s_baseDateEpoch = 2086577280000000;  ///< 1900-01-01 00:00:00
    static constexpr unsigned long long minGregorianDate =
        1518552576000000;  ///< day number 1757584, smallest valid value
    static constexpr unsigned long long maxGregorianDate = 4642690175990000;  ///< 9999-12-31 23:59:59.0000, largest one
    static constexpr double s_accuracy = 1e-05;  ///< unit of the fraction in the log line of an invalid date-time

    static DateTime const OLEEpoch;       ///< 1899-12-30
    static DateTime const BaseDateEpoch;  ///< 1900-01-01
    static DateTime const UnixEpoch;      ///< 1970-01-01

    // Making

    /// 1899-12-30 00:00:00, the value without a date and without a time.
    constexpr DateTime() noexcept : m_value(s_OLEEpoch) {}

    /// The representation, unchecked.
    template <std::integral T>
    constexpr explicit DateTime(T value) noexcept : m_value(static_cast<unsigned long long>(value))
    {}
    template <std::floating_point T>
    DateTime(T oleDate) = delete;  // FromOleDate says what is meant

    /// The same as SetDateTime, and throws what it throws.
    DateTime(int year, int month, int day, int hour, int minute, int second, double fraction);

    /// Text in a pattern of ICU's letters: see TLocale::ParseDateTime. Without a locale it is the user's. Throws
    /// VeltriaException_AutoGen_0x2CE8742C, with a locale VeltriaException_AutoGen_0x8E8A7D12 ("Error parsing date
    /// '%1'"), for a text that does not fit.
    DateTime(char16_t const * text, char16_t const * format);
    DateTime(char16_t const * text, char16_t const * format, TLocale const & locale);

    /// Text in whatever pattern fits: see TLocale::ParseDateTimeTryAllFormats. A text that nothing fits is no error:
    /// the representation is 0 then, which is not valid.
    explicit DateTime(char16_t const * text);
    DateTime(char16_t const * text, DateTimeParseOptions options);
    DateTime(char16_t const * text, DateTimeParseOptions options, TLocale const & locale);

    static constexpr DateTime FromValue(unsigned long long value) noexcept { return DateTime(value); }

    /// The value at so many days after 1899-12-30, negative before it, rounded to ticks (half a tick away from zero).
    /// Linear: FromOleDate(-1.25) is 1899-12-28 18:00, where OLE Automation reads 1899-12-29 06:00.
    static DateTime FromOleDate(double oleDate) noexcept { return DateTime(OleDateToFixedPrecision(oleDate)); }

    /// Seconds and microseconds since 1970 in UTC, or converted to local time; 1899-12-30 where SetUnixTime fails.
    static DateTime FromUnixTime(long long seconds, unsigned long long microseconds, bool utc);
    static DateTime FromUnixTime(long long seconds, bool utc);
    static DateTime FromMillisecondsAfterUnixEpoch(long long milliseconds) noexcept;

    /// The date and time of day as they stand in the argument, whatever its time zone. Throws as SetDateTime does.
    static DateTime FromQDateTime(QDateTime const & value);

    /// A day of the ISO 8601 calendar: week 1 holds 4 January, day 1 is Monday. Nothing is checked: week 60 lies in the
    /// next year, and week and day are cut to 8 signed bits. FromISO8601Date(2015, 53, 1) is 2015-12-28.
    static DateTime FromISO8601Date(int isoYear, int isoWeek, int isoDay) noexcept;

    /// A day of a fiscal year, given by its calendar month. Throws as SetDateTime does.
    static DateTime FromFiscalYear(int fiscalYear, FYSValues fiscalYearStart, int calendarMonth, int day, int hour,
                                   int minute, int second, double fraction);

    /// The clock of the operating system, to the millisecond.
    static DateTime GetLocalTime();
    static DateTime GetUniversalTime();

    // Setting

    /// Sets all parts; the fraction is in seconds and may have any size. A second above 59 is carried into the
    /// fraction, then a minute above 59, then an hour above 23: (2000, 2, 29, 24, 0, 0, 0.0) sets 2000-03-01 00:00:00.
    /// The fraction counts truncate(fraction x 10000 + 0.5) ticks. As in DateTimeSpan, a negative fraction makes the
    /// whole clock count backwards from midnight: 06:00:00 with fraction -0.5 is 17:59:59.5001 of the day before.
    /// Returns true. Throws VeltriaException_AutoGen_0xDD90F63D after a line to the log, and leaves the value as it
    /// was, if the year is below 400, or a part does not come back when the value is taken apart (month 13,
    /// 30 February, a negative hour).
    bool SetDateTime(int year, int month, int day, int hour, int minute, int second, double fraction);

    /// Replaces the time of day by the rules of SetDateTime; what is carried past midnight moves the date. Throws
    /// VeltriaException_AutoGen_0x87C06BF7, and leaves the value as it was, for a negative clock part.
    void SetTime(int hour, int minute, int second, double fraction);

    /// Seconds since 1970, 0 to 32535215999 (the end of the year 3000). `utc` false converts to local time. Returns
    /// false and leaves the value as it was outside this range.
    bool SetUnixTime(long long seconds, unsigned long long microseconds, bool utc);
    bool SetUnixTime(long long seconds, bool utc);

    void swap(DateTime & other) noexcept;

    // Reading

    constexpr unsigned long long GetRepresentation() const noexcept { return m_value; }

    int GetYear() const noexcept { return Day().GetYear(); }
    int GetMonth() const noexcept { return Day().GetCivilDay().month; }
    int GetDay() const noexcept { return Day().GetCivilDay().day; }
    YearMonthDay GetYearMonthDay() const noexcept
    {
        detail::CivilDay const civil = Day().GetCivilDay();
        return {civil.year, civil.month, civil.day};
    }

    int GetHour() const noexcept { return Clock() / 36000000; }
    int GetMinute() const noexcept { return Clock() / 600000 % 60; }
    int GetSecond() const noexcept { return Clock() / 10000 % 60; }
    /// The part below a second, in seconds: 0.0 to 0.9999.
    double GetFraction() const noexcept { return Clock() % 10000 / 10000.0; }
    /// GetFraction() x 1000, truncated: 0 to 999.
    int GetMilliseconds() const noexcept { return static_cast<int>(GetFraction() * 1000.0); }

    /// 1 = Sunday to 7 = Saturday; the default value is a Saturday.
    int GetDayOfWeek() const noexcept { return detail::WrapAdd(Day().GetDayNumber(), 2) % 7 + 1; }
    /// 1 = Monday to 7 = Sunday.
    int GetISO8601DayOfWeek() const noexcept { return detail::WrapAdd(Day().GetDayNumber(), 1) % 7 + 1; }
    /// 1 to 366.
    std::int16_t GetDayOfYear() const noexcept;
    /// 1 to 4.
    int GetQuarter() const noexcept { return (GetMonth() - 1) / 3 + 1; }

    /// The week of the year, 1 to 54, in weeks that start on Sunday. Week 1 holds 1 January, however short it is.
    int GetWeek() const noexcept { return GetWeek(1); }
    /// The same in weeks that start on `startDay` (1 = Sunday to 7 = Saturday).
    int GetWeek(int startDay) const noexcept;

    /// Year, quarter (1 to 4) and week (1 to 53) of the ISO 8601 calendar: 2016-01-03 is 2015, 4, 53. A quarter has 13
    /// weeks, and the fourth takes week 53.
    int GetISO8601Year() const noexcept { return Day().GetIsoWeek().year; }
    int GetISO8601Quarter() const noexcept;
    int GetISO8601Week() const noexcept { return Day().GetIsoWeek().week; }

    /// The same date at 00:00:00. Throws as SetDateTime does, so always below the year 400.
    DateTime GetDate() const;

    /// False on 1899-12-30 only.
    bool HasDate() const noexcept;
    /// False at 00:00:00.0000 only.
    bool HasTime() const noexcept { return Clock() != 0; }

    constexpr bool IsValid() const noexcept { return minGregorianDate <= m_value && m_value <= maxGregorianDate; }
    /// Throws VeltriaException_AutoGen_0xE154043D unless IsValid().
    void Validate() const;

    /// Whole days from 1899-12-30 to the date, whatever the time of day: -1 on 1899-12-29.
    int GetDaysSinceOLEEpoch() const noexcept { return detail::WrapSub(Day().GetDayNumber(), 2415018); }
    int GetDaysSinceBaseDateEpoch() const noexcept { return detail::WrapSub(GetDaysSinceOLEEpoch(), 2); }

    /// Days since the last start of a week of the options, 0 to 6. `dayOfWeek` counts 1 = Sunday to 7 = Saturday.
    int GetDaysSinceStartOfWeek(IDateOptions const & options) const;
    static int GetDaysSinceStartOfWeek(int dayOfWeek, IDateOptions const & options);

    /// The last day of a month. Year -1 is a leap year for month 2, month -1 is January; any month that is not one
    /// of the twelve has 30 days. LastDay(1900, 2) is 28. Throws as SetDateTime does for a February before 400.
    static int LastDay(int year, int month);

    /// Whether a fraction of a second holds more digits than a tick can: 0.12345 does, 0.5 does not. Throws
    /// VeltriaException_AutoGen_0x47EE95FC unless 0 <= fraction < 1; a NaN does not throw and gives false.
    static bool IsFractionTruncated(double fraction);

    // The fiscal calendar. A fiscal year is named for the calendar year in which it ends; the start of it is a calendar
    // month, 1 to 12. Starts and ends are whole days at 00:00:00.

    int GetFiscalYear(FYSValues fiscalYearStart) const;
    int GetFiscalQuarter(FYSValues fiscalYearStart) const;
    int GetFiscalMonth(FYSValues fiscalYearStart) const;
    /// The week of the fiscal year: 1 on its first day, one more on each start of a week of the options.
    int GetFiscalWeek(IDateOptions const & options) const;
    /// Fiscal year, fiscal month and calendar day.
    YearMonthDay GetFiscalYearMonthDay(FYSValues fiscalYearStart) const;

    static DateTime FiscalYearStart(int fiscalYear, FYSValues fiscalYearStart);
    static DateTime FiscalYearEnd(int fiscalYear, FYSValues fiscalYearStart);
    static DateTime FiscalQuarterStart(int fiscalYear, int quarter, FYSValues fiscalYearStart);
    static DateTime FiscalQuarterEnd(int fiscalYear, int quarter, FYSValues fiscalYearStart);
    static DateTime FiscalMonthStart(int fiscalYear, int fiscalMonth, FYSValues fiscalYearStart);
    static DateTime FiscalMonthEnd(int fiscalYear, int fiscalMonth, FYSValues fiscalYearStart);
    static DateTime FiscalWeekStart(int fiscalYear, int fiscalWeek, IDateOptions const & options);
    static DateTime FiscalWeekEnd(int fiscalYear, int fiscalWeek, IDateOptions const & options);
    /// A day of a fiscal week. Counts from Sunday: the start of week of the options plays no part here.
    static DateTime FiscalDayOfWeek(int fiscalYear, int fiscalWeek, int dayOfWeek, IDateOptions const & options);

    /// First and last fiscal week of a month, else (month -1) of a quarter, else (both -1) of the year. Year -1 stands
    /// for 2012.
    static int FirstWeek(int fiscalYear, int quarter, int month, IDateOptions const & options);
    static int LastWeek(int fiscalYear, int quarter, int month, IDateOptions const & options);

    // The ISO 8601 calendar. Starts and ends are whole days at 00:00:00; nothing is checked but in the last two.

    static DateTime ISO8601YearStart(int isoYear) noexcept;
    static DateTime ISO8601YearEnd(int isoYear) noexcept;
    static DateTime ISO8601QuarterStart(int isoYear, int isoQuarter) noexcept;
    static DateTime ISO8601QuarterEnd(int isoYear, int isoQuarter) noexcept;
    static DateTime ISO8601WeekStart(int isoYear, int isoWeek) noexcept;
    static DateTime ISO8601WeekEnd(int isoYear, int isoWeek) noexcept;

    /// First and last week of a quarter: 13 x quarter - 12; 13 x quarter, for quarter 4 the last week of the year. Year
    /// -1 stands for 2015; quarter -1 for the first or the last one. Logic assertions "isoYear >= 0" and
    /// "1 <= isoQuarter && isoQuarter <= 4".
    static int FirstISO8601Week(int isoYear, int isoQuarter);
    static int LastISO8601Week(int isoYear, int isoQuarter);

    // Other clocks

    /// Days since 1899-12-30, linear and negative before it: the inverse of FromOleDate.
    double ToOleDate() const noexcept { return OleDateFromFixedPrecision(m_value, false); }

    /// Whole seconds since 1970; `isUtc` false takes the value as local time. Returns false and leaves `out` alone
    /// before 1601. A value before 1899-12-30 with a time of day passes through the OLE Automation form of a date and
    /// is read by that form's rules (see VariantTimeToSystemTime).
    bool GetAsUnixTime(long long & out, bool isUtc) const;

    /// The same parts in Qt's local time (false) or UTC (true), to the millisecond.
    QDateTime ToQDateTime(bool utc) const;
    QDate ToQDate(bool utc) const;

    /// The clock now, in milliseconds since 1899-12-30.
    static unsigned long long TotalMillisecondsFromMinDateTimeUTC();

    /// Conversion by the current time zone, to the millisecond. The argument where the zone has no answer (years
    /// before 1601). A local time that a zone skips or repeats is read with the offset in force before it / after it.
    static DateTime LocalFromUTC(DateTime const & utc);
    static DateTime UTCFromLocal(DateTime const & local);

    // Text: see TLocale, which does the work. Without a locale it is the user's.

    /// With `useLocale` the date and the time in the locale's own style; else the fixed form
    /// "2021-03-04T05:06:07.008": the year without padding, milliseconds truncated from ticks.
    TString Format(bool useLocale) const;
    TString Format(char16_t const * format) const;
    TString Format(char16_t const * format, TLocale const & locale) const;
    TString Format(DateTimeParseOptions options) const;
    TString Format(DateTimeParseOptions options, TLocale const & locale) const;

    // The members set the value on success and leave it as it was on failure; the static ones do so with `out`. They
    // return whether the text could be read. The date and the time are read, unless the name says otherwise.

    bool ParseDateTime(char16_t const * text, char16_t const * format);
    bool ParseDateTime(char16_t const * text, char16_t const * format, TLocale const & locale);
    static bool ParseDateTime(char16_t const * text, char16_t const * format, DateTime & out);
    static bool ParseDateTime(char16_t const * text, char16_t const * format, DateTime & out, TLocale const & locale);
    /// `end` is accepted and left alone.
    static bool ParseDateTime(char16_t const * text, char16_t const * format, DateTime & out, TLocale const & locale,
                              char16_t const ** end);
    static bool ParseDateTime(char16_t const * text, char16_t const * format, unsigned long long * out);
    bool ParseDateTimeNative(char16_t const * text, TLocale const & locale);
    bool ParseDateNative(char16_t const * text, TLocale const & locale);
    bool ParseDateTimeTryAllFormats(char16_t const * text);
    bool ParseDateTimeTryAllFormats(char16_t const * text, TLocale const & locale);
    bool ParseDateTimeTryAllFormats(char16_t const * text, TLocale const & locale, DateTime const & reference);
    bool ParseDateTryAllFormats(char16_t const * text, TLocale const & locale);
    bool ParseTimeTryAllFormats(TString const & text, TLocale const & locale);

    static unsigned long long OleDateToFixedPrecision(double oleDate) noexcept;
    /// `truncateToSeconds` first cuts the representation to a multiple of 10,000 ticks.
    static double OleDateFromFixedPrecision(unsigned long long value, bool truncateToSeconds) noexcept;

    // Counting and comparing

    constexpr DateTime operator+(DateTimeSpan const & span) const noexcept
    {
        return DateTime(m_value + static_cast<unsigned long long>(span.GetRepresentation()));
    }
    constexpr DateTime operator-(DateTimeSpan const & span) const noexcept
    {
        return DateTime(m_value - static_cast<unsigned long long>(span.GetRepresentation()));
    }
    constexpr DateTimeSpan operator-(DateTime const & other) const noexcept
    {
        return DateTimeSpan(static_cast<long long>(m_value - other.m_value));
    }
    DateTime & operator+=(DateTimeSpan const & span) noexcept { return *this = *this + span; }
    DateTime & operator-=(DateTimeSpan const & span) noexcept { return *this = *this - span; }

    constexpr bool operator==(DateTime const & other) const noexcept { return m_value == other.m_value; }
    constexpr bool operator!=(DateTime const & other) const noexcept { return m_value != other.m_value; }
    constexpr bool operator<(DateTime const & other) const noexcept { return m_value < other.m_value; }
    constexpr bool operator<=(DateTime const & other) const noexcept { return m_value <= other.m_value; }
    constexpr bool operator>(DateTime const & other) const noexcept { return m_value > other.m_value; }
    constexpr bool operator>=(DateTime const & other) const noexcept { return m_value >= other.m_value; }

private:
    constexpr date Day() const noexcept { return date(static_cast<std::int32_t>(m_value / s_scaling)); }
    // Ticks since midnight; negative where the representation is, read as a signed number.
    constexpr std::int32_t Clock() const noexcept
    {
        return static_cast<std::int32_t>(static_cast<long long>(m_value) % static_cast<long long>(s_scaling));
    }

    unsigned long long m_value;
};

/// Writes ToOleDate() as a number.
VELCOREDATA_API std::ostream & operator<<(std::ostream & stream, DateTime const & value);

/// Date and time of day of the value. `wholeSeconds` true writes 0 milliseconds, false the value's own. Returns false
/// outside the years 100 to 9999. The value passes through the OLE Automation form of a date, see GetAsUnixTime.
VELCOREDATA_API bool DateTimeToSystemTime(SYSTEMTIME & out, DateTime const & value, bool wholeSeconds);

/// The day of the week is ignored. Throws as SetDateTime does.
VELCOREDATA_API DateTime SystemTimeToDateTime(SYSTEMTIME const & value);
