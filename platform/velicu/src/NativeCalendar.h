#pragma once

#include <unicode/calendar.h>

#include <memory>

#include "velicu/ICUCalendar.h"

namespace VelICU_V2 {

struct ICUCalendar::Native
{
    std::unique_ptr<icu::Calendar> calendar;  // never null
};

// The calendar of a locale in UTC, Gregorian unless the locale names another. Null on failure.
std::unique_ptr<icu::Calendar> MakeNativeCalendar(icu::Locale const & locale, UErrorCode & status);

}  // namespace VelICU_V2
