// The members of the date options that ask a locale.

#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"

unsigned GregorianDateOptions::GetMinDaysInFirstWeekWhenUsingLocale(LCID lcid) const
{
    return static_cast<unsigned>(TLocale::GetMinimalDaysInFirstWeek(lcid));
}

bool GregorianDateOptions::HasBrokenWeeksWhenUsingLocale(LCID lcid) const
{
    return TLocale::FirstWeekIsBroken(lcid);
}

unsigned ISO8601DateOptions::GetMinDaysInFirstWeekWhenUsingLocale(LCID) const
{
    return 4;
}

bool ISO8601DateOptions::HasBrokenWeeksWhenUsingLocale(LCID) const
{
    return false;
}
