#include "typedtable/Schema.h"

#include <optional>
#include <ostream>
#include <utility>

#include "typedtable/ColumnTyping.h"
#include "typedtable/CsvReader.h"
#include "typedtable/DateColumns.h"
#include "typedtable/Progress.h"
#include "typedtable/TextTable.h"
#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "typedtable/ValueText.h"
#include "velcoreplatform/TString.h"

namespace typedtable {

namespace {

std::string CountOfColumns(std::size_t count)
{
    return count == 1 ? Text("1 column") : Text("%1 columns", count);
}

}  // namespace

std::size_t Schema::Find(ColumnName const & column) const
{
    std::string const & name = column.name;
    if (column.source && *column.source != source)
        throw TableError(Text("no data source is named \"%1\"; that of the file is \"%2\"", *column.source, source));
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].name != name)
            continue;
        if (found)
            throw TableError(Text("more than one column is named \"%1\"", name));
        found = i;
    }
    if (!found)
        throw TableError(Text("no column is named \"%1\"", name));
    return *found;
}

Schema ReadSchema(ByteSource & source, std::size_t firstRows)
{
    CsvReader reader(source);
    if (!reader.Next())
        throw TableError(Text("the file is empty: no header"));
    Schema schema;
    for (std::string_view const cell : reader.GetCells()) {
        std::string name(cell);
        if (name.empty())
            name = "column " + std::to_string(schema.columns.size() + 1);
        schema.columns.push_back({std::move(name), DataType::String, 0});
    }

    std::vector<ColumnTyping> typings(schema.columns.size());
    std::vector<std::vector<std::string>> texts;
    Progress progress(Text("%1 rows typed"));
    while (reader.Next()) {
        auto const & cells = reader.GetCells();
        for (std::size_t i = 0; i < cells.size(); ++i)
            typings[i].Add(cells[i]);
        if (texts.size() < firstRows)
            texts.emplace_back(cells.begin(), cells.end());
        ++schema.rows;
        progress.CountRow();
    }

    for (std::size_t i = 0; i < typings.size(); ++i) {
        Schema::Column & column = schema.columns[i];
        column.type = typings[i].GetType();
        column.nulls = typings[i].GetNulls();
        schema.firstRows.columns.push_back({column.name, column.type});
    }
    for (auto const & text : texts) {
        std::vector<DataValue> row;
        for (std::size_t i = 0; i < text.size(); ++i)
            row.push_back(ReadCell(text[i], schema.columns[i].type).value());
        schema.firstRows.rows.push_back(std::move(row));
    }
    return schema;
}

std::string CountOfRows(long long part, long long whole)
{
    if (part == whole)
        return whole == 1 ? Text("1 row") : Text("%1 rows", whole);
    return whole == 1 ? Text("%1 of 1 row", part) : Text("%1 of %2 rows", part, whole);
}

void PrintSchema(std::ostream & out, std::string const & fileName, Schema const & schema)
{
    out << OnOneLine(fileName) << ": " << CountOfRows(schema.rows, schema.rows) << ", "
        << CountOfColumns(schema.columns.size()) << "\n\n";
    TextTable table;
    table.AddColumn(Text("column"), TextTable::Align::Left);
    table.AddColumn(Text("type"), TextTable::Align::Left);
    table.AddColumn(Text("nulls"), TextTable::Align::Right);
    for (auto const & column : schema.columns)
        table.AddRow({OnOneLine(column.name), DataValue::DataTypeToString(column.type).toStdString(),
                      std::to_string(column.nulls)});
    table.Print(out);
    PrintDates(out, schema);
    if (schema.firstRows.rows.empty())
        return;
    out << '\n';
    PrintTable(out, schema.firstRows);
}

}  // namespace typedtable
