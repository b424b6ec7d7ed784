// One try at a text with one format.
#pragma once

#include "velcoredata/core/DateTimeParseOptions.h"
#include "velcoreplatform/TString.h"

class DateTime;

namespace VelICU_V2 {
class ICUCalendar;
class ICUDateFormat;
}  // namespace VelICU_V2

namespace detail {

// Fills the calendar, and `out` on success: the whole text must fit, and its fields must make a date-time. What the
// format leaves out of the date is taken from the reference, or from 1899-12-30 if that is not valid.
bool TryDateText(VelICU_V2::ICUDateFormat const & formatter, VelICU_V2::ICUCalendar & calendar, TString const & text,
                 DateTimeParseOptions options, DateTime const & reference, DateTime & out);

}  // namespace detail
