// The fiscal calendar of DateTime, and its days within weeks.

#include "velcoredata/data/DateTime.h"

#include "main/data/WholeDates.h"
#include "velcoredata/data/DateTimeUtils.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velsys/Arithmetic.h"

using detail::WrapAdd;
using detail::WrapMul;
using detail::WrapSub;

namespace {

constexpr int notGiven = -1;

DateTime DayBefore(DateTime const & date)
{
    return date - DateTimeSpan::Days(1);
}

}  // namespace

DateTime DateTime::FromFiscalYear(int fiscalYear, FYSValues fiscalYearStart, int calendarMonth, int day, int hour,
                                  int minute, int second, double fraction)
{
    return DateTime(ConvertToCalendarYear(fiscalYear, calendarMonth, fiscalYearStart), calendarMonth, day, hour, minute,
                    second, fraction);
}

int DateTime::GetDaysSinceStartOfWeek(IDateOptions const & options) const
{
    return GetDaysSinceStartOfWeek(GetDayOfWeek(), options);
}

int DateTime::GetDaysSinceStartOfWeek(int dayOfWeek, IDateOptions const & options)
{
    return WrapAdd(WrapSub(dayOfWeek, static_cast<int>(options.GetStartOfWeek())), 7) % 7;
}

int DateTime::GetFiscalYear(FYSValues fiscalYearStart) const
{
    YearMonthDay const date = GetYearMonthDay();
    return ConvertToFiscalYear(date.year, date.month, fiscalYearStart);
}

int DateTime::GetFiscalQuarter(FYSValues fiscalYearStart) const
{
    return (ConvertToFiscalMonth(GetMonth(), fiscalYearStart) - 1) / 3 + 1;
}

int DateTime::GetFiscalMonth(FYSValues fiscalYearStart) const
{
    return ConvertToFiscalMonth(GetMonth(), fiscalYearStart);
}

int DateTime::GetFiscalWeek(IDateOptions const & options) const
{
    FYSValues const fiscalYearStart = options.GetFiscalYearStart();
    DateTime const start = FiscalYearStart(GetFiscalYear(fiscalYearStart), fiscalYearStart);
    long long const day = fiscalYearStart == FYS_JANUARY
                              ? GetDayOfYear() - 1
                              : DatePeriodDifference(*this, start, DatePeriodType::Day, options);
    return static_cast<int>((day + start.GetDaysSinceStartOfWeek(options)) / 7 + 1);
}

DateTime::YearMonthDay DateTime::GetFiscalYearMonthDay(FYSValues fiscalYearStart) const
{
    YearMonthDay const date = GetYearMonthDay();
    return {ConvertToFiscalYear(date.year, date.month, fiscalYearStart),
            ConvertToFiscalMonth(date.month, fiscalYearStart), date.day};
}

DateTime DateTime::FiscalYearStart(int fiscalYear, FYSValues fiscalYearStart)
{
    int const year = fiscalYearStart == FYS_JANUARY ? fiscalYear : WrapSub(fiscalYear, 1);
    return detail::FirstOfMonth(year, fiscalYearStart);
}

DateTime DateTime::FiscalYearEnd(int fiscalYear, FYSValues fiscalYearStart)
{
    return DayBefore(FiscalYearStart(WrapAdd(fiscalYear, 1), fiscalYearStart));
}

DateTime DateTime::FiscalQuarterStart(int fiscalYear, int quarter, FYSValues fiscalYearStart)
{
    return FromFiscalYear(fiscalYear, fiscalYearStart, GetFirstMonthInQuarter(quarter, fiscalYearStart), 1, 0, 0, 0,
                          0.0);
}

DateTime DateTime::FiscalQuarterEnd(int fiscalYear, int quarter, FYSValues fiscalYearStart)
{
    return DayBefore(quarter < 4 ? FiscalQuarterStart(fiscalYear, WrapAdd(quarter, 1), fiscalYearStart)
                                 : FiscalQuarterStart(WrapAdd(fiscalYear, 1), 1, fiscalYearStart));
}

DateTime DateTime::FiscalMonthStart(int fiscalYear, int fiscalMonth, FYSValues fiscalYearStart)
{
    int const month = ConvertToCalendarMonth(fiscalMonth, fiscalYearStart);
    return detail::FirstOfMonth(ConvertToCalendarYear(fiscalYear, month, fiscalYearStart), month);
}

DateTime DateTime::FiscalMonthEnd(int fiscalYear, int fiscalMonth, FYSValues fiscalYearStart)
{
    return DayBefore(fiscalMonth < 12 ? FiscalMonthStart(fiscalYear, WrapAdd(fiscalMonth, 1), fiscalYearStart)
                                      : FiscalMonthStart(WrapAdd(fiscalYear, 1), 1, fiscalYearStart));
}

DateTime DateTime::FiscalWeekStart(int fiscalYear, int fiscalWeek, IDateOptions const & options)
{
    DateTime const start = FiscalYearStart(fiscalYear, options.GetFiscalYearStart());
    int const days = WrapSub(WrapSub(WrapMul(fiscalWeek, 7), start.GetDaysSinceStartOfWeek(options)), 7);
    return start + DateTimeSpan::Days(days);
}

DateTime DateTime::FiscalWeekEnd(int fiscalYear, int fiscalWeek, IDateOptions const & options)
{
    return FiscalWeekStart(fiscalYear, fiscalWeek, options) + DateTimeSpan::Days(6);
}

DateTime DateTime::FiscalDayOfWeek(int fiscalYear, int fiscalWeek, int dayOfWeek, IDateOptions const & options)
{
    GregorianDateOptions const sundayFirst(options.GetFiscalYearStart());
    return FiscalWeekStart(fiscalYear, fiscalWeek, sundayFirst) + DateTimeSpan::Days(WrapSub(dayOfWeek, 1));
}

int DateTime::FirstWeek(int fiscalYear, int quarter, int month, IDateOptions const & options)
{
    FYSValues const fiscalYearStart = options.GetFiscalYearStart();
    if (month == notGiven)
        month = quarter != notGiven ? GetFirstMonthInQuarter(quarter, fiscalYearStart) : fiscalYearStart;
    if (fiscalYear == notGiven)
        fiscalYear = 2012;
    return FromFiscalYear(fiscalYear, fiscalYearStart, month, 1, 0, 0, 0, 0.0).GetFiscalWeek(options);
}

int DateTime::LastWeek(int fiscalYear, int quarter, int month, IDateOptions const & options)
{
    FYSValues const fiscalYearStart = options.GetFiscalYearStart();
    if (month == notGiven) {
        if (quarter != notGiven)
            month = GetLastMonthInQuarter(quarter, fiscalYearStart);
        else
            month = fiscalYearStart == FYS_JANUARY ? 12 : WrapSub(static_cast<int>(fiscalYearStart), 1);
    }
    if (fiscalYear == notGiven)
        fiscalYear = 2012;
    int const year = ConvertToCalendarYear(fiscalYear, month, fiscalYearStart);
    return DateTime(year, month, LastDay(year, month), 0, 0, 0, 0.0).GetFiscalWeek(options);
}
