// All keys of the string table with their English texts, written down once more by hand.
#pragma once

#include <iterator>
#include <vector>

#include "velcoredata/core/StringIds.h"

namespace string_table_rows {

using CoreData::StringId;

struct Row
{
    StringId id;
    char const * key;
    char const * english;
};

#define KEY(name, english)                                                                                             \
    Row                                                                                                                \
    {                                                                                                                  \
        StringId::name, #name, english                                                                                 \
    }

inline constexpr Row kMessages[] = {
    KEY(IDP_DATE_PARSE_ERROR, "Error parsing date '%1'"),
    KEY(IDP_STRINGUTILS_MISMATCH_QUOTE, "Mismatched quote in '%1'"),
    KEY(IDP_VALUE_LIST_FEW_VALUES, "%1 & %2"),
    KEY(IDP_VALUE_LIST_MANY_VALUES, "%1 and %2 more"),
    KEY(IDS_AGG_DAY, "Day"),
    KEY(IDS_AGG_WEEK, "Week Number"),
    KEY(IDS_AGG_WEEKDAY, "Weekday"),
    KEY(IDS_AGG_YEAR, "Year"),
    KEY(IDS_DASH_LAYOUT_SPACING_COLOR_RGB, "rgb (%1,%2,%3)"),
    KEY(IDS_DASH_LAYOUT_SPACING_COLOR_RGBA, "rgba (%1,%2,%3,%4)"),
    KEY(IDS_DATETIME_ERROR, "Invalid datetime value"),
    KEY(IDS_DEFAULT_NEG_FMT, "Automatic"),
    KEY(IDS_ERR_BRACKET_MISMATCH, "Invalid input: mismatched brackets"),
    KEY(IDS_ERR_DANGLING_DOT, "Invalid input: dangling '.'"),
    KEY(IDS_ERR_DANGLING_LBRACKET, "Invalid input: dangling '['"),
    KEY(IDS_ERR_EXPECT_DOT, "Invalid input: expected '.'"),
    KEY(IDS_ERR_EXPECT_LBRACKET, "Invalid input: expected '['"),
    KEY(IDS_ERR_INCORRECT_DATA_TYPE_GET, "Incorrect data type %2, getting expected %1 type."),
    KEY(IDS_ERR_INCORRECT_DATA_TYPE_SET, "Incorrect data type %2, setting expected %1 type."),
    KEY(IDS_ERR_PARSING_NUMBER, "Error parsing number"),
    KEY(IDS_ERR_XML_ENUM_DECODING, "XML enumerated value cannot be decoded."),
    KEY(IDS_ERR_XML_ENUM_ENCODING, "XML enumerated value cannot be encoded."),
    KEY(IDS_ISO8601_BIN_QUARTER_EXAMPLE, "Q4"),
    KEY(IDS_ISO8601_BIN_WEEKDAY_EXAMPLE, "5"),
    KEY(IDS_ISO8601_BIN_WEEK_EXAMPLE, "W42"),
    KEY(IDS_ISO8601_BIN_YEAR_EXAMPLE, "2015"),
    KEY(IDS_ISO8601_TRUNC_DAY_EXAMPLE, "2015-W42-4"),
    KEY(IDS_ISO8601_TRUNC_QUARTER_EXAMPLE, "2015 Q4"),
    KEY(IDS_ISO8601_TRUNC_WEEKDAY_EXAMPLE, "Oct 15, 2015"),
    KEY(IDS_ISO8601_TRUNC_WEEK_EXAMPLE, "2015-W42"),
    KEY(IDS_ISO8601_TRUNC_YEAR_EXAMPLE, "2015"),
    KEY(IDS_NO_FILL, "No Fill"),
    KEY(IDS_STRINGUTILS_MISSING_SEPARATOR, "Missing separator parameter"),
    KEY(IDS_STRING_COMPARISON_ERROR, "String comparison error."),
    KEY(IDS_VALUE_LIST_NO_VALUES, "None"),
    KEY(IDS_VALUE_LIST_SEPARATOR, ", "),
};
static_assert(std::size(kMessages) == 36);

inline constexpr Row kPalettes[] = {
#define PALETTE(name, english) KEY(IDS_PALETTE_##name, english),
#include "tests/core/PaletteKeys.inc"
#undef PALETTE
};
static_assert(std::size(kPalettes) == 188);

#undef KEY

inline std::vector<Row> AllRows()
{
    std::vector<Row> rows(std::begin(kMessages), std::end(kMessages));
    rows.insert(rows.end(), std::begin(kPalettes), std::end(kPalettes));
    return rows;
}

}  // namespace string_table_rows
