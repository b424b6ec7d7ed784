// How many days of the first week stand in the year.
#pragma once

#include "velcoredata/data/DateEnums.h"

namespace detail {

constexpr int MinimalDaysOf(FirstWeekBehaviour behaviour) noexcept
{
    switch (behaviour) {
    case FirstWeekFourDays: return 4;
    case FirstWeekFullWeek: return 7;
    default: return 1;
    }
}

}  // namespace detail
