#pragma once

#include <cstdint>

namespace ICUUtils {

/// Which of a locale's own patterns for dates and times. Any number outside the list counts as SpecDateTime.
enum DefaultDateTimeFormatSpec : std::int32_t
{
    SpecLongDate = 1,   ///< of 1033 "EEEE, MMMM d, yyyy" in ICU's letters
    SpecShortDate = 2,  ///< "M/d/yyyy"
    SpecTime = 3,       ///< with seconds, "h:mm:ss a"
    SpecDateTime = 4,   ///< the short date, one blank, the time
    SpecShortTime = 5,  ///< without seconds, "h:mm a"
};

}  // namespace ICUUtils
