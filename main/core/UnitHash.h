// The 128-bit string hash on bare code units.
#pragma once

#include <cstdint>
#include <utility>

#include "velcoredata/core/Export.h"

namespace detail {

// Raises the logic assertion "0 <= len" for a negative length.
VELCOREDATA_API std::pair<std::uint64_t, std::uint64_t> UnitHash128(char16_t const * units, int len);

}  // namespace detail
