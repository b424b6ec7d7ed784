#include "typedtable/Table.h"

#include "typedtable/TextTable.h"
#include "typedtable/ValueText.h"

namespace typedtable {

void PrintTable(std::ostream & out, Table const & table)
{
    TextTable text;
    for (auto const & column : table.columns)
        text.AddColumn(OnOneLine(column.name),
                       IsNumeric(column.type) ? TextTable::Align::Right : TextTable::Align::Left);
    for (auto const & row : table.rows) {
        std::vector<std::string> cells;
        for (DataValue const & value : row)
            cells.push_back(ValueText(value));
        text.AddRow(std::move(cells));
    }
    text.Print(out);
}

}  // namespace typedtable
