// Drivers of the tables on periods, the fiscal calendar, date options and hierarchies.
#include "tests/vectors/DateDrivers.h"
#include "tests/vectors/DateOptionsCells.h"
#include "velcoredata/data/DateOptionsUtils.h"
#include "velcoredata/data/DateTimeHierarchy.h"
#include "velcoredata/data/DateTimeUtils.h"

using namespace velcoredata::vectors;

namespace {

int IntCell(Row const & row, char const * column)
{
    return static_cast<int>(row.Int(column));
}

FYSValues FiscalStart(Row const & row)
{
    return static_cast<FYSValues>(row.Int("fys"));
}

GregorianDateOptions Options(Row const & row)
{
    return GregorianDateOptions(static_cast<SOWValue>(row.Int("sow")), FiscalStart(row));
}

DatePeriodType Period(Row const & row)
{
    return static_cast<DatePeriodType>(row.Int("type"));
}

DateTime Representation(Row const & row, char const * column)
{
    return DateTime::FromValue(row.UInt(column));
}

template <class Call>
std::string DayOutcome(Call const & call)
{
    return Outcome([&] { return DayNumberOf(call()); });
}

// Outcomes of call(first) to call(last), joined by commas.
template <class Call>
std::string DayOutcomes(int first, int last, Call const & call)
{
    std::string text;
    for (int i = first; i <= last; ++i)
        text += (i == first ? "" : ",") + DayOutcome([&] { return call(i); });
    return text;
}

std::string Joined(std::vector<AggType> const & aggregations)
{
    std::string text;
    for (AggType const aggregation : aggregations)
        text += (text.empty() ? "" : ",") + std::to_string(aggregation);
    return text;
}

// As Outcome, but an assertion by the name of its error.
template <class Call>
std::string OutcomeByName(Call const & call)
{
    try {
        return std::to_string(static_cast<int>(call()));
    } catch (VeltriaException const & e) {
        return "!" + e.GetErrorInfo().GetError().GetName().toQString().toStdString();
    }
}

}  // namespace

VECTOR_DRIVER("dates_adjust")
{
    row.ExpectCell("result", Outcome([&] {
                       return AdjustByDatePeriod(Representation(row, "representation"), Period(row), row.Int("count"));
                   }));
}

VECTOR_DRIVER("dates_startofperiod")
{
    auto const options = DecodeDateOptions(row.Cell("options"));
    row.ExpectCell("result", Outcome([&] {
                       return FindStartOfPeriod(Representation(row, "representation"), Period(row), *options);
                   }));
}

VECTOR_DRIVER("dates_difference")
{
    auto const options = DecodeDateOptions(row.Cell("options"));
    row.ExpectCell("result", Outcome([&] {
                       return DatePeriodDifference(Representation(row, "later"), Representation(row, "earlier"),
                                                   Period(row), *options);
                   }));
}

VECTOR_DRIVER("dates_fiscal")
{
    DateTime const date = Representation(row, "representation");
    FYSValues const start = FiscalStart(row);
    GregorianDateOptions const options = Options(row);
    row.ExpectCell("fiscalYear", Outcome([&] { return date.GetFiscalYear(start); }));
    row.ExpectCell("fiscalMonth", Outcome([&] { return date.GetFiscalMonth(start); }));
    row.ExpectCell("fiscalQuarter", Outcome([&] { return date.GetFiscalQuarter(start); }));
    row.ExpectCell("fiscalWeek", Outcome([&] { return date.GetFiscalWeek(options); }));
    row.ExpectCell("daysSinceStartOfWeek", Outcome([&] { return date.GetDaysSinceStartOfWeek(options); }));
    DateTime::YearMonthDay const fiscal = date.GetFiscalYearMonthDay(start);
    row.ExpectInt("fiscalYear", fiscal.year);
    row.ExpectInt("fiscalMonth", fiscal.month);
    row.Expect("fiscal day", std::to_string(date.GetDay()), std::to_string(fiscal.day));
}

VECTOR_DRIVER("dates_fiscalbounds")
{
    int const year = IntCell(row, "fiscalYear");
    FYSValues const start = FiscalStart(row);
    row.ExpectCell("yearStart", DayOutcome([&] { return DateTime::FiscalYearStart(year, start); }));
    row.ExpectCell("yearEnd", DayOutcome([&] { return DateTime::FiscalYearEnd(year, start); }));
    row.ExpectCell("quarterStart1to4",
                   DayOutcomes(1, 4, [&](int quarter) { return DateTime::FiscalQuarterStart(year, quarter, start); }));
    row.ExpectCell("quarterEnd1to4",
                   DayOutcomes(1, 4, [&](int quarter) { return DateTime::FiscalQuarterEnd(year, quarter, start); }));
    row.ExpectCell("monthStart1to12",
                   DayOutcomes(1, 12, [&](int month) { return DateTime::FiscalMonthStart(year, month, start); }));
    row.ExpectCell("monthEnd1to12",
                   DayOutcomes(1, 12, [&](int month) { return DateTime::FiscalMonthEnd(year, month, start); }));
}

VECTOR_DRIVER("dates_fiscalweekbounds")
{
    int const year = IntCell(row, "fiscalYear");
    int const week = IntCell(row, "fiscalWeek");
    GregorianDateOptions const options = Options(row);
    row.ExpectCell("weekStart", DayOutcome([&] { return DateTime::FiscalWeekStart(year, week, options); }));
    row.ExpectCell("weekEnd", DayOutcome([&] { return DateTime::FiscalWeekEnd(year, week, options); }));
    row.ExpectCell("fiscalDayOfWeek1to7",
                   DayOutcomes(1, 7, [&](int day) { return DateTime::FiscalDayOfWeek(year, week, day, options); }));
}

