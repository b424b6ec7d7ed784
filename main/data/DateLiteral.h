// The text of dates in the literal form of values.
#pragma once

#include "velcoredata/data/DateTime.h"
#include "velcoreplatform/TString.h"

namespace detail {

// In the names and digits of the user's default locale, in en_US "2020-01-02"; "2020-01-02 12:00:00", or "2020-01-02
// 12:00:00.005" where the milliseconds are above zero.
TString DateLiteral(DateTime const & value);
TString DateTimeLiteral(DateTime const & value);

}  // namespace detail
