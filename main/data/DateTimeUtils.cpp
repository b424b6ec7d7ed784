#include "velcoredata/data/DateTimeUtils.h"

#include "main/data/MonthMove.h"
#include "main/data/WholeDates.h"
#include "velcoredata/data/IDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"
#include "velsys/Arithmetic.h"
#include "velsys/ThrowSite.h"

#include <cstdint>

using detail::WrapAdd;
using detail::WrapMul;
using detail::WrapNeg;
using detail::WrapSub;

namespace {

constexpr char16_t unexpectedPeriod[] = u"unexpected DatePeriodType";

// Moves the date to the day of the target and keeps its clock.
DateTime MoveToDayOf(DateTime const & date, DateTime const & target, IDateOptions const & options)
{
    long long const days = DatePeriodDifference(target, date, DatePeriodType::Day, options);
    return AdjustByDatePeriod(date, DatePeriodType::Day, days);
}

DateTime MoveISOYears(DateTime const & date, std::int32_t years)
{
    ISO8601DateOptions const options;
    int const year = date.GetISO8601Year();
    long long const offset = DatePeriodDifference(date, DateTime::ISO8601YearStart(year), DatePeriodType::Day, options);
    DateTime const targetStart = DateTime::ISO8601YearStart(WrapAdd(year, years));
    return MoveToDayOf(date, AdjustByDatePeriod(targetStart, DatePeriodType::Day, offset), options);
}

// Three quarters of an ISO year have 13 weeks, so that every quarter begins a multiple of 91 days into the year.
DateTime MoveISOQuarters(DateTime const & date, std::int32_t quarters)
{
    ISO8601DateOptions const options;
    int const year = date.GetISO8601Year();
    int const quarter = date.GetISO8601Quarter();
    std::int32_t const total = WrapAdd(WrapSub(WrapAdd(quarters, WrapMul(4, year)), 1), quarter);
    long long const offset =
        DatePeriodDifference(date, DateTime::ISO8601QuarterStart(year, quarter), DatePeriodType::Day, options);
    DateTime const targetYear = DateTime::ISO8601YearStart(total / 4);
    DateTime const target = AdjustByDatePeriod(targetYear, DatePeriodType::Day, total % 4 * 91 + offset);
    return MoveToDayOf(date, target, options);
}

DateTime MoveISOWeeks(DateTime const & date, std::int32_t weeks)
{
    DateTime const moved = date + DateTimeSpan::Days(WrapMul(weeks, 7));
    return moved - DateTimeSpan::Days(moved.GetISO8601DayOfWeek() - 1);
}

DateTime StartOfFiscalYear(DateTime::YearMonthDay const & date, FYSValues fiscalYearStart)
{
    int const yearsBack = date.month < fiscalYearStart ? 1 : 0;
    return detail::FirstOfMonth(WrapSub(date.year, yearsBack), fiscalYearStart);
}

DateTime StartOfFiscalQuarter(DateTime::YearMonthDay const & date, FYSValues fiscalYearStart)
{
    int const firstMonth = fiscalYearStart;
    int const yearsBack = date.month < firstMonth ? 1 : 0;
    int const monthInYear = WrapAdd(WrapSub(date.month, firstMonth), 12 * yearsBack);
    int const startMonth = WrapAdd(WrapSub(firstMonth, 1), monthInYear / 3 * 3);
    return detail::FirstOfMonth(WrapAdd(WrapSub(date.year, yearsBack), startMonth / 12), startMonth % 12 + 1);
}

DateTime StartOfWeek(DateTime const & date, IDateOptions const & options)
{
    return AdjustByDatePeriod(detail::CutTo(date, DatePeriodType::Day), DatePeriodType::Day,
                              -static_cast<long long>(date.GetDaysSinceStartOfWeek(options)));
}

long long DaysBetween(DateTime const & later, DateTime const & earlier)
{
    return (detail::CutTo(later, DatePeriodType::Day) - detail::CutTo(earlier, DatePeriodType::Day)).GetTotalDays();
}

long long WeeksBetween(DateTime const & later, DateTime const & earlier, IDateOptions const & options)
{
    if (options.GetStartOfWeek() == SOW_NONE)
        return DaysBetween(later, earlier) / 7;
    auto const backToStart = [&](DateTime const & date) {
        return date - DateTimeSpan::Days(date.GetDaysSinceStartOfWeek(options));
    };
    return DaysBetween(backToStart(later), backToStart(earlier)) / 7;
}

long long ISOWeeksBetween(DateTime const & later, DateTime const & earlier)
{
    ISO8601DateOptions const options;
    auto const backToMonday = [&](DateTime const & date) {
        return detail::CutTo(date, DatePeriodType::Day) - DateTimeSpan::Days(date.GetDaysSinceStartOfWeek(options));
    };
    return DatePeriodDifference(backToMonday(later), backToMonday(earlier), DatePeriodType::Day, options) / 7;
}

// Year, quarter and month of a date, counted from the start of fiscal years.
struct FiscalPosition
{
    long long year;
    long long quarter;
    long long month;

