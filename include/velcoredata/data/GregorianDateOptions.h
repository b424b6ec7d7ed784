#pragma once

#include "velcoredata/data/IDateOptions.h"

/// The Gregorian calendar with a start of week and a fiscal year start of the caller's choice, Sunday and January
/// unless told otherwise. A small mutable value; neither field is range-checked.
class VELCOREDATA_API GregorianDateOptions : public IDateOptions
{
public:
    GregorianDateOptions();
    explicit GregorianDateOptions(SOWValue startOfWeek);
    explicit GregorianDateOptions(FYSValues fiscalYearStart);
    GregorianDateOptions(SOWValue startOfWeek, FYSValues fiscalYearStart);
    GregorianDateOptions(GregorianDateOptions const & other);
    GregorianDateOptions & operator=(GregorianDateOptions const & other);
    ~GregorianDateOptions() override;

    std::unique_ptr<IDateOptions> Clone() const override;
    CalendarType GetCalendarType() const override;
    TString const & GetCalendarTypeId() const override;
    SOWValue GetStartOfWeek() const override;
    void SetStartOfWeek(SOWValue startOfWeek) override;
    FYSValues GetFiscalYearStart() const override;
    void SetFiscalYearStart(FYSValues fiscalYearStart) override;

    /// 1: week 1 is the week that holds the first day of the year, however short it is.
    int GetMinDaysInFirstWeek() const override;
    FirstWeekBehaviour GetFirstWeekBehavior() const override;

    /// Week is a level of the truncating hierarchies only, between month and day.
    DateTimeHierarchy const & GetHierarchy(DateDataType dataType, DateComputationKind kind) const override;
    std::vector<AggType> const & GetBinDateAggregations() const override;
    std::vector<AggType> const & GetBinDateTimeAggregations() const override;

    /// Holds AGG_UNCOMMON_25 twice, third and last.
    std::vector<AggType> const & GetUncommonDateAggregations() const override;
    std::vector<AggType> const & GetTruncDateAggregations() const override;
    std::vector<AggType> const & GetTruncDateTimeAggregations() const override;

    /// ConvertToGregorianAggType.
    AggType GetNormalizedAggType(AggType aggregation) const override;

    /// TLocale::GetMinimalDaysInFirstWeek.
    unsigned GetMinDaysInFirstWeekWhenUsingLocale(LCID lcid) const override;
    /// TLocale::FirstWeekIsBroken.
    bool HasBrokenWeeksWhenUsingLocale(LCID lcid) const override;

    /// AGG_ISO_WEEK to AGG_WEEK, TRUNC_ISO_DAY to TRUNC_DAY and so on; everything that is not of the ISO 8601 calendar
    /// comes back as it is. Not the inverse of ISO8601DateOptions::ConvertToISO8601AggType: a month goes to an ISO
    /// week, and an ISO week to a week.
    static AggType ConvertToGregorianAggType(AggType aggregation);

private:
    SOWValue m_startOfWeek;
    FYSValues m_fiscalYearStart;
};