VECTOR_DRIVER("dates_firstlastweek")
{
    int const year = IntCell(row, "fiscalYear");
    int const quarter = IntCell(row, "quarter");
    int const month = IntCell(row, "month");
    GregorianDateOptions const options = Options(row);
    row.ExpectCell("firstWeek", Outcome([&] { return DateTime::FirstWeek(year, quarter, month, options); }));
    row.ExpectCell("lastWeek", Outcome([&] { return DateTime::LastWeek(year, quarter, month, options); }));
}

VECTOR_DRIVER("dates_fiscalconv")
{
    int const month = IntCell(row, "month");
    FYSValues const start = FiscalStart(row);
    row.ExpectInt("ConvertToFiscalMonth", ConvertToFiscalMonth(month, start));
    row.ExpectInt("ConvertToCalendarMonth", ConvertToCalendarMonth(month, start));
    row.ExpectInt("ConvertToFiscalYear2020", ConvertToFiscalYear(2020, month, start));
    row.ExpectInt("ConvertToCalendarYear2020", ConvertToCalendarYear(2020, month, start));
}

VECTOR_DRIVER("dates_quartermonths")
{
    int const quarter = IntCell(row, "quarter");
    FYSValues const start = FiscalStart(row);
    row.ExpectInt("GetFirstMonthInQuarter", GetFirstMonthInQuarter(quarter, start));
    row.ExpectInt("GetLastMonthInQuarter", GetLastMonthInQuarter(quarter, start));
    row.ExpectInt("GetFirstFiscalMonthInFiscalQuarter", GetFirstFiscalMonthInFiscalQuarter(quarter));
    row.ExpectInt("GetLastFiscalMonthInFiscalQuarter", GetLastFiscalMonthInFiscalQuarter(quarter));
}

VECTOR_DRIVER("dates_options")
{
    auto const a = DecodeDateOptions(row.Cell("a"));
    auto const b = DecodeDateOptions(row.Cell("b"));
    row.ExpectBool("equal", *a == *b);
    row.ExpectBool("less", *a < *b);
    if ((*a == *b) == (*a != *b))
        row.Fail("!= is not the negation of ==");
}

VECTOR_DRIVER("dates_aggmap")
{
    auto const aggregation = static_cast<AggType>(row.Int("agg"));
    row.ExpectInt("ConvertToISO8601AggType", ISO8601DateOptions::ConvertToISO8601AggType(aggregation));
    row.ExpectInt("ConvertToGregorianAggType", GregorianDateOptions::ConvertToGregorianAggType(aggregation));
}

VECTOR_DRIVER("dates_agglists")
{
    std::string const & list = row.Cell("list");
    std::size_t const dot = list.find('.');
    std::string const owner = list.substr(0, dot);
    std::string const rest = list.substr(dot + 1);
    if (owner == "G" || owner == "I") {
        auto const options = DecodeDateOptions(owner == "I" ? "I" : "G/1/1");
        std::map<std::string, std::vector<AggType>> const lists = {
            {"bin", options->GetBinDateAggregations()},           {"bindt", options->GetBinDateTimeAggregations()},
            {"uncommon", options->GetUncommonDateAggregations()}, {"trunc", options->GetTruncDateAggregations()},
            {"truncdt", options->GetTruncDateTimeAggregations()},
        };
        row.ExpectCell("values", Joined(lists.at(rest)));
        return;
    }
    std::map<std::string, std::vector<AggType> (*)(bool)> const lists = {
        {"AllBin", &DateOptionsUtils::GetAllBinDateAggregations},
        {"AllTrunc", &DateOptionsUtils::GetAllTruncDateAggregations},
        {"AllUncommon", &DateOptionsUtils::GetAllUncommonDateAggregations},
        {"AllBinInstance", &DateOptionsUtils::GetAllBinInstanceAggregations},
        {"AllTruncInstance", &DateOptionsUtils::GetAllTruncInstanceAggregations},
    };
    row.ExpectCell("values", Joined(lists.at(owner)(DecodeBool(rest))));
}

VECTOR_DRIVER("dates_hierarchy")
{
    auto const options = DecodeDateOptions(row.Cell("calendar") == "I" ? "I" : "G/1/1");
    DateTimeHierarchy const & hierarchy = options->GetHierarchy(static_cast<DateDataType>(row.Int("dateDataType")),
                                                                static_cast<DateComputationKind>(row.Int("kind")));
    auto const aggregation = static_cast<AggType>(row.Int("agg"));
    row.ExpectBool("contains", hierarchy.Contains(aggregation));
    row.ExpectCell("containing", OutcomeByName([&] { return hierarchy.GetContainingDateAggregation(aggregation); }));
    row.ExpectCell("nested", OutcomeByName([&] { return hierarchy.GetNestedDateAggregation(aggregation); }));
    row.ExpectCell("hasContaining", OutcomeByName([&] { return hierarchy.HasContainingDateAggregation(aggregation); }));
    row.ExpectCell("hasNested", OutcomeByName([&] { return hierarchy.HasNestedDateAggregation(aggregation); }));
    std::string moreDetailed;
    for (int const other : {14, 16, 26, 33, 38, 20, static_cast<int>(aggregation)})
        moreDetailed += (moreDetailed.empty() ? "" : ",") + OutcomeByName([&] {
                            return hierarchy.Is(aggregation).MoreDetailedThan(static_cast<AggType>(other));
                        });
    row.ExpectCell("moreDetailedThan_14_16_26_33_38_20_self", moreDetailed);
}
