#pragma once

#include <cstdint>

namespace Localization {

/// The system of measures that people of a locale use.
enum MeasureSystem : std::int32_t
{
    MeasureUS = 0,
    MeasureMetric = 1,
};

}  // namespace Localization
