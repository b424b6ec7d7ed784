// The status through which the ICU wrapper reports, and its two tests.
//
// A status is an in-out argument: an operation that gets one in failure does nothing and leaves it. Values below zero
// are warnings and count as success, so a status is tested with ICU_SUCCESS or ICU_FAILURE and never against zero.
// Example: opening a locale that falls back to its language gives U_USING_FALLBACK_WARNING (-128), which is success.
#pragma once

#include "velicu/Export.h"

namespace VelICU_V2 {

// The numbers are ICU's; a status may hold any other of them.
enum ICUErrorCode : int
{
    U_USING_FALLBACK_WARNING = -128,
    U_USING_DEFAULT_WARNING = -127,
    U_STRING_NOT_TERMINATED_WARNING = -124,
    U_ZERO_ERROR = 0,
    U_ILLEGAL_ARGUMENT_ERROR = 1,
    U_MISSING_RESOURCE_ERROR = 2,
    U_INTERNAL_PROGRAM_ERROR = 5,
    U_MEMORY_ALLOCATION_ERROR = 7,
    U_INDEX_OUTOFBOUNDS_ERROR = 8,
    U_PARSE_ERROR = 9,
    U_BUFFER_OVERFLOW_ERROR = 15,
    U_UNSUPPORTED_ERROR = 16,
    U_INVALID_STATE_ERROR = 27,
};

constexpr bool ICU_SUCCESS(ICUErrorCode status) noexcept
{
    return status <= U_ZERO_ERROR;
}

constexpr bool ICU_FAILURE(ICUErrorCode status) noexcept
{
    return status > U_ZERO_ERROR;
}

// The name of a status, "U_ILLEGAL_ARGUMENT_ERROR" for 1; "[BOGUS UErrorCode]" for a number ICU does not have.
VELICU_API char const * t_u_errorName(ICUErrorCode status) noexcept;

}  // namespace VelICU_V2

// The version that callers are to name.
namespace VelICU = VelICU_V2;
