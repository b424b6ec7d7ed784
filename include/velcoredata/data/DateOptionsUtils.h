#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/AggType.h"
#include "velcoredata/data/DateEnums.h"

#include <memory>
#include <vector>

class IDateOptions;

/// Making of option objects, and the aggregations of several calendars together. The calendars are the Gregorian one,
/// followed by ISO 8601 where `includeISO8601` is true. Any thread; nothing fails.
namespace DateOptionsUtils {

/// ISO8601DateOptions for CalendarType::ISO8601, default GregorianDateOptions for every other number.
VELCOREDATA_API std::unique_ptr<IDateOptions> CreateDateOptionsForCalendarType(CalendarType type);

/// The lists of the calendars one behind the other, in the calendars' own order.
VELCOREDATA_API std::vector<AggType> GetAllBinDateAggregations(bool includeISO8601);
VELCOREDATA_API std::vector<AggType> GetAllTruncDateAggregations(bool includeISO8601);
VELCOREDATA_API std::vector<AggType> GetAllUncommonDateAggregations(bool includeISO8601);

/// Every bin aggregation of date-times, the uncommon ones included, in rising order, each once, without
/// AGG_UNCOMMON_25. For `false`: 14 to 24.
VELCOREDATA_API std::vector<AggType> GetAllBinInstanceAggregations(bool includeISO8601);

/// Every truncating aggregation of date-times in rising order, each once. For `true`: 30 to 41.
VELCOREDATA_API std::vector<AggType> GetAllTruncInstanceAggregations(bool includeISO8601);

}  // namespace DateOptionsUtils