    FiscalPosition(DateTime const & date, IDateOptions const & options)
    {
        DateTime const shifted =
            detail::MoveMonths(date, WrapSub(1, static_cast<std::int32_t>(options.GetFiscalYearStart())));
        DateTime::YearMonthDay const d = shifted.GetYearMonthDay();
        year = d.year;
        quarter = shifted.GetQuarter();
        month = d.month;
    }
};

}  // namespace

DateTime AdjustByDatePeriod(DateTime const & date, DatePeriodType type, long long count)
{
    auto const narrowCount = static_cast<std::int32_t>(count);
    switch (type) {
    case DatePeriodType::Year: return detail::MoveMonths(date, WrapMul(narrowCount, 12));
    case DatePeriodType::Quarter: return detail::MoveMonths(date, WrapMul(narrowCount, 3));
    case DatePeriodType::Month: return detail::MoveMonths(date, narrowCount);
    case DatePeriodType::Week: return date + DateTimeSpan(WrapMul(count, 7LL), 0, 0, 0, 0.0);
    case DatePeriodType::Day: return date + DateTimeSpan(count, 0, 0, 0, 0.0);
    case DatePeriodType::Hour: return date + DateTimeSpan(0, count, 0, 0, 0.0);
    case DatePeriodType::Minute: return date + DateTimeSpan(0, 0, count, 0, 0.0);
    case DatePeriodType::Second: return date + DateTimeSpan(0, 0, 0, count, 0.0);
    case DatePeriodType::ISOYear: return MoveISOYears(date, narrowCount);
    case DatePeriodType::ISOQuarter: return MoveISOQuarters(date, narrowCount);
    case DatePeriodType::ISOWeek: return MoveISOWeeks(date, narrowCount);
    }
    VELTRIA_THROW(VeltriaException, 0xD0038968, TStringCore(unexpectedPeriod));
}

DateTime FindStartOfPeriod(DateTime const & date, DatePeriodType type, IDateOptions const & options)
{
    switch (type) {
    case DatePeriodType::Year: return StartOfFiscalYear(date.GetYearMonthDay(), options.GetFiscalYearStart());
    case DatePeriodType::Quarter: return StartOfFiscalQuarter(date.GetYearMonthDay(), options.GetFiscalYearStart());
    case DatePeriodType::Month: {
        DateTime::YearMonthDay const d = date.GetYearMonthDay();
        return detail::FirstOfMonth(d.year, d.month);
    }
    case DatePeriodType::Week: return StartOfWeek(date, options);
    case DatePeriodType::Day:
    case DatePeriodType::Hour:
    case DatePeriodType::Minute:
    case DatePeriodType::Second: return detail::CutTo(date, type);
    case DatePeriodType::ISOYear: return DateTime::ISO8601YearStart(date.GetISO8601Year());
    case DatePeriodType::ISOQuarter:
        return DateTime::ISO8601QuarterStart(date.GetISO8601Year(), date.GetISO8601Quarter());
    case DatePeriodType::ISOWeek: return StartOfWeek(date, options);
    }
    VELTRIA_THROW(VeltriaException, 0x16E59994, TStringCore(unexpectedPeriod));
}

