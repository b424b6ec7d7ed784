// The fixed, locale-free text of a date-time.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

class DateTime;

namespace detail {

// "2021-03-04T05:06:07.008": year without padding, milliseconds truncated from ticks.
VELCOREDATA_API TString FormatFixed(DateTime const & value);

}  // namespace detail
