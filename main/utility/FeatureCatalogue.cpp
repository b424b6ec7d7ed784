#include "velcoredata/utility/FeatureCatalogue.h"

#include <boost/any.hpp>

#include "main/utility/FeatureInfo.h"
#include "velcoreplatform/InitOnce.h"
#include "velsys/NoDestructor.h"

namespace {

// Nothing sets it: a catalogue that has flags on trial for everybody would.
bool s_enableMaturity2ByDefault = false;

std::vector<FeatureInfo> const & GetFeatureInfos()
{
    static detail::NoDestructor<std::vector<FeatureInfo>> s_infos(detail::MakeFeatureInfos(detail::FeatureRows()));
    return *s_infos;
}

FeatureInfo const & Row(FeatureFlagId id)
{
    return detail::FindFeatureInfo(GetFeatureInfos(), id);
}

// The object that `make` builds, once for the process. One slot for each `make`.
template <auto make>
auto const & MadeOnce()
{
    using Object = decltype(make());
    static void * s_slot = nullptr;
    InitOnce(
        &s_slot, [](void *) { return new boost::any(make()); }, nullptr,
        [](boost::any * made) -> void * { return boost::any_cast<Object>(made); });
    return *static_cast<Object const *>(s_slot);
}

std::vector<FeatureFlagId> MakeAllIds()
{
    return detail::FeatureIds(GetFeatureInfos());
}

std::vector<FeatureFlagId> MakeDefaultEnabledIds()
{
    return detail::DefaultEnabledFeatureIds(GetFeatureInfos(), s_enableMaturity2ByDefault);
}

FeatureIdLookup MakeIdLookup()
{
    return FeatureIdLookup(detail::FeatureIdsByName(GetFeatureInfos()));
}

}  // namespace

std::vector<FeatureFlagId> const & GetAllFeatureFlagIds()
{
    return MadeOnce<MakeAllIds>();
}

std::vector<FeatureFlagId> const & GetDefaultEnabledFeatureIds()
{
    return MadeOnce<MakeDefaultEnabledIds>();
}

FeatureIdLookup const & GetDefaultFeatureIdLookup()
{
    return MadeOnce<MakeIdLookup>();
}

TString const & GetFeatureFlagName(FeatureFlagId id)
{
    return Row(id).name;
}

TString const & GetFeatureFlagDescription(FeatureFlagId id)
{
    return Row(id).description;
}

TString const & GetFeatureTeam(FeatureFlagId id)
{
    return Row(id).team;
}

TString const & GetFeatureScrumAlias(FeatureFlagId id)
{
    return Row(id).scrumAlias;
}

TString const & GetTFSId(FeatureFlagId id)
{
    return Row(id).tfsId;
}

TString const & GetFeatureFlagRemovalDate(FeatureFlagId id)
{
    return Row(id).removalDate;
}

TString const & GetFeatureToggleRequirement(FeatureFlagId id)
{
    return Row(id).toggleRequirement;
}

FeatureMaturity GetFeatureMaturity(FeatureFlagId id)
{
    return Row(id).maturity;
}
