#include <unordered_map>

#include "fuzz/support/FuzzText.h"
#include "tests/support/ValueTextReader.h"
#include "velcoredata/parser/DataValueFormatter.h"
#include "velsys/VeltriaException.h"

// First line: a datatype, or nothing; rest: a value text. What is read is written, and reads again to the same text.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    using fuzz_support::Require;
    using Attributes = std::unordered_map<TString, TString>;
    auto const lines = fuzz_support::Lines(data, size, 2);
    Attributes attributes;
    if (!lines[0].isEmpty())
        attributes.emplace(TString(u"datatype"), lines[0]);

    auto const value = test_support::ReadValueText(lines[1], attributes);
    if (!value)
        return 0;
    DataValueFormatter::FormatOptions options;
    TString const text = DataValueFormatter::Format(*value, options);
    try {
        attributes = DataValueFormatter::GetDataValueTypeAttributes(*value);
    } catch (VeltriaException const &) {
        Require(false, "all strings that were read have one collation");
    }
    auto const again = test_support::ReadValueText(text, attributes);
    Require(again.has_value(), "what was written is read");
    Require(again->GetDataType() == value->GetDataType() && again->GetSpecial() == value->GetSpecial(),
            "type and marker are kept");
    Require(DataValueFormatter::Format(*again, options) == text, "what was read again is written alike");
    for (bool const on : {false, true}) {
        options.numberStyle = DataValueFormatter::NumberStyle::Decimal;
        options.quoteStrings = options.delimitDates = options.escapeDelimiters = options.showTrailingZeros = on;
        options.inheritOptionsInTuples = true;
        DataValueFormatter::Format(*value, options);
    }
    return 0;
}
