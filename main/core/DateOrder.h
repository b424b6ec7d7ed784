// The order of day, month and year in a pattern.
#pragma once

#include "velcoredata/core/TLocale.h"

namespace detail {

// By the first "d", "M" and "y" of a pattern in ICU's letters; a letter in a quoted part counts too.
VELCOREDATA_API TLocale::DateOrder DateOrderOf(TString const & pattern);

}  // namespace detail
