// GroupBy: rows gathered by the calendar period of a date.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "typedtable/Aggregate.h"
#include "typedtable/Schema.h"
#include "typedtable/Table.h"
#include "typedtable/TypedReader.h"
#include "velcoredata/data/DateEnums.h"
#include "velcoredata/data/IDateOptions.h"

namespace typedtable {

/// What the user asked for.
struct GroupByRequest
{
    struct Item
    {
        AggregateKind kind;
        std::string column;  // empty for a count
    };

    std::string column;
    std::string periodName;  // "quarter", as the option has it
    DatePeriodType period = DatePeriodType::Year;
    std::shared_ptr<IDateOptions const> options;  // the calendar that the period is counted in
    std::vector<Item> items;
};

/// Adds rows to the group of the period that holds their date. Memory grows with the number of periods, not of rows.
class GroupBy
{
public:
    /// Throws UserError if a column is missing or of a type that the request cannot be met for.
    GroupBy(GroupByRequest const & request, Schema const & schema);

    /// Indices of the columns that a row needs.
    std::vector<std::size_t> GetColumns() const;

    /// Throws TableError if the period begins before the year 400.
    void Add(TypedReader const & row);

    /// One row a group, by rising date: the first day of the period, its name where the calendar has one, the
    /// aggregates. Rows without a date make the first group. Throws TableError as Aggregate::GetResult does.
    Table GetResult() const;

    /// "16 periods from 2012-01-01 to 2015-10-01, 2 of them without rows". Says nothing if no row has a date.
    void PrintSpan(std::ostream & out) const;

private:
    struct Item
    {
        AggregateKind kind;
        std::size_t column;
        DataType type;
    };
    struct Group
    {
        DataValue start;  // Date
        std::vector<Aggregate> aggregates;
    };

    DataValue StartOf(DataValue const & date, long long line) const;
    bool HasNames() const;
    DataValue NameOfPeriod(DataValue const & start) const;

    GroupByRequest const & m_request;
    Schema const & m_schema;
    std::size_t m_dateColumn;
    std::vector<Item> m_items;
    std::map<long long, Group> m_groups;  // by the payload of the start, which rises with it and is 0 for a null
};

}  // namespace typedtable
