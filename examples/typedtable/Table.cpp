#include "typedtable/Table.h"

#include "typedtable/NumberFormat.h"
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
        for (std::size_t i = 0; i < row.size(); ++i) {
            NumberFormat const * const format = table.columns[i].format.get();
            cells.push_back(format && !row[i].IsSpecial() ? OnOneLine(format->TextOf(row[i])) : ValueText(row[i]));
        }
        text.AddRow(std::move(cells));
    }
    text.Print(out);
}

}  // namespace typedtable
