#include "typedtable/WrittenRows.h"

#include <algorithm>
#include <map>
#include <ostream>

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "typedtable/ValueText.h"
#include "velcoredata/parser/DataValueFormatter.h"
#include "velcoreplatform/TString.h"

namespace typedtable {

namespace {

std::string InBrackets(std::string const & name)
{
    std::string quoted = "[";
    for (char const c : OnOneLine(name))
        quoted.append(c == ']' ? 2 : 1, c);
    return quoted + ']';
}

// Sorted by name, so that the line does not depend on a hash.
std::string AttributesOf(Table const & table, std::size_t column)
{
    auto const row = std::find_if(table.rows.begin(), table.rows.end(),
                                  [&](auto const & candidate) { return !candidate[column].IsSpecial(); });
    DataValue const value =
        row == table.rows.end() ? DataValue(DataValueTypes::Null, table.columns[column].type) : (*row)[column];
    std::map<std::string, std::string> sorted;
    for (auto const & [name, text] : DataValueFormatter::GetDataValueTypeAttributes(value))
        sorted.emplace(TString(name).toStdString(), TString(text).toStdString());
    std::string line;
    for (auto const & [name, text] : sorted)
        line.append(" ").append(name).append("=\"").append(text).append("\"");
    return line;
}

std::string ValueOf(DataValue const & value, bool asWkt)
{
    DataValueFormatter::FormatOptions options;
    options.spatialAsWkt = asWkt;
    return DataValueFormatter::Format(value, options).toStdString();
}

std::string LiteralOf(DataValue const & value)
{
    if (value.IsSpecial() && !value.IsNull())
        return ValueOf(value, false);
    if (value.GetDataType() == DataType::Spatial && !value.IsNull())
        return '"' + ValueOf(value, true) + '"';
    return value.FormatAsLiteral().toStdString();
}

}  // namespace

RowForm ReadRowForm(std::string const & text)
{
    if (text == "values")
        return RowForm::Values;
    if (text == "literals")
        return RowForm::Literals;
    if (text == "wkt")
        return RowForm::Wkt;
    throw UserError(Text("--as: \"%1\" is none of values, literals and wkt", text));
}

void CheckForm(RowForm form, Schema const & schema)
{
    if (form == RowForm::Wkt && std::none_of(schema.columns.begin(), schema.columns.end(),
                                             [](auto const & column) { return column.type == DataType::Spatial; }))
        throw TableError(Text("--as wkt: no column is SPATIAL; --cast COLUMN:spatial makes one"));
}

void WriteRows(std::ostream & out, Table const & table, RowForm form)
{
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (form == RowForm::Literals)
            out << (i == 0 ? "" : ",") << InBrackets(table.columns[i].name);
        else
            out << InBrackets(table.columns[i].name) << AttributesOf(table, i) << '\n';
    }
    if (form == RowForm::Literals)
        out << '\n';
    for (auto const & row : table.rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            out << (i == 0 ? "" : ",")
                << (form == RowForm::Literals ? LiteralOf(row[i]) : ValueOf(row[i], form == RowForm::Wkt));
        out << '\n';
    }
}

}  // namespace typedtable
