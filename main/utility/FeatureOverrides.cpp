#include "velcoredata/utility/FeatureOverrides.h"

#include <unordered_set>

#include "velcoredata/utility/FeatureCatalogue.h"
#include "velcoredata/utility/FeatureFlags.h"

FeatureOverrides::FeatureOverrides() = default;
FeatureOverrides::FeatureOverrides(FeatureOverrides const &) = default;
FeatureOverrides & FeatureOverrides::operator=(FeatureOverrides const &) = default;
FeatureOverrides::~FeatureOverrides() = default;

FeatureOverrides GetFeatureFlagOverrides()
{
    auto const & defaults = GetDefaultEnabledFeatureIds();
    std::unordered_set<FeatureFlagId> const onByDefault(defaults.begin(), defaults.end());
    FeatureOverrides overrides;
    for (FeatureFlagId const id : GetAllFeatureFlagIds()) {
        bool const on = FeatureFlags::IsOn(id);
        if (on == (onByDefault.count(id) != 0))
            continue;
        (on ? overrides.enabledOverrides : overrides.disabledOverrides).push_back(id);
    }
    return overrides;
}
