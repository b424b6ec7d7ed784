#include "velcoredata/data/ISO8601DateOptions.h"

#include "main/data/CalendarIds.h"
#include "main/data/DateHierarchies.h"
#include "velcoreplatform/TString.h"

ISO8601DateOptions::ISO8601DateOptions() = default;
ISO8601DateOptions::ISO8601DateOptions(ISO8601DateOptions const & other) = default;
ISO8601DateOptions & ISO8601DateOptions::operator=(ISO8601DateOptions const & other) = default;
ISO8601DateOptions::~ISO8601DateOptions() = default;

std::unique_ptr<IDateOptions> ISO8601DateOptions::Clone() const
{
    return std::make_unique<ISO8601DateOptions>(*this);
}

CalendarType ISO8601DateOptions::GetCalendarType() const
{
    return CalendarType::ISO8601;
}

TString const & ISO8601DateOptions::GetCalendarTypeId() const
{
    return detail::ISO8601CalendarId();
}

SOWValue ISO8601DateOptions::GetStartOfWeek() const
{
    return SOW_MONDAY;
}

void ISO8601DateOptions::SetStartOfWeek(SOWValue) {}

FYSValues ISO8601DateOptions::GetFiscalYearStart() const
{
    return FYS_JANUARY;
}

void ISO8601DateOptions::SetFiscalYearStart(FYSValues) {}

int ISO8601DateOptions::GetMinDaysInFirstWeek() const
{
    return 4;
}

FirstWeekBehaviour ISO8601DateOptions::GetFirstWeekBehavior() const
{
    return FirstWeekFourDays;
}

DateTimeHierarchy const & ISO8601DateOptions::GetHierarchy(DateDataType dataType, DateComputationKind kind) const
{
    static detail::DateHierarchies const hierarchies = {
        {{DateDataType::Date, DateComputationKind::Bin}, GetBinDateAggregations()},
        {{DateDataType::DateTime, DateComputationKind::Bin}, GetBinDateTimeAggregations()},
        {{DateDataType::Date, DateComputationKind::Trunc}, GetTruncDateAggregations()},
        {{DateDataType::DateTime, DateComputationKind::Trunc}, GetTruncDateTimeAggregations()},
    };
    return detail::FindHierarchy(hierarchies, dataType, kind);
}

std::vector<AggType> const & ISO8601DateOptions::GetBinDateAggregations() const
{
    static std::vector<AggType> const aggregations = {AGG_ISO_YEAR, AGG_ISO_QUARTER, AGG_ISO_WEEK, AGG_ISO_WEEKDAY};
    return aggregations;
}

std::vector<AggType> const & ISO8601DateOptions::GetBinDateTimeAggregations() const
{
    static std::vector<AggType> const aggregations = {AGG_ISO_YEAR, AGG_ISO_QUARTER, AGG_ISO_WEEK, AGG_ISO_WEEKDAY,
                                                      AGG_HOUR,     AGG_MINUTE,      AGG_SECOND};
    return aggregations;
}

std::vector<AggType> const & ISO8601DateOptions::GetUncommonDateAggregations() const
{
    static std::vector<AggType> const aggregations;
    return aggregations;
}

std::vector<AggType> const & ISO8601DateOptions::GetTruncDateAggregations() const
{
    static std::vector<AggType> const aggregations = {TRUNC_ISO_YEAR, TRUNC_ISO_QUARTER, TRUNC_ISO_WEEK, TRUNC_ISO_DAY};
    return aggregations;
}

std::vector<AggType> const & ISO8601DateOptions::GetTruncDateTimeAggregations() const
{
    static std::vector<AggType> const aggregations = {TRUNC_ISO_YEAR, TRUNC_ISO_QUARTER, TRUNC_ISO_WEEK, TRUNC_ISO_DAY,
                                                      TRUNC_HOUR,     TRUNC_MINUTE,      TRUNC_SECOND};
    return aggregations;
}

AggType ISO8601DateOptions::GetNormalizedAggType(AggType aggregation) const
{
    return ConvertToISO8601AggType(aggregation);
}

AggType ISO8601DateOptions::ConvertToISO8601AggType(AggType aggregation)
{
    switch (aggregation) {
    case AGG_YEAR: return AGG_ISO_YEAR;
    case AGG_QUARTER: return AGG_ISO_QUARTER;
    case AGG_MONTH: return AGG_ISO_WEEK;
    case AGG_DAY: return AGG_ISO_WEEKDAY;
    case AGG_WEEK: return AGG_ISO_WEEK;
    case AGG_WEEKDAY: return AGG_ISO_WEEKDAY;
    case TRUNC_YEAR: return TRUNC_ISO_YEAR;
    case TRUNC_QUARTER: return TRUNC_ISO_QUARTER;
    case TRUNC_MONTH: return TRUNC_ISO_WEEK;
    case TRUNC_WEEK: return TRUNC_ISO_WEEK;
    case TRUNC_DAY: return TRUNC_ISO_DAY;
    default: return aggregation;
    }
}
