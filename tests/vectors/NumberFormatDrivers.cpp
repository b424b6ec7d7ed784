// Drivers of the tables numfmt_* but that of date patterns.

#include <functional>
#include <optional>
#include <string>

#include "main/string/OleFormatPattern.h"
#include "tests/support/NumberFormatFields.h"
#include "tests/vectors/VectorDriver.h"
#include "velcoredata/string/NumberFormatEncoding.h"
#include "velcoredata/string/NumberFormatSettings.h"
#include "velcoredata/string/OleFormatString.h"
#include "velcoredata/string/StandardNumberFormats.h"

namespace {

using velcoredata::vectors::Row;

TString TextOf(Row const & row, char const * column)
{
    return TString::fromStdU16String(row.Text(column));
}

FormatCode CodeOf(Row const & row)
{
    return static_cast<FormatCode>(row.Int("code"));
}

LCID LcidOf(Row const & row)
{
    return static_cast<LCID>(row.UInt("lcid"));
}

NumberFormatOptions OptionsOf(Row const & row)
{
    NumberFormatOptions options;
    options.decimals = static_cast<int>(row.Int("decimals"));
    options.useGrouping = row.Bool("use_grouping");
    options.prefix = TextOf(row, "prefix");
    options.suffix = TextOf(row, "suffix");
    options.units = static_cast<UnitsFormatEnum>(row.Int("units"));
    options.negative = static_cast<NegativeFormatEnum>(row.Int("negative"));
    return options;
}

void ExpectOptions(Row & row, NumberFormatOptions const & options)
{
    row.ExpectInt("decimals", options.decimals);
    row.ExpectBool("use_grouping", options.useGrouping);
    row.ExpectText("prefix", options.prefix.View());
    row.ExpectText("suffix", options.suffix.View());
    row.ExpectInt("units", static_cast<int>(options.units));
    row.ExpectInt("negative", static_cast<int>(options.negative));
}

std::optional<std::u16string> SeparatorOf(Row const & row, char const * column)
{
    if (row.Cell(column) == "<null>")
        return std::nullopt;
    return row.Text(column);
}

char16_t const * PointerTo(std::optional<std::u16string> const & text)
{
    return text ? text->c_str() : nullptr;
}

void CheckParse(Row & row, bool (*parse)(char16_t const *, NumberFormatOptions *))
{
    NumberFormatOptions options = test_support::PresetOptions();
    bool const ok = parse(TextOf(row, "format"), &options);
    row.ExpectBool("ok", ok);
    if (ok) {
        ExpectOptions(row, options);
        row.Expect(
            "what a format does not tell", "d g t",
            (options.decimalSeparator + u" " + options.grouping + u" " + options.thousandSeparator).toStdString());
    } else if (test_support::Fields(options) != test_support::Fields(test_support::PresetOptions())) {
        row.Fail("a failure changed the options");
    }
}

}  // namespace

VECTOR_DRIVER("numfmt_decode")
{
    TString const encoded = TextOf(row, "encoded");
    FormatCode code = FormatCodePercent;
    LCID lcid = 99;
    TString format(u"before");
    DecodeFormatString(encoded, code, lcid, format);
    row.ExpectInt("code", code);
    row.ExpectUInt("lcid", lcid);
    row.ExpectText("format", format.View());
    row.ExpectBool("is_auto", IsAutoFormatString(encoded));
}

VECTOR_DRIVER("numfmt_encode")
{
    row.ExpectText("encoded", EncodeFormatString(CodeOf(row), LcidOf(row), TextOf(row, "format")).View());
}

VECTOR_DRIVER("numfmt_from_options")
{
    TString out(u"before");
    GetStringFromFormatCodeAndOptions(CodeOf(row), LcidOf(row), OptionsOf(row), out);
    row.ExpectText("expected", out.View());
}

VECTOR_DRIVER("numfmt_ole_build")
{
    NumberFormatOptions const options = OptionsOf(row);
    auto const point = SeparatorOf(row, "decimal_sep");
    auto const comma = SeparatorOf(row, "thousand_sep");
    row.ExpectText(
        "expected",
        BuildOleFormatString(&options, row.Bool("with_units_letter"), PointerTo(point), PointerTo(comma)).View());
}

VECTOR_DRIVER("numfmt_ole_parse")
{
    CheckParse(row, ParseOleFormatString);
    CheckParse(row, detail::ParseOleFormatStringByPattern);
}

VECTOR_DRIVER("numfmt_populate")
{
    NumberFormatOptions options;
    PopulateNumberFormatOptions(CodeOf(row), 1033, TextOf(row, "format"), &options,
                                static_cast<int>(row.Int("default_decimals")),
                                static_cast<int>(row.Int("grouping_override")));
    ExpectOptions(row, options);
    row.ExpectText("decimal_sep", options.decimalSeparator.View());
    row.ExpectText("thousand_sep", options.thousandSeparator.View());
}

VECTOR_DRIVER("numfmt_small")
{
    std::string const & function = row.Cell("fn");
    if (function == "GetNegativeFormatSample") {
        row.ExpectText("expected", GetNegativeFormatSample(static_cast<NegativeFormatEnum>(row.Int("a1")),
                                                           TextOf(row, "a2"), TextOf(row, "a3"))
                                       .View());
    } else if (function == "GetDecimalsFromPercentString") {
        auto const [decimals, missing] =
            GetDecimalsFromPercentString(TextOf(row, "a1"), static_cast<int>(row.Int("a2")));
        row.ExpectCell("expected", std::to_string(decimals) + (missing ? ",true" : ",false"));
    } else if (function == "GetDecimalsFromScientificString") {
        row.ExpectInt("expected", GetDecimalsFromScientificString(TextOf(row, "a1"), static_cast<int>(row.Int("a2"))));
    } else if (function == "IsAutoFormatString") {
        row.ExpectBool("expected", IsAutoFormatString(TextOf(row, "a1")));
    } else if (function == "GetPercentFormatStringOfSize") {
        row.ExpectText("expected", GetPercentFormatStringOfSize(static_cast<int>(row.Int("a1"))).View());
    } else if (function == "GetScientificFormatStringOfSize") {
        row.ExpectText("expected", GetScientificFormatStringOfSize(static_cast<int>(row.Int("a1"))).View());
    } else if (function == "GetUnitsFormatChar") {
        char16_t const letter = GetUnitsFormatChar(static_cast<UnitsFormatEnum>(row.Int("a1")));
        row.ExpectText("expected", std::u16string_view(&letter, letter == u'\0' ? 0 : 1));
    } else {
        row.Fail("no such function");
    }
}
