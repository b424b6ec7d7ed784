#pragma once

#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/Collation.h"
#include "velcoreplatform/TString.h"

/// Sorts many texts under one collation, several times faster than comparing them pair by pair: most pairs are ordered
/// by the first bytes of their sort keys.
///
/// Laws: the result is a permutation of the input; collation.Compare(t[i], t[i + 1]) <= 0 for every i; texts that
/// compare equal keep their order. Uses the calling thread's collator.
VELCOREDATA_API void SortCollated(Collation const & collation, std::vector<TString> & texts);

/// The order that sorting would give: positions in `texts`, which stays as it is. For {"b", "a", "C"} under "LEN" the
/// order is {1, 0, 2}.
VELCOREDATA_API std::vector<unsigned> CollatedOrder(Collation const & collation, std::vector<TString> const & texts);
