#include "typedtable/Schema.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <utility>

#include "typedtable/CastReport.h"
#include "typedtable/CellShape.h"
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

// The beginning of a cell, whole characters.
std::string BeginningOf(std::string_view cell)
{
    static constexpr std::size_t kMost = 200;
    if (cell.size() <= kMost)
        return std::string(cell);
    std::size_t end = kMost;
    while (end != 0 && (static_cast<unsigned char>(cell[end]) & 0xC0) == 0x80)
        --end;
    return std::string(cell.substr(0, end)) + "...";
}

void ApplyCasts(Schema & schema, std::vector<CastChoice> const & casts)
{
    for (CastChoice const & cast : casts) {
        Schema::Column & column = schema.columns[schema.Find(cast.column)];
        if (column.isCast)
            throw TableError(Text("%1: column \"%2\" is given twice", "--cast", cast.column.name));
        column.isCast = true;
        column.type = cast.type;
    }
}

void AddCastCell(Schema::Column & column, std::string_view cell, long long line)
{
    DataValue const value = CastCell(cell, column.type);
    if (!value.IsSpecial())
        return;
    ++(value.IsNull() ? column.nulls : column.errors);
    if (WithoutBlanks(cell).empty())
        return;
    ++column.offending;
    if (column.offences.size() < Schema::kMostOffences)
        column.offences.push_back({line, BeginningOf(cell)});
}

}  // namespace

std::optional<DataValue> ReadValue(Schema::Column const & column, std::string_view cell, Collation const & collation)
{
    if (column.dates)
        return column.dates->Read(cell);
    if (column.isCast)
        return CastCell(cell, column.type, collation);
    return ReadCell(cell, column.type, collation);
}

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

Schema ReadSchema(ByteSource & source, std::size_t firstRows, std::vector<CastChoice> const & casts, std::string name)
{
    CsvReader reader(source);
    if (!reader.Next())
        throw TableError(Text("the file is empty: no header"));
    Schema schema;
    schema.source = std::move(name);
    for (std::string_view const cell : reader.GetCells()) {
        std::string title(cell);
        if (title.empty())
            title = "column " + std::to_string(schema.columns.size() + 1);
        schema.columns.push_back({std::move(title), DataType::String, 0});
    }
    ApplyCasts(schema, casts);

    std::vector<ColumnTyping> typings(schema.columns.size());
    std::vector<std::vector<std::string>> texts;
    Progress progress(Text("%1 rows typed"));
    while (reader.Next()) {
        auto const & cells = reader.GetCells();
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (schema.columns[i].isCast)
                AddCastCell(schema.columns[i], cells[i], reader.GetLine());
            else
                typings[i].Add(cells[i], reader.GetLine());
        }
        if (texts.size() < firstRows)
            texts.emplace_back(cells.begin(), cells.end());
        ++schema.rows;
        progress.CountRow();
    }

    for (std::size_t i = 0; i < typings.size(); ++i) {
        Schema::Column & column = schema.columns[i];
        if (!column.isCast) {
            column.type = typings[i].GetType();
            column.nulls = typings[i].GetNulls();
            if (auto const & breaker = typings[i].GetBreaker())
                column.offences.push_back({breaker->line, BeginningOf(breaker->cell)});
        }
        schema.firstRows.columns.push_back({column.name, column.type});
    }
    for (auto const & text : texts) {
        std::vector<DataValue> row;
        for (std::size_t i = 0; i < text.size(); ++i)
            row.push_back(ReadValue(schema.columns[i], text[i]).value());
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
    bool const isCast = std::any_of(schema.columns.begin(), schema.columns.end(),
                                    [](Schema::Column const & column) { return column.isCast; });
    if (isCast)
        table.AddColumn(Text("errors"), TextTable::Align::Right);
    for (auto const & column : schema.columns) {
        std::vector<std::string> cells = {OnOneLine(column.name),
                                          DataValue::DataTypeToString(column.type).toStdString(),
                                          std::to_string(column.nulls)};
        if (isCast)
            cells.push_back(std::to_string(column.errors));
        table.AddRow(std::move(cells));
    }
    table.Print(out);
    PrintOffences(out, schema);
    PrintDates(out, schema);
    if (schema.firstRows.rows.empty())
        return;
    out << '\n';
    PrintTable(out, schema.firstRows);
}

}  // namespace typedtable
