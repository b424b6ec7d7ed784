#pragma once

#include <unordered_map>

#include "velcoredata/core/Export.h"
#include "velcoredata/utility/CoredataFeatureFlagIds.h"
#include "velcoreplatform/TString.h"

/// From the name of a feature flag, in any case, to its id. Immutable after construction: any thread may ask.
///
///   GetDefaultFeatureIdLookup().GetId(u"WRITEMARKSFORESV")  // FeatureFlagId::WriteMarksForESV
///   GetId(a) == GetId(b)    for all a, b with StrToLookupCase(a) == StrToLookupCase(b)
class VELCOREDATA_API FeatureIdLookup
{
public:
    /// Of keys that differ in case only, the one that the map lists last gives the id.
    explicit FeatureIdLookup(std::unordered_map<TString, FeatureFlagId> const & idsByName);
    FeatureIdLookup(FeatureIdLookup const &);
    ~FeatureIdLookup();

    /// FeatureFlagId(), which is 0, for a name that is not there. Blanks count.
    FeatureFlagId GetId(TString const & name) const;

    /// The form in which names are compared: ICUUtils::StrFoldCase(text, false).
    TString StrToLookupCase(TString const & text) const;

private:
    std::unordered_map<TString, FeatureFlagId> m_idsByFoldedName;
};
