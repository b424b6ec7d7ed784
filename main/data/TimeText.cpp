// The text of Time and Interval. It is the same in every locale, so that the user's is asked as it is, without the copy
// that would keep the object apart from others.

#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/Interval.h"
#include "velcoredata/data/Time.h"

TString Time::Format() const
{
    return TLocale::GetUserDefaultLocale().Format(*this);
}

TString Interval::Format() const
{
    return TLocale::GetUserDefaultLocale().Format(*this);
}
