#include "velicu/ErrorCode.h"

#include <unicode/utypes.h>

namespace VelICU_V2 {

char const * t_u_errorName(ICUErrorCode status) noexcept
{
    return u_errorName(static_cast<UErrorCode>(status));
}

}  // namespace VelICU_V2
