#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DateEnums.h"
#include "velcoredata/data/DateTime.h"

class IDateOptions;

/// Arithmetic with calendar periods: move a date-time by a number of periods, find the start of the period that holds
/// it, count the periods between two of them; and the conversions between calendar and fiscal months.
///
/// A case study. What is a month after 31 January? Calendar months move by their number, and the day is then clamped to
/// the end of the month:
///
///     AdjustByDatePeriod(2020-01-31, Month, 1)     // 2020-02-29, not 2020-03-02
///     AdjustByDatePeriod(2020-02-29, Year, 1)      // 2021-02-28
///
/// The ISO 8601 periods keep the day's offset from the start of its year or quarter instead, and never clamp: a day of
/// week 53 runs over into the next year where that year has 52 weeks.
///
///     AdjustByDatePeriod(2015-12-31, ISOYear, 1)   // 2017-01-05 (2015 has 53 weeks, 2016 has 52)
///
/// A difference counts the boundaries crossed, not the whole periods elapsed:
///
///     DatePeriodDifference(2021-01-01 00:00:00, 2020-12-31 23:59:59, t, options)   // 1 for Year, Month, Day, Second
///
/// Fiscal years and ISO weeks do not meet: fiscal start and start of week come from the options and hold for Year,
/// Quarter, Month and Week; the three ISO types read them only where it is said below.
///
/// Pure functions, any thread, no memory of their own. Overflow is not reported: counts narrowed or multiplied beyond
/// their width wrap, and a result beyond DateTime::maxGregorianDate comes back as it is (DateTime::Validate tells).
/// A step that makes a date of a year below 400 throws VeltriaException_AutoGen_0xDD90F63D, as DateTime does.

/// The date moved by `count` periods, back for a negative count. The clock stays. No fiscal setting plays a part: a
/// year is 12 months, a quarter 3.
///  * Year, Quarter, Month: the count is narrowed to 32 bits, also after its multiplication by 12 or 3.
///  * Week, Day, Hour, Minute, Second: exact spans of ticks; the weekday stays under Week.
///  * ISOYear, ISOQuarter: the count is narrowed to 32 bits; a quarter is 91 days from the start of the ISO year.
///  * ISOWeek: always the Monday of the target week, also for a count of 0. The count is narrowed to 32 bits, also
///  after
///    its multiplication by 7. 2021-03-04 12:00 (a Thursday) by 1 is Monday 2021-03-08 12:00.
/// Throws VeltriaException_AutoGen_0xD0038968 "unexpected DatePeriodType" for a number that is no period.
VELCOREDATA_API DateTime AdjustByDatePeriod(DateTime const & date, DatePeriodType type, long long count);

/// The first instant of the period that holds the date. Year and Quarter are fiscal: with a start of April, 2020-02-15
/// lies in the year from 2019-04-01. Week and also ISOWeek begin at the start of week of the options, so an ISO week
/// begins on Monday only if the options say so. ISOYear and ISOQuarter do not read the options.
/// Throws VeltriaException_AutoGen_0x16E59994 "unexpected DatePeriodType" for a number that is no period.
VELCOREDATA_API DateTime FindStartOfPeriod(DateTime const & date, DatePeriodType type, IDateOptions const & options);

/// The boundaries of periods crossed from `earlier` to `later`; negative when `later` is the lower one, so that
/// difference(a, b) == -difference(b, a). Year and Quarter count fiscal boundaries. Week counts starts of week, but
/// whole blocks of seven days where the start of week is SOW_NONE; that is the one case that counts periods elapsed.
/// The ISO types do not read the options: weeks begin on Monday. Throws VeltriaException_AutoGen_0xADE0C173 "unexpected
/// DatePeriodType" for a number that is no period. Raises LogicException_LogicAssert_0x5B31E824 when the
/// representations are 2^63 or more apart.
VELCOREDATA_API long long DatePeriodDifference(DateTime const & later, DateTime const & earlier, DatePeriodType type,
                                               IDateOptions const & options);

/// True for Hour, Minute and Second.
VELCOREDATA_API bool IsTimePeriod(DatePeriodType type) noexcept;

// Calendar and fiscal months, 1 to 12. A fiscal year is named for the calendar year in which it ends: with a start of
// April, 2020-04 is month 1 of fiscal year 2021. A start of January leaves years alone. Nothing is checked; a number
// out of range goes through the same arithmetic (remainders have the sign of the dividend, everything wraps).

/// ConvertToFiscalMonth(3, FYS_APRIL) is 12.
VELCOREDATA_API int ConvertToFiscalMonth(int month, FYSValues fiscalYearStart) noexcept;
/// ConvertToCalendarMonth(1, FYS_APRIL) is 4.
VELCOREDATA_API int ConvertToCalendarMonth(int fiscalMonth, FYSValues fiscalYearStart) noexcept;
/// The fiscal year of a calendar month: ConvertToFiscalYear(2020, 4, FYS_APRIL) is 2021.
VELCOREDATA_API int ConvertToFiscalYear(int year, int month, FYSValues fiscalYearStart) noexcept;
/// The calendar year in which a calendar month of a fiscal year lies: (2021, 4, FYS_APRIL) is 2020, (2021, 3) is 2021.
VELCOREDATA_API int ConvertToCalendarYear(int fiscalYear, int month, FYSValues fiscalYearStart) noexcept;
/// Quarters 1 to 4: fiscal months 1, 4, 7, 10 and 3, 6, 9, 12.
VELCOREDATA_API int GetFirstFiscalMonthInFiscalQuarter(int quarter) noexcept;
VELCOREDATA_API int GetLastFiscalMonthInFiscalQuarter(int quarter) noexcept;
/// The calendar month with which a fiscal quarter begins or ends: with FYS_NOVEMBER quarter 1 is November to January.
VELCOREDATA_API int GetFirstMonthInQuarter(int quarter, FYSValues fiscalYearStart) noexcept;
VELCOREDATA_API int GetLastMonthInQuarter(int quarter, FYSValues fiscalYearStart) noexcept;
