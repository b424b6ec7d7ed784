#include "typedtable/AggregateColumns.h"

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "velcoreplatform/TString.h"

namespace typedtable {

namespace {

std::string TitleOf(AggregateItem const & item)
{
    switch (item.kind) {
    case AggregateKind::Count: break;
    case AggregateKind::Sum: return Text("sum(%1)", item.column.name);
    case AggregateKind::Mean: return Text("mean(%1)", item.column.name);
    case AggregateKind::Min: return Text("min(%1)", item.column.name);
    case AggregateKind::Max: return Text("max(%1)", item.column.name);
    }
    return Text("count");
}

}  // namespace

AggregateColumns::AggregateColumns(std::vector<AggregateItem> const & items, Schema const & schema, Nulls nulls)
    : m_nulls(nulls)
{
    for (AggregateItem const & item : items) {
        if (item.kind == AggregateKind::Count) {
            m_items.push_back({item.kind, 0, DataType::Integer, TitleOf(item)});
            continue;
        }
        std::size_t const column = schema.Find(item.column);
        DataType const type = schema.columns[column].type;
        if (!CanAggregate(item.kind, type))
            throw TableError(Text("--%1: column \"%2\" is %3, not a number", NameOf(item.kind), item.column.name,
                                  DataValue::DataTypeToString(type).toStdString()));
        m_items.push_back({item.kind, column, type, TitleOf(item), schema.columns[column].format});
    }
}

void AggregateColumns::AppendIndices(std::vector<std::size_t> & indices) const
{
    for (Item const & item : m_items) {
        if (item.kind != AggregateKind::Count)
            indices.push_back(item.column);
    }
}

void AggregateColumns::AppendTitles(Table & table) const
{
    for (Item const & item : m_items)
        table.columns.push_back({item.title, ResultType(item.kind, item.type), item.format});
}

std::vector<Aggregate> AggregateColumns::Start() const
{
    std::vector<Aggregate> aggregates;
    for (Item const & item : m_items)
        aggregates.emplace_back(item.kind, item.type, m_nulls);
    return aggregates;
}

void AggregateColumns::Add(std::vector<Aggregate> & aggregates, TypedReader const & row) const
{
    for (std::size_t i = 0; i < m_items.size(); ++i)
        aggregates[i].Add(row.GetValue(m_items[i].column));
}

void AggregateColumns::AppendResults(std::vector<Aggregate> const & aggregates, std::vector<DataValue> & row)
{
    for (Aggregate const & aggregate : aggregates)
        row.push_back(aggregate.GetResult());
}

}  // namespace typedtable
