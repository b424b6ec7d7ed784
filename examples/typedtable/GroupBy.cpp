#include "typedtable/GroupBy.h"

#include <cstdio>
#include <ostream>
#include <utility>

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "typedtable/ValueText.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/data/DateTimeUtils.h"
#include "velcoreplatform/TString.h"
#include "velsys/VeltriaException.h"

namespace typedtable {

namespace {

std::string TypeName(DataType type)
{
    return DataValue::DataTypeToString(type).toStdString();
}

// Above the names of periods; only for those that have names.
std::string TitleOfNames(DatePeriodType period)
{
    switch (period) {
    case DatePeriodType::Year: return Text("year");
    case DatePeriodType::Quarter: return Text("quarter");
    case DatePeriodType::Month: return Text("month");
    case DatePeriodType::ISOYear: return Text("iso-year");
    case DatePeriodType::ISOQuarter: return Text("iso-quarter");
    default: return Text("iso-week");
    }
}

template <class... Numbers>
DataValue FormattedText(char const * format, Numbers... numbers)
{
    char text[40];
    int const length = std::snprintf(text, sizeof text, format, numbers...);
    return DataValue::FromString(TString::fromUtf8(text, length));
}

}  // namespace

GroupBy::GroupBy(GroupByRequest const & request, Schema const & schema, Nulls nulls)
    : m_request(request), m_dateColumn(schema.Find(request.column)), m_items(request.items, schema, nulls)
{
    DataType const dateType = schema.columns[m_dateColumn].type;
    if (!IsTemporal(dateType))
        throw TableError(
            Text("--group-by: column \"%1\" is %2, not DATE or DATETIME", request.column.name, TypeName(dateType)));
}

std::vector<std::size_t> GroupBy::GetColumns() const
{
    std::vector<std::size_t> columns{m_dateColumn};
    m_items.AppendIndices(columns);
    return columns;
}

void GroupBy::Add(TypedReader const & row)
{
    DataValue const start = StartOf(row.GetValue(m_dateColumn), row.GetLine());
    auto const [place, isNew] = m_groups.try_emplace(start.GetAny());
    Group & group = place->second;
    if (isNew) {
        group.start = start;
        group.aggregates = m_items.Start();
    }
    m_items.Add(group.aggregates, row);
}

DataValue GroupBy::StartOf(DataValue const & date, long long line) const
{
    if (date.IsSpecial())
        return DataValue(DataValueTypes::Null, DataType::Date);
    DateTime const day = date.GetDataType() == DataType::Date ? date.GetDate() : date.GetDatetime();
    try {
        return DataValue::FromDate(FindStartOfPeriod(day, m_request.period, *m_request.options));
    } catch (VeltriaException const &) {
        throw TableError(line, Text("the %1 of %2 begins before the year 400, where the calendar ends",
                                    m_request.periodName, ValueText(date)));
    }
}

// Weeks have a name in the ISO calendar alone, where they begin on Monday; days are named by their date.
bool GroupBy::HasNames() const
{
    switch (m_request.period) {
    case DatePeriodType::Year:
    case DatePeriodType::Quarter:
    case DatePeriodType::Month:
    case DatePeriodType::ISOYear:
    case DatePeriodType::ISOQuarter: return true;
    case DatePeriodType::ISOWeek: return m_request.options->GetStartOfWeek() == SOW_MONDAY;
    default: return false;
    }
}

DataValue GroupBy::NameOfPeriod(DataValue const & start) const
{
    if (start.IsNull())
        return DataValue(DataValueTypes::Null, DataType::String);
    DateTime const day = start.GetDate();
    FYSValues const fiscalStart = m_request.options->GetFiscalYearStart();
    // A fiscal year is named for the calendar year in which it ends.
    char const * const fiscal = fiscalStart == FYS_JANUARY ? "" : "FY";
    switch (m_request.period) {
    case DatePeriodType::Year: return FormattedText("%s%04d", fiscal, day.GetFiscalYear(fiscalStart));
    case DatePeriodType::Quarter:
        return FormattedText("%s%04d Q%d", fiscal, day.GetFiscalYear(fiscalStart), day.GetFiscalQuarter(fiscalStart));
    case DatePeriodType::Month: return FormattedText("%04d-%02d", day.GetYear(), day.GetMonth());
    case DatePeriodType::ISOYear: return FormattedText("%04d", day.GetISO8601Year());
    case DatePeriodType::ISOQuarter: return FormattedText("%04d-Q%d", day.GetISO8601Year(), day.GetISO8601Quarter());
    default: return FormattedText("%04d-W%02d", day.GetISO8601Year(), day.GetISO8601Week());
    }
}

Table GroupBy::GetResult() const
{
    Table table;
    bool const hasNames = HasNames();
    table.columns.push_back({m_request.column.name + ":" + m_request.periodName, DataType::Date});
    if (hasNames)
        table.columns.push_back({TitleOfNames(m_request.period), DataType::String});
    m_items.AppendTitles(table);
    for (auto const & [key, group] : m_groups) {
        std::vector<DataValue> row{group.start};
        if (hasNames)
            row.push_back(NameOfPeriod(group.start));
        AggregateColumns::AppendResults(group.aggregates, row);
        table.rows.push_back(std::move(row));
    }
    return table;
}

void GroupBy::Print(std::ostream & out)
{
    PrintTable(out, GetResult());
    PrintSpan(out);
}

// "16 periods from 2012-01-01 to 2015-10-01, 2 of them without rows". Says nothing if no row has a date.
void GroupBy::PrintSpan(std::ostream & out) const
{
    auto first = m_groups.begin();
    std::size_t count = m_groups.size();
    if (count != 0 && first->second.start.IsNull()) {
        ++first;
        --count;
    }
    if (count == 0)
        return;
    DateTime const begin = first->second.start.GetDate();
    DateTime const end = m_groups.rbegin()->second.start.GetDate();
    // ISO weeks are counted from Monday to Monday whatever the options say; weeks by the options.
    DatePeriodType const counted =
        m_request.period == DatePeriodType::ISOWeek ? DatePeriodType::Week : m_request.period;
    long long const periods = DatePeriodDifference(end, begin, counted, *m_request.options) + 1;
    long long const empty = periods - static_cast<long long>(count);
    std::string const from = ValueText(first->second.start);
    std::string const to = ValueText(m_groups.rbegin()->second.start);
    if (periods == 1)
        out << Text("1 period from %1 to %2", from, to);
    else if (empty == 0)
        out << Text("%1 periods from %2 to %3", periods, from, to);
    else
        out << Text("%1 periods from %2 to %3, %4 of them without rows", periods, from, to, empty);
    out << '\n';
}

}  // namespace typedtable
