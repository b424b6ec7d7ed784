#include "velcoredata/data/IDateOptions.h"

IDateOptions::~IDateOptions() = default;

bool operator==(IDateOptions const & a, IDateOptions const & b)
{
    return a.GetCalendarType() == b.GetCalendarType() && a.GetStartOfWeek() == b.GetStartOfWeek() &&
           a.GetFiscalYearStart() == b.GetFiscalYearStart() && a.GetMinDaysInFirstWeek() == b.GetMinDaysInFirstWeek();
}

bool operator!=(IDateOptions const & a, IDateOptions const & b)
{
    return !(a == b);
}

bool operator<(IDateOptions const & a, IDateOptions const & b)
{
    return a.GetCalendarType() < b.GetCalendarType() || a.GetStartOfWeek() < b.GetStartOfWeek() ||
           a.GetFiscalYearStart() < b.GetFiscalYearStart() || a.GetMinDaysInFirstWeek() < b.GetMinDaysInFirstWeek();
}
