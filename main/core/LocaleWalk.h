// The platform's locales, one after the other.
#pragma once

#include <functional>

#include "velcoredata/core/Export.h"
#include "velsys/Lcid.h"

namespace detail {

// Calls `visit` with the LCID of each locale of the platform, in its order. One thread at a time; a visit may walk
// again. An exception of a visit ends the walk and goes no further.
VELCOREDATA_API void WalkSystemLocales(std::function<void(LCID)> const & visit);

}  // namespace detail
