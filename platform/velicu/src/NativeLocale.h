#pragma once

#include <unicode/locid.h>

#include "velicu/ICULocale.h"

namespace VelICU_V2 {

struct ICULocale::Native
{
    icu::Locale locale;
};

// The locale with the Gregorian calendar named in it, unless it names a calendar by itself.
icu::Locale WithCalendar(icu::Locale const & locale);

}  // namespace VelICU_V2
