#include "velcoredata/data/DateOptionsUtils.h"

#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"

#include <algorithm>

namespace DateOptionsUtils {

namespace {

using Calendars = std::vector<std::shared_ptr<IDateOptions const>>;
using AggregationList = std::vector<AggType> const & (IDateOptions::*)() const;

Calendars const & GetCalendars(bool includeISO8601)
{
    if (!includeISO8601) {
        static Calendars const gregorian = {std::make_shared<GregorianDateOptions>()};
        return gregorian;
    }
    static Calendars const all = {std::make_shared<GregorianDateOptions>(), std::make_shared<ISO8601DateOptions>()};
    return all;
}

std::vector<AggType> Concatenate(bool includeISO8601, std::initializer_list<AggregationList> lists)
{
    std::vector<AggType> result;
    for (auto const & calendar : GetCalendars(includeISO8601)) {
        for (AggregationList const list : lists) {
            std::vector<AggType> const & aggregations = ((*calendar).*list)();
            result.insert(result.end(), aggregations.begin(), aggregations.end());
        }
    }
    return result;
}

std::vector<AggType> MakeInstances(std::vector<AggType> aggregations)
{
    std::sort(aggregations.begin(), aggregations.end());
    aggregations.erase(std::unique(aggregations.begin(), aggregations.end()), aggregations.end());
    aggregations.erase(std::remove(aggregations.begin(), aggregations.end(), AGG_UNCOMMON_25), aggregations.end());
    return aggregations;
}

}  // namespace

std::unique_ptr<IDateOptions> CreateDateOptionsForCalendarType(CalendarType type)
{
    if (type == CalendarType::ISO8601)
        return std::make_unique<ISO8601DateOptions>();
    return std::make_unique<GregorianDateOptions>();
}

std::vector<AggType> GetAllBinDateAggregations(bool includeISO8601)
{
    return Concatenate(includeISO8601, {&IDateOptions::GetBinDateAggregations});
}

std::vector<AggType> GetAllTruncDateAggregations(bool includeISO8601)
{
    return Concatenate(includeISO8601, {&IDateOptions::GetTruncDateAggregations});
}

std::vector<AggType> GetAllUncommonDateAggregations(bool includeISO8601)
{
    return Concatenate(includeISO8601, {&IDateOptions::GetUncommonDateAggregations});
}

std::vector<AggType> GetAllBinInstanceAggregations(bool includeISO8601)
{
    return MakeInstances(Concatenate(
        includeISO8601, {&IDateOptions::GetBinDateTimeAggregations, &IDateOptions::GetUncommonDateAggregations}));
}

std::vector<AggType> GetAllTruncInstanceAggregations(bool includeISO8601)
{
    return MakeInstances(Concatenate(includeISO8601, {&IDateOptions::GetTruncDateTimeAggregations}));
}

}  // namespace DateOptionsUtils
