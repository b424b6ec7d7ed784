// The standard formats of percents and of scientific numbers, which say nothing but their decimals. Any thread may
// call; nothing raises.
//
//   GetDecimalsFromPercentString(GetPercentFormatStringOfSize(n), d) == (n, false)   for n of 0 to 16
//   GetDecimalsFromScientificString(GetScientificFormatStringOfSize(n), d) == n      for n of 0 to 16
#pragma once

#include <utility>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

VELCOREDATA_API TString GetPercentFormatStringOfSize(int decimals);     ///< "0.00%" of 2, "0%" of 0 and below
VELCOREDATA_API TString GetScientificFormatStringOfSize(int decimals);  ///< "0.00e+00" of 2, "0e+00" of 0 and below

/// The decimals of a standard percent format of up to 16 decimals and false; for every other text the default and true.
VELCOREDATA_API std::pair<int, bool> GetDecimalsFromPercentString(TString const & format, int defaultDecimals);

/// The same for scientific formats, without the flag.
VELCOREDATA_API int GetDecimalsFromScientificString(TString const & format, int defaultDecimals);
