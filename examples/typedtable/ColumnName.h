// ColumnName: how the user names a column.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace typedtable {

struct ColumnName
{
    std::string name;                   // as the header has it
    std::optional<std::string> source;  // the data source, if the user names one: "weather" for weather.csv
};

/// A text that begins with "[" is a qualified name, [COLUMN] or [SOURCE].[COLUMN], in which a "]" is written twice;
/// every other text is the column's name as it stands. A column whose own name begins with "[" is [[name]]]. Throws
/// UserError "OPTION: ..." with the error and the text if a text in brackets is no qualified name or has more than two
/// parts.
ColumnName ReadColumnName(std::string const & option, std::string const & text);

/// The length of the qualified name with which a text begins: up to the first of `ends` that stands outside brackets,
/// or to the end of the text.
std::size_t LengthOfQualifiedName(std::string_view text, std::string_view ends) noexcept;

}  // namespace typedtable
