#include "velcoredata/data/GregorianDateOptions.h"

#include "main/data/CalendarIds.h"
#include "main/data/DateHierarchies.h"
#include "velcoreplatform/TString.h"

GregorianDateOptions::GregorianDateOptions() : GregorianDateOptions(SOW_SUNDAY, FYS_JANUARY) {}

GregorianDateOptions::GregorianDateOptions(SOWValue startOfWeek) : GregorianDateOptions(startOfWeek, FYS_JANUARY) {}

GregorianDateOptions::GregorianDateOptions(FYSValues fiscalYearStart)
    : GregorianDateOptions(SOW_SUNDAY, fiscalYearStart)
{}

GregorianDateOptions::GregorianDateOptions(SOWValue startOfWeek, FYSValues fiscalYearStart)
    : m_startOfWeek(startOfWeek), m_fiscalYearStart(fiscalYearStart)
{}

GregorianDateOptions::GregorianDateOptions(GregorianDateOptions const & other) = default;
GregorianDateOptions & GregorianDateOptions::operator=(GregorianDateOptions const & other) = default;
GregorianDateOptions::~GregorianDateOptions() = default;

std::unique_ptr<IDateOptions> GregorianDateOptions::Clone() const
{
    return std::make_unique<GregorianDateOptions>(*this);
}

CalendarType GregorianDateOptions::GetCalendarType() const
{
    return CalendarType::Gregorian;
}

TString const & GregorianDateOptions::GetCalendarTypeId() const
{
    return detail::GregorianCalendarId();
}

SOWValue GregorianDateOptions::GetStartOfWeek() const
{
    return m_startOfWeek;
}

void GregorianDateOptions::SetStartOfWeek(SOWValue startOfWeek)
{
    m_startOfWeek = startOfWeek;
}

FYSValues GregorianDateOptions::GetFiscalYearStart() const
{
    return m_fiscalYearStart;
}

void GregorianDateOptions::SetFiscalYearStart(FYSValues fiscalYearStart)
{
    m_fiscalYearStart = fiscalYearStart;
}

int GregorianDateOptions::GetMinDaysInFirstWeek() const
{
    return 1;
}

FirstWeekBehaviour GregorianDateOptions::GetFirstWeekBehavior() const
{
    return FirstWeekUnset;
}

DateTimeHierarchy const & GregorianDateOptions::GetHierarchy(DateDataType dataType, DateComputationKind kind) const
{
    static detail::DateHierarchies const hierarchies = {
        {{DateDataType::Date, DateComputationKind::Bin}, GetBinDateAggregations()},
        {{DateDataType::DateTime, DateComputationKind::Bin}, GetBinDateTimeAggregations()},
        {{DateDataType::Date, DateComputationKind::Trunc}, GetTruncDateAggregations()},
        {{DateDataType::DateTime, DateComputationKind::Trunc}, GetTruncDateTimeAggregations()},
    };
    return detail::FindHierarchy(hierarchies, dataType, kind);
}

std::vector<AggType> const & GregorianDateOptions::GetBinDateAggregations() const
{
    static std::vector<AggType> const aggregations = {AGG_YEAR, AGG_QUARTER, AGG_MONTH, AGG_DAY};
    return aggregations;
}

std::vector<AggType> const & GregorianDateOptions::GetBinDateTimeAggregations() const
{
    static std::vector<AggType> const aggregations = {AGG_YEAR, AGG_QUARTER, AGG_MONTH, AGG_DAY,
                                                      AGG_HOUR, AGG_MINUTE,  AGG_SECOND};
    return aggregations;
}

std::vector<AggType> const & GregorianDateOptions::GetUncommonDateAggregations() const
{
    static std::vector<AggType> const aggregations = {AGG_WEEK,        AGG_WEEKDAY,     AGG_UNCOMMON_25,
                                                      AGG_UNCOMMON_23, AGG_UNCOMMON_24, AGG_UNCOMMON_25};
    return aggregations;
}

std::vector<AggType> const & GregorianDateOptions::GetTruncDateAggregations() const
{
    static std::vector<AggType> const aggregations = {TRUNC_YEAR, TRUNC_QUARTER, TRUNC_MONTH, TRUNC_WEEK, TRUNC_DAY};
    return aggregations;
}

std::vector<AggType> const & GregorianDateOptions::GetTruncDateTimeAggregations() const
{
    static std::vector<AggType> const aggregations = {TRUNC_YEAR, TRUNC_QUARTER, TRUNC_MONTH,  TRUNC_WEEK,
                                                      TRUNC_DAY,  TRUNC_HOUR,    TRUNC_MINUTE, TRUNC_SECOND};
    return aggregations;
}

AggType GregorianDateOptions::GetNormalizedAggType(AggType aggregation) const
{
    return ConvertToGregorianAggType(aggregation);
}

AggType GregorianDateOptions::ConvertToGregorianAggType(AggType aggregation)
{
    switch (aggregation) {
    case AGG_ISO_YEAR: return AGG_YEAR;
    case AGG_ISO_QUARTER: return AGG_QUARTER;
    case AGG_ISO_WEEK: return AGG_WEEK;
    case AGG_ISO_WEEKDAY: return AGG_WEEKDAY;
    case TRUNC_ISO_YEAR: return TRUNC_YEAR;
    case TRUNC_ISO_QUARTER: return TRUNC_QUARTER;
    case TRUNC_ISO_WEEK: return TRUNC_WEEK;
    case TRUNC_ISO_DAY: return TRUNC_DAY;
    default: return aggregation;
    }
}