long long DatePeriodDifference(DateTime const & later, DateTime const & earlier, DatePeriodType type,
                               IDateOptions const & options)
{
    if (later < earlier)
        return WrapNeg(DatePeriodDifference(earlier, later, type, options));

    DateTimeSpan const diff = later - earlier;
    VELTRIA_ASSERT(0.0 <= diff.ToOleSpan(), 0x5B31E824);

    switch (type) {
    case DatePeriodType::Year: return FiscalPosition(later, options).year - FiscalPosition(earlier, options).year;
    case DatePeriodType::Quarter: {
        FiscalPosition const a(later, options);
        FiscalPosition const b(earlier, options);
        return 4 * (a.year - b.year) + a.quarter - b.quarter;
    }
    case DatePeriodType::Month: {
        FiscalPosition const a(later, options);
        FiscalPosition const b(earlier, options);
        return 12 * (a.year - b.year) + a.month - b.month;
    }
    case DatePeriodType::Week: return WeeksBetween(later, earlier, options);
    case DatePeriodType::Day: return DaysBetween(later, earlier);
    case DatePeriodType::Hour: return (detail::CutTo(later, type) - detail::CutTo(earlier, type)).GetTotalHours();
    case DatePeriodType::Minute: return (detail::CutTo(later, type) - detail::CutTo(earlier, type)).GetTotalMinutes();
    case DatePeriodType::Second: return (detail::CutTo(later, type) - detail::CutTo(earlier, type)).GetTotalSeconds();
    case DatePeriodType::ISOYear: return static_cast<long long>(later.GetISO8601Year()) - earlier.GetISO8601Year();
    case DatePeriodType::ISOQuarter: {
        auto const position = [](DateTime const & date) {
            return 4LL * date.GetISO8601Year() + date.GetISO8601Quarter() - 1;
        };
        return position(later) - position(earlier);
    }
    case DatePeriodType::ISOWeek: return ISOWeeksBetween(later, earlier);
    }
    VELTRIA_THROW(VeltriaException, 0xADE0C173, TStringCore(unexpectedPeriod));
}

bool IsTimePeriod(DatePeriodType type) noexcept
{
    return type >= DatePeriodType::Hour && type < DatePeriodType::ISOYear;
}

int ConvertToFiscalMonth(int month, FYSValues fiscalYearStart) noexcept
{
    return WrapAdd(WrapSub(month, int{fiscalYearStart}), 12) % 12 + 1;
}

int ConvertToCalendarMonth(int fiscalMonth, FYSValues fiscalYearStart) noexcept
{
    return WrapAdd(WrapAdd(int{fiscalYearStart}, 10), fiscalMonth) % 12 + 1;
}

int ConvertToFiscalYear(int year, int month, FYSValues fiscalYearStart) noexcept
{
    return fiscalYearStart != FYS_JANUARY && month >= int{fiscalYearStart} ? WrapAdd(year, 1) : year;
}

int ConvertToCalendarYear(int fiscalYear, int month, FYSValues fiscalYearStart) noexcept
{
    return fiscalYearStart != FYS_JANUARY && month >= int{fiscalYearStart} ? WrapSub(fiscalYear, 1) : fiscalYear;
}

int GetFirstFiscalMonthInFiscalQuarter(int quarter) noexcept
{
    return WrapSub(WrapMul(3, quarter), 2);
}

int GetLastFiscalMonthInFiscalQuarter(int quarter) noexcept
{
    return WrapMul(3, quarter);
}

int GetFirstMonthInQuarter(int quarter, FYSValues fiscalYearStart) noexcept
{
    return WrapSub(WrapAdd(int{fiscalYearStart}, WrapMul(3, quarter)), 4) % 12 + 1;
}

int GetLastMonthInQuarter(int quarter, FYSValues fiscalYearStart) noexcept
{
    return WrapSub(WrapAdd(int{fiscalYearStart}, WrapMul(3, quarter)), 2) % 12 + 1;
}
