// What a reader made of a text: an object, or a fault and its place.
#pragma once

#include <limits>
#include <memory>
#include <string>

#include "velgeo/Spatial.h"
#include "velgeo/SpatialTextError.h"

namespace velgeo::detail {

struct ReadOutcome
{
    std::unique_ptr<Spatial> spatial;
    char const * fault = nullptr;
    std::size_t position = 0;
};

// Counts of shapes have 32 bits.
inline bool IsTooLong(std::string const & text) noexcept
{
    return text.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max());
}

inline std::unique_ptr<Spatial> SpatialOrThrow(ReadOutcome && outcome)
{
    if (outcome.fault != nullptr)
        throw SpatialTextError(outcome.fault, outcome.position);
    return std::move(outcome.spatial);
}

}  // namespace velgeo::detail
