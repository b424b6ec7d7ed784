// The catalogue: the one table of all run-time feature flags, compiled in. Constant once built, which the first call
// does; any thread may call, and every reference lives until the process ends.
//
//   ids are unique, and so are the names with their case folded:
//   GetDefaultFeatureIdLookup().GetId(n) == id    for every id of GetAllFeatureFlagIds() and every n that differs from
//                                                 GetFeatureFlagName(id) in case only
#pragma once

#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/utility/CoredataFeatureFlagIds.h"
#include "velcoredata/utility/FeatureIdLookup.h"
#include "velcoredata/utility/FeatureMaturity.h"
#include "velcoreplatform/TString.h"

/// Every id, in the order of the table, which is not sorted.
VELCOREDATA_API std::vector<FeatureFlagId> const & GetAllFeatureFlagIds();
/// The ids that are on by default, in the same order.
VELCOREDATA_API std::vector<FeatureFlagId> const & GetDefaultEnabledFeatureIds();
/// The names of the whole table.
VELCOREDATA_API FeatureIdLookup const & GetDefaultFeatureIdLookup();

// The columns of a flag's row, each found by a search from the first row. An id that is no row raises the logic
// assertion "it != std::cend(GetFeatureInfos())", LogicException_LogicAssert_0x7A1C40E6; 0 is no row.

VELCOREDATA_API TString const & GetFeatureFlagName(FeatureFlagId id);         ///< "WriteMarksForESV"
VELCOREDATA_API TString const & GetFeatureFlagDescription(FeatureFlagId id);  ///< a sentence for people
VELCOREDATA_API TString const & GetFeatureTeam(FeatureFlagId id);             ///< "File Format"
VELCOREDATA_API TString const & GetFeatureScrumAlias(FeatureFlagId id);       ///< "FileFormatTeam"
/// A work item number as text, "912489", or empty.
VELCOREDATA_API TString const & GetTFSId(FeatureFlagId id);
/// Year-month-day, month and day not always of two digits: "2019-11-5". May be empty.
VELCOREDATA_API TString const & GetFeatureFlagRemovalDate(FeatureFlagId id);
/// What changing the flag takes: "none", "restart", or empty.
VELCOREDATA_API TString const & GetFeatureToggleRequirement(FeatureFlagId id);
VELCOREDATA_API FeatureMaturity GetFeatureMaturity(FeatureFlagId id);
