#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/data/AggType.h"
#include "velcoredata/data/DateEnums.h"
#include "velsys/Lcid.h"

#include <memory>
#include <vector>

class DateTimeHierarchy;
class TString;

/// The calendar in which a computation runs: its type, the first day of the week, the first month of the fiscal year,
/// and the date aggregations that exist in it. GregorianDateOptions and ISO8601DateOptions are the two calendars.
///
/// Every reference that an operation returns is to an object shared by all options of the class: immutable, built on
/// first use, alive until the process ends, and the same whatever the start of week and the fiscal year start are.
///
/// Threads: const operations may be called from any thread. An object must not be read while a setter runs on it.
/// No operation checks an enumerator; the only failure is that of GetHierarchy.
class VELCOREDATA_API IDateOptions
{
public:
    virtual ~IDateOptions();

    /// A copy of the object with its own class.
    virtual std::unique_ptr<IDateOptions> Clone() const = 0;

    virtual CalendarType GetCalendarType() const = 0;

    /// The text identifier of the calendar: "Gregorian" or "ISO8601".
    virtual TString const & GetCalendarTypeId() const = 0;

    virtual SOWValue GetStartOfWeek() const = 0;
    virtual void SetStartOfWeek(SOWValue startOfWeek) = 0;

    virtual FYSValues GetFiscalYearStart() const = 0;
    virtual void SetFiscalYearStart(FYSValues fiscalYearStart) = 0;

    /// How many days of the first week of a year lie in that year, at least: 1, or 4 by ISO 8601.
    virtual int GetMinDaysInFirstWeek() const = 0;
    virtual FirstWeekBehaviour GetFirstWeekBehavior() const = 0;

    /// The levels of dates (or dates with time), binned or truncated, from coarse to fine. For date and bin the
    /// Gregorian levels are AGG_YEAR, AGG_QUARTER, AGG_MONTH, AGG_DAY.
    /// Throws std::out_of_range "invalid map<K, T> key" unless both arguments are listed enumerators.
    virtual DateTimeHierarchy const & GetHierarchy(DateDataType dataType, DateComputationKind kind) const = 0;

    /// Aggregations in the order in which callers offer them.
    virtual std::vector<AggType> const & GetBinDateAggregations() const = 0;
    virtual std::vector<AggType> const & GetBinDateTimeAggregations() const = 0;
    virtual std::vector<AggType> const & GetUncommonDateAggregations() const = 0;
    virtual std::vector<AggType> const & GetTruncDateAggregations() const = 0;
    virtual std::vector<AggType> const & GetTruncDateTimeAggregations() const = 0;

    /// The aggregation of this calendar that stands for one of the other calendar. Others come back as they are.
    virtual AggType GetNormalizedAggType(AggType aggregation) const = 0;

    /// How many days of week 1 lie in the year, at least, by the rules of a locale: of 1033 it is 1, of 1031 4.
    virtual unsigned GetMinDaysInFirstWeekWhenUsingLocale(LCID lcid) const = 0;
    /// Whether a week that two years share counts as two weeks, the last of one year and the first of the next, by the
    /// rules of a locale: true for 1033.
    virtual bool HasBrokenWeeksWhenUsingLocale(LCID lcid) const = 0;

protected:
    IDateOptions() = default;
    IDateOptions(IDateOptions const &) = default;
    IDateOptions & operator=(IDateOptions const &) = default;
};

/// Equal when calendar type, start of week, fiscal year start and minimal days in the first week all agree.
VELCOREDATA_API bool operator==(IDateOptions const & a, IDateOptions const & b);
VELCOREDATA_API bool operator!=(IDateOptions const & a, IDateOptions const & b);

/// True as soon as any of those four is lower in `a`, also behind one that is greater. So this is no order: of start of
/// week 1 with fiscal start 4, and start of week 2 with fiscal start 1, each is less than the other. Sorted containers
/// must not rest on it.
VELCOREDATA_API bool operator<(IDateOptions const & a, IDateOptions const & b);
