#pragma once

#include <cstdint>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

class Collator;

namespace detail {

// A number whose order never contradicts the collator's: KeyPrefix(a) < KeyPrefix(b) implies Compare(a, b) < 0, for the
// terminated forms. Equal numbers say nothing.
VELCOREDATA_API std::uint64_t KeyPrefix(Collator const & collator, TString const & text);

}  // namespace detail
