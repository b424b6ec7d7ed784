#include "typedtable/CastReport.h"

#include <algorithm>
#include <ostream>

#include "typedtable/TextTable.h"
#include "typedtable/Texts.h"
#include "typedtable/ValueText.h"

namespace typedtable {

void PrintOffences(std::ostream & out, Schema const & schema)
{
    if (std::all_of(schema.columns.begin(), schema.columns.end(),
                    [](Schema::Column const & column) { return column.offences.empty(); }))
        return;
    TextTable table;
    table.AddColumn(Text("column"), TextTable::Align::Left);
    table.AddColumn(Text("line"), TextTable::Align::Right);
    table.AddColumn(Text("offending cell"), TextTable::Align::Left);
    for (Schema::Column const & column : schema.columns) {
        for (Schema::Offence const & offence : column.offences)
            table.AddRow({OnOneLine(column.name), std::to_string(offence.line), OnOneLine(offence.cell)});
    }
    out << '\n';
    table.Print(out);
}

void WarnOfOffences(std::ostream & out, std::string const & fileName, Schema const & schema)
{
    for (Schema::Column const & column : schema.columns) {
        if (!column.isCast || column.offences.empty())
            continue;
        Schema::Offence const & first = column.offences.front();
        out << OnOneLine(Text("%1: column \"%2\": %3 of %4 cells are no %5, the first on line %6: \"%7\"", fileName,
                              column.name, column.offending, schema.rows,
                              DataValue::DataTypeToString(column.type).toStdString(), first.line, first.cell))
            << '\n';
    }
}

}  // namespace typedtable
