// The platform's own conversion of dates to text and back.
#pragma once

#include "velcoredata/core/DateTimeParseOptions.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

class DateTime;

namespace detail {

// Both are false, and leave `out` as it was, for what the platform does not print or read. They meet at OLE dates,
// which DateTime counts on a line and the platform with a fraction that has no sign: before 1899-12-30 a time of day
// comes out as another one, 06:00 as 18:00.

// The time alone, the date alone, or with any other options both, to the second.
bool FormatNativeDate(DateTime const & value, LCID lcid, DateTimeParseOptions options, TString & out);
// A null text is the empty one. Years below 400 are refused. Both halves, the date alone, or with any other options the
// time alone, which is one of 1899-12-30.
bool ParseNativeDate(char16_t const * text, LCID lcid, DateTimeParseOptions options, DateTime & out);

}  // namespace detail
