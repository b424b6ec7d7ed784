#include "velcoredata/core/LibraryVersion.h"

namespace velcoredata {

char const * LibraryVersion() noexcept
{
    return VELCOREDATA_VERSION;
}

}  // namespace velcoredata
