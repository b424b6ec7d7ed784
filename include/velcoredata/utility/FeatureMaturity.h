#pragma once

#include <cstdint>

/// How far a feature flag has come, as its owners see it. The library acts on no value: which flags are on at the start
/// is said by the catalogue's default column alone.
enum class FeatureMaturity : std::int32_t
{
    Unclassified = 0,
    Development = 1,  ///< mostly off by default
    Trial = 2,
    Released = 3,  ///< mostly on by default
    Settled = 4,   ///< mostly on by default
};
