// A row of the catalogue of feature flags, and what the catalogue answers from its rows.
#pragma once

#include <span>
#include <unordered_map>
#include <vector>

#include "main/utility/FeatureRows.h"
#include "velcoredata/core/Export.h"
#include "velcoredata/utility/CoredataFeatureFlagIds.h"
#include "velcoredata/utility/FeatureMaturity.h"
#include "velcoreplatform/TString.h"

struct FeatureInfo
{
    FeatureFlagId id;
    FeatureMaturity maturity;
    bool enabledByDefault;
    TString team;
    TString scrumAlias;
    TString tfsId;
    TString removalDate;
    TString toggleRequirement;
    TString name;
    TString description;
};

namespace detail {

VELCOREDATA_API std::vector<FeatureInfo> MakeFeatureInfos(std::span<FeatureRow const> rows);

// Linear, from the first row. Raises the logic assertion "it != std::cend(GetFeatureInfos())" for an id that is no row.
VELCOREDATA_API FeatureInfo const & FindFeatureInfo(std::vector<FeatureInfo> const & infos, FeatureFlagId id);

VELCOREDATA_API std::vector<FeatureFlagId> FeatureIds(std::vector<FeatureInfo> const & infos);
// With `enableMaturity2`, flags of FeatureMaturity::Trial count as on by default too.
VELCOREDATA_API std::vector<FeatureFlagId> DefaultEnabledFeatureIds(std::vector<FeatureInfo> const & infos,
                                                                    bool enableMaturity2);
VELCOREDATA_API std::unordered_map<TString, FeatureFlagId> FeatureIdsByName(std::vector<FeatureInfo> const & infos);

}  // namespace detail
