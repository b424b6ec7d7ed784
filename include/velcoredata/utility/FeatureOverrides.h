#pragma once

#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/utility/CoredataFeatureFlagIds.h"

/// How the flags in force differ from the defaults. Plain data.
struct VELCOREDATA_API FeatureOverrides
{
    FeatureOverrides();
    FeatureOverrides(FeatureOverrides const &);
    FeatureOverrides & operator=(FeatureOverrides const &);
    virtual ~FeatureOverrides();

    std::vector<FeatureFlagId> enabledOverrides;   ///< on now, though not on by default
    std::vector<FeatureFlagId> disabledOverrides;  ///< off now, though on by default
};

/// For the flags that FeatureFlags::IsOn sees on the calling thread. Both lists hold ids of the catalogue only, in its
/// order. With D the set of GetDefaultEnabledFeatureIds(), E and F the two lists:
///
///   E and D have no id in common, and F is a part of D, so E and F have none in common either
///   (D with E, without F) == FeatureFlags::GetEnabled()    on the ids of the catalogue
VELCOREDATA_API FeatureOverrides GetFeatureFlagOverrides();
