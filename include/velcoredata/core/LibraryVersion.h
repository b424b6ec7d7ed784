#pragma once

#include "velcoredata/core/Export.h"

namespace velcoredata {

/// Version of the library that is loaded, as "major.minor.patch" in ASCII, e.g. "0.1.0".
/// The text is static and terminated; callers never free it. Safe from any thread.
VELCOREDATA_API char const * LibraryVersion() noexcept;

}  // namespace velcoredata
