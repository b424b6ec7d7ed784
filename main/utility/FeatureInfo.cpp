#include "main/utility/FeatureInfo.h"

#include <algorithm>

#include "velsys/ThrowSite.h"

namespace detail {

std::vector<FeatureInfo> MakeFeatureInfos(std::span<FeatureRow const> rows)
{
    std::vector<FeatureInfo> infos;
    infos.reserve(rows.size());
    for (FeatureRow const & row : rows)
        infos.push_back({FeatureFlagId(row.id), row.maturity, row.enabledByDefault, TString::fromUtf8(row.team),
                         TString::fromUtf8(row.scrumAlias), TString::fromUtf8(row.tfsId),
                         TString::fromUtf8(row.removalDate), TString::fromUtf8(row.toggleRequirement),
                         TString::fromUtf8(row.name), TString::fromUtf8(row.description)});
    return infos;
}

FeatureInfo const & FindFeatureInfo(std::vector<FeatureInfo> const & infos, FeatureFlagId id)
{
    auto const it = std::find_if(infos.begin(), infos.end(), [id](FeatureInfo const & info) { return info.id == id; });
    VELTRIA_ASSERT_TEXT(it != infos.end(), "it != std::cend(GetFeatureInfos())", 0x7A1C40E6);
    return *it;
}

std::vector<FeatureFlagId> FeatureIds(std::vector<FeatureInfo> const & infos)
{
    std::vector<FeatureFlagId> ids;
    ids.reserve(infos.size());
    for (FeatureInfo const & info : infos)
        ids.push_back(info.id);
    return ids;
}

std::vector<FeatureFlagId> DefaultEnabledFeatureIds(std::vector<FeatureInfo> const & infos, bool enableMaturity2)
{
    std::vector<FeatureFlagId> ids;
    for (FeatureInfo const & info : infos)
        if (info.enabledByDefault || (enableMaturity2 && info.maturity == FeatureMaturity::Trial))
            ids.push_back(info.id);
    return ids;
}

std::unordered_map<TString, FeatureFlagId> FeatureIdsByName(std::vector<FeatureInfo> const & infos)
{
    std::unordered_map<TString, FeatureFlagId> ids;
    for (FeatureInfo const & info : infos)
        ids.emplace(info.name, info.id);
    return ids;
}

}  // namespace detail
