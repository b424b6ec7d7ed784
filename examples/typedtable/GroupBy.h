// GroupBy: rows gathered by the calendar period of a date.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "typedtable/AggregateColumns.h"
#include "typedtable/ColumnName.h"
#include "typedtable/RowSink.h"
#include "typedtable/Schema.h"
#include "typedtable/Table.h"
#include "typedtable/Texts.h"
#include "typedtable/TypedReader.h"
#include "velcoredata/data/DateEnums.h"
#include "velcoredata/data/IDateOptions.h"

namespace typedtable {

/// What the user asked for.
struct GroupByRequest
{
    ColumnName column;
    std::string periodName;  // "quarter", as the option has it
    DatePeriodType period = DatePeriodType::Year;
    std::shared_ptr<IDateOptions const> options;  // the calendar that the period is counted in
    std::vector<AggregateItem> items;
};

/// Adds rows to the group of the period that holds their date. Memory grows with the number of periods, not of rows.
class GroupBy : public RowSink
{
public:
    /// Throws TableError if a column is missing or of a type that the request cannot be met for. Request and schema
    /// outlive the object.
    GroupBy(GroupByRequest const & request, Schema const & schema, Nulls nulls);

    std::vector<std::size_t> GetColumns() const override;
    std::string GetDoing() const override { return Text("%1 rows grouped"); }

    /// Throws TableError if the period begins before the year 400.
    void Add(TypedReader const & row) override;

    /// One row a group, by rising date: the first day of the period, its name where the calendar has one, the
    /// aggregates. Rows without a date make the first group. Below them the span.
    void Print(std::ostream & out) override;

private:
    struct Group
    {
        DataValue start;  // Date
        std::vector<Aggregate> aggregates;
    };

    DataValue StartOf(DataValue const & date, long long line) const;
    bool HasNames() const;
    DataValue NameOfPeriod(DataValue const & start) const;
    Table GetResult() const;
    void PrintSpan(std::ostream & out) const;

    GroupByRequest const & m_request;
    std::size_t m_dateColumn;
    AggregateColumns m_items;
    std::map<long long, Group> m_groups;  // by the payload of the start, which rises with it and is 0 for a null
};

}  // namespace typedtable
