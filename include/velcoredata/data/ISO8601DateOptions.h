#pragma once

#include "velcoredata/data/IDateOptions.h"

/// The ISO 8601 week calendar: weeks begin on Monday, week 1 is the first with four days or more in the year, the
/// fiscal year is the year. Nothing of it can be changed: the setters ignore what they get.
class VELCOREDATA_API ISO8601DateOptions : public IDateOptions
{
public:
    ISO8601DateOptions();
    ISO8601DateOptions(ISO8601DateOptions const & other);
    ISO8601DateOptions & operator=(ISO8601DateOptions const & other);
    ~ISO8601DateOptions() override;

    std::unique_ptr<IDateOptions> Clone() const override;
    CalendarType GetCalendarType() const override;
    TString const & GetCalendarTypeId() const override;

    /// SOW_MONDAY, always.
    SOWValue GetStartOfWeek() const override;
    /// Does nothing.
    void SetStartOfWeek(SOWValue startOfWeek) override;

    /// FYS_JANUARY, always.
    FYSValues GetFiscalYearStart() const override;
    /// Does nothing.
    void SetFiscalYearStart(FYSValues fiscalYearStart) override;

    /// 4.
    int GetMinDaysInFirstWeek() const override;
    FirstWeekBehaviour GetFirstWeekBehavior() const override;

    DateTimeHierarchy const & GetHierarchy(DateDataType dataType, DateComputationKind kind) const override;
    std::vector<AggType> const & GetBinDateAggregations() const override;
    std::vector<AggType> const & GetBinDateTimeAggregations() const override;

    /// Empty.
    std::vector<AggType> const & GetUncommonDateAggregations() const override;
    std::vector<AggType> const & GetTruncDateAggregations() const override;
    std::vector<AggType> const & GetTruncDateTimeAggregations() const override;

    /// ConvertToISO8601AggType.
    AggType GetNormalizedAggType(AggType aggregation) const override;

    /// 4, whatever the locale.
    unsigned GetMinDaysInFirstWeekWhenUsingLocale(LCID lcid) const override;
    /// False, whatever the locale.
    bool HasBrokenWeeksWhenUsingLocale(LCID lcid) const override;

    /// AGG_YEAR to AGG_ISO_YEAR, TRUNC_MONTH and TRUNC_WEEK to TRUNC_ISO_WEEK and so on. Hours, minutes, seconds and
    /// the uncommon parts are of both calendars and come back as they are, as does everything outside 14 to 34.
    static AggType ConvertToISO8601AggType(AggType aggregation);
};
