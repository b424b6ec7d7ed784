// The rows of the catalogue of feature flags: the source is written by vel-codegen/gen-features at build time.
#pragma once

#include <cstdint>
#include <span>

#include "velcoredata/utility/FeatureMaturity.h"

namespace detail {

// Texts are UTF-8 and static. Ids are unique and never 0; names are unique with their case folded.
struct FeatureRow
{
    std::uint32_t id;
    FeatureMaturity maturity;
    bool enabledByDefault;
    char const * team;
    char const * scrumAlias;
    char const * tfsId;
    char const * removalDate;
    char const * toggleRequirement;
    char const * name;
    char const * description;
};

std::span<FeatureRow const> FeatureRows() noexcept;

}  // namespace detail
