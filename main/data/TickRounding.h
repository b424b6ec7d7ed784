// Rounding of real numbers of days to ticks of 1/10,000 second.
#pragma once

#include <cmath>

#include "velsys/Arithmetic.h"

namespace detail {

// Half a tick rounds away from zero. The count of a negative number of days wraps.
inline unsigned long long TicksOfDays(double days) noexcept
{
    unsigned long long const ticks = RealToUInt64(864000000.0 * std::fabs(days) + 0.5);
    return days < 0.0 ? 0 - ticks : ticks;
}

}  // namespace detail
