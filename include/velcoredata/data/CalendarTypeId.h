#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DateEnums.h"
#include "velcoreplatform/TString.h"

/// The text identifiers of the calendars, as callers store them. Pure functions, any thread, no failures.
namespace CalendarTypeId {

/// "Gregorian" or "ISO8601". A number that is no calendar type reads as "Gregorian".
VELCOREDATA_API const TString ConvertCalendarTypeToId(CalendarType type);

/// The type whose identifier is the text, case and all; CalendarType::Gregorian for every other text.
VELCOREDATA_API CalendarType ConvertIdToCalendarType(TString const & id);

}  // namespace CalendarTypeId
