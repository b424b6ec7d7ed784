// OLE Automation dates: days since 1899-12-30 in a double whose fraction is the time of day, without a sign.
#pragma once

#include "velcoreplatform/SystemTime.h"
#include "velnls/Export.h"

// Date and time of day of an OLE Automation date. The whole part counts days, negative before 1899-12-30, and the
// magnitude of the fraction is the time of day: 2.5 is 1900-01-01 12:00, -1.25 is 1899-12-29 06:00. The time is rounded
// to the nearest second, half a second up, and may carry into the next day; wMilliseconds is 0. Returns false and
// leaves `out` alone outside 0100-01-01 to 9999-12-31 23:59:59 and for a NaN. Pure, from any thread.
VELNLS_API bool VariantTimeToSystemTime(double date, SYSTEMTIME & out);
