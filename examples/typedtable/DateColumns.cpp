#include "typedtable/DateColumns.h"

#include <functional>
#include <map>
#include <ostream>
#include <string>

#include "typedtable/CsvReader.h"
#include "typedtable/Progress.h"
#include "typedtable/TextTable.h"
#include "typedtable/Texts.h"
#include "typedtable/ValueText.h"

namespace typedtable {

namespace {

using Inferences = std::map<std::size_t, DateInference>;

void ReadThrough(InputFile & file, Inferences & inferences, void (DateInference::*look)(std::string_view))
{
    file.Rewind();
    CsvReader reader(file);
    reader.Next();  // the header
    Progress progress(Text("%1 rows searched for dates"));
    while (reader.Next()) {
        auto const & cells = reader.GetCells();
        for (auto & [column, inference] : inferences) {
            if (column < cells.size())
                (inference.*look)(cells[column]);
        }
        progress.CountRow();
    }
}

std::string PatternText(DateColumn const & dates)
{
    TString const & pattern = dates.GetWinner().pattern;
    return pattern.isEmpty() ? Text("(own styles)") : pattern.toStdString();
}

// Cells with the day first, then with the month first; "-" where the order is not known.
std::pair<std::string, std::string> BothOrders(DateColumn const & dates)
{
    DatePattern const * const twin = dates.GetTwin();
    if (twin == nullptr)
        return {"-", "-"};
    TString const & winner = dates.GetWinner().pattern;
    bool const dayFirst = winner.indexOf(u'd') < winner.indexOf(u'M');
    std::string const ours = std::to_string(dates.GetWinner().cells);
    std::string const others = std::to_string(twin->cells);
    return dayFirst ? std::pair(ours, others) : std::pair(others, ours);
}

}  // namespace

void FindDates(InputFile & file, Schema & schema, TLocale const & locale)
{
    Inferences inferences;
    for (std::size_t i = 0; i < schema.columns.size(); ++i) {
        if (schema.columns[i].type == DataType::String && !schema.columns[i].isCast)
            inferences.try_emplace(i, locale);
    }
    ReadThrough(file, inferences, &DateInference::Look);
    std::erase_if(inferences, [](auto const & entry) { return !entry.second.IsDates(); });
    if (inferences.empty())
        return;
    ReadThrough(file, inferences, &DateInference::Count);

    for (auto & [i, inference] : inferences) {
        Schema::Column & column = schema.columns[i];
        column.dates = inference.Finish();
        column.type = column.dates->GetType();
        column.offences.clear();
        schema.firstRows.columns[i].type = column.type;
        for (auto & row : schema.firstRows.rows) {
            std::string const cell = row[i].IsNull() ? std::string() : row[i].GetString().toStdString();
            row[i] = column.dates->Read(cell).value();
        }
    }
}

void WarnOfDates(std::ostream & out, std::string const & fileName, Schema const & schema)
{
    for (auto const & column : schema.columns) {
        if (column.dates == nullptr || column.dates->GetDisagreeing() == 0)
            continue;
        long long const others = column.dates->GetDisagreeing();
        out << OnOneLine(Text("%1: column \"%2\": %3 of %4 cells are not written as %5", fileName, column.name, others,
                              others + column.dates->GetWinner().cells, PatternText(*column.dates)))
            << '\n';
    }
}

void PrintDates(std::ostream & out, Schema const & schema)
{
    TextTable table;
    table.AddColumn(Text("dates"), TextTable::Align::Left);
    table.AddColumn(Text("pattern"), TextTable::Align::Left);
    for (std::string const & title : {Text("cells"), Text("disagree"), Text("day first"), Text("month first")})
        table.AddColumn(title, TextTable::Align::Right);
    bool any = false;
    for (auto const & column : schema.columns) {
        if (column.dates == nullptr)
            continue;
        any = true;
        DatePattern const & winner = column.dates->GetWinner();
        auto const [dayFirst, monthFirst] = BothOrders(*column.dates);
        table.AddRow({OnOneLine(column.name), OnOneLine(PatternText(*column.dates)), std::to_string(winner.cells),
                      std::to_string(column.dates->GetDisagreeing()), dayFirst, monthFirst});
    }
    if (!any)
        return;
    out << '\n';
    table.Print(out);
}

}  // namespace typedtable
