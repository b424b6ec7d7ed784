// The patterns of a locale's own formats.
#pragma once

#include "velcoredata/core/DateTimeFormatCodes.h"
#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

class LanguageCode;

namespace detail {

// In ICU's letters, "M/d/yyyy h:mm:ss a". Empty, with a line to the log, for a code outside 0 to 23.
VELCOREDATA_API TString GetFormatString(DateTimeFormatCodes code, LanguageCode const & languageCode);

}  // namespace detail
