// GroupByOptions: what --group-by, --fiscal-start and --week-start mean together.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "typedtable/GroupBy.h"

namespace typedtable {

/// `text` is COLUMN:PERIOD; the numbers are in their ranges. Without items the groups are counted. Throws UserError for
/// a period that does not exist and for a start that does not move it.
GroupByRequest MakeGroupByRequest(std::string const & text, std::optional<int> fiscalStart,
                                  std::optional<int> weekStart, std::vector<AggregateItem> items);

}  // namespace typedtable
