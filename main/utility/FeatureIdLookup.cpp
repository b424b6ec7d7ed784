#include "velcoredata/utility/FeatureIdLookup.h"

#include "velcoredata/string/ICUUtils.h"

FeatureIdLookup::FeatureIdLookup(std::unordered_map<TString, FeatureFlagId> const & idsByName)
{
    m_idsByFoldedName.reserve(idsByName.size());
    for (auto const & [name, id] : idsByName)
        m_idsByFoldedName[StrToLookupCase(name)] = id;
}

FeatureIdLookup::FeatureIdLookup(FeatureIdLookup const &) = default;

FeatureIdLookup::~FeatureIdLookup() = default;

FeatureFlagId FeatureIdLookup::GetId(TString const & name) const
{
    auto const found = m_idsByFoldedName.find(StrToLookupCase(name));
    return found == m_idsByFoldedName.end() ? FeatureFlagId() : found->second;
}

TString FeatureIdLookup::StrToLookupCase(TString const & text) const
{
    return ICUUtils::StrFoldCase(text, false);
}
