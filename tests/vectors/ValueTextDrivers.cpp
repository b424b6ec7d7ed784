// Drivers of the tables of value text.

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/vectors/ValueCells.h"
#include "tests/vectors/VectorDriver.h"
#include "velcoredata/parser/DataValueFormatter.h"

namespace {

using velcoredata::vectors::DecodeValue;
using velcoredata::vectors::EscapeText;
using velcoredata::vectors::ExpectOutcome;
using velcoredata::vectors::Row;

// "-" or a list of letters with a digit, "q0,n1".
DataValueFormatter::FormatOptions DecodeOptions(std::string const & cell)
{
    DataValueFormatter::FormatOptions options;
    if (cell == "-")
        return options;
    std::istringstream list(cell);
    for (std::string item; std::getline(list, item, ',');) {
        bool const on = item.at(1) != '0';
        switch (item.at(0)) {
        case 'q': options.quoteStrings = on; break;
        case 'd': options.delimitDates = on; break;
        case 'p': options.parenthesizeTuples = on; break;
        case 'e': options.escapeDelimiters = on; break;
        case 'z': options.showTrailingZeros = on; break;
        case 'i': options.inheritOptionsInTuples = on; break;
        case 'n': options.numberStyle = static_cast<DataValueFormatter::NumberStyle>(item.at(1) - '0'); break;
        default: throw std::runtime_error("no such option: " + item);
        }
    }
    return options;
}

}  // namespace

VECTOR_DRIVER("values_interchange")
{
    DataValue const value = DecodeValue(row.Cell("value"));
    auto const options = DecodeOptions(row.Cell("options"));
    std::string const & cell = row.Cell("text");
    if (cell.starts_with('!')) {
        ExpectOutcome(row, "text", [&] { return DataValueFormatter::Format(value, options).toStdString(); });
        return;
    }
    TString const text = DataValueFormatter::Format(value, options);
    std::string const & alternative = row.Cell("alternative");
    if (!alternative.empty() && text.View() == row.Text("alternative"))
        row.ExpectText("alternative", text.View());
    else
        row.ExpectText("text", text.View());
    TString appended(u"before");
    DataValueFormatter::AppendTo(appended, value, options);
    row.Expect("appended", EscapeText((u"before" + text).View()), EscapeText(appended.View()));
}

VECTOR_DRIVER("values_attributes")
{
    DataValue const value = DecodeValue(row.Cell("value"));
    ExpectOutcome(row, "attributes", [&] {
        std::vector<std::string> items;
        for (auto const & [key, text] : DataValueFormatter::GetDataValueTypeAttributes(value))
            items.push_back((key + u'=' + text).toStdString());
        std::sort(items.begin(), items.end());
        std::string joined;
        for (std::string const & item : items)
            joined += (joined.empty() ? "" : ";") + item;
        return joined;
    });
}

VECTOR_DRIVER("values_intdigits")
{
    row.ExpectUInt("intDigits", DataValueFormatter::intDigits(row.Real("value")));
}
