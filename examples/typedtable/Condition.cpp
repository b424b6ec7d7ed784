#include "typedtable/Condition.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <utility>

#include "typedtable/CellShape.h"
#include "typedtable/ColumnTyping.h"
#include "typedtable/Texts.h"
#include "typedtable/UserError.h"
#include "velcoreplatform/TString.h"

namespace typedtable {

namespace {

struct Spelling
{
    std::string_view text;
    Comparison comparison;
};

// Longer ones first, since they begin like shorter ones.
constexpr std::array kSpellings = {
    Spelling{"!=", Comparison::NotEqual},
    Spelling{"<=", Comparison::LessOrEqual},
    Spelling{">=", Comparison::GreaterOrEqual},
    Spelling{"=", Comparison::Equal},
    Spelling{"<", Comparison::Less},
    Spelling{">", Comparison::Greater},
};

// Takes a text in quotes from the front; nothing if the quote is never closed.
std::optional<std::string> TakeQuoted(std::string_view & text)
{
    char const quote = text.front();
    std::string content;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] != quote) {
            content += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == quote) {
            content += text[++i];
        } else {
            text.remove_prefix(i + 1);
            return content;
        }
    }
    return std::nullopt;
}

// As ReadCell, which reads blanks alone as a null.
std::optional<DataValue> ReadOneOf(std::string_view text, std::initializer_list<DataType> types)
{
    if (WithoutBlanks(text).empty())
        return std::nullopt;
    for (DataType const type : types) {
        if (auto value = ReadCell(text, type))
            return value;
    }
    return std::nullopt;
}

std::optional<DataValue> ReadLiteral(std::string_view text)
{
    if (text.empty())
        return std::nullopt;
    if (text.front() == '"' || text.front() == '\'') {
        auto const content = TakeQuoted(text);
        if (!content || !text.empty())
            return std::nullopt;
        return DataValue::FromString(TString::fromStdString(*content));
    }
    if (text.front() == '#') {
        if (text.size() < 2 || text.back() != '#')
            return std::nullopt;
        return ReadOneOf(text.substr(1, text.size() - 2), {DataType::Date, DataType::DateTime});
    }
    if (text == "null")
        return DataValue();
    return ReadOneOf(text, {DataType::Integer, DataType::Real, DataType::Boolean, DataType::Date, DataType::DateTime});
}

[[noreturn]] void Refuse(std::string const & text)
{
    throw UserError(Text("--where: \"%1\" is not COLUMN, one of = != < <= > >=, and a literal", text));
}

}  // namespace

Condition ReadCondition(std::string const & text)
{
    std::string_view rest = WithoutBlanks(text);
    ColumnName column;
    if (rest.starts_with('"')) {
        auto const quoted = TakeQuoted(rest);
        if (!quoted)
            Refuse(text);
        column.name = *quoted;
    } else {
        static constexpr std::string_view kSigns = "=!<>";
        std::size_t const end = rest.starts_with('[') ? LengthOfQualifiedName(rest, kSigns)
                                                      : std::min(rest.find_first_of(kSigns), rest.size());
        column = ReadColumnName("--where", std::string(WithoutBlanks(rest.substr(0, end))));
        rest.remove_prefix(end);
        if (rest.empty())
            Refuse(text);
    }
    rest = WithoutBlanks(rest);
    for (Spelling const & spelling : kSpellings) {
        if (column.name.empty() || !rest.starts_with(spelling.text))
            continue;
        std::string_view const literal = WithoutBlanks(rest.substr(spelling.text.size()));
        auto value = ReadLiteral(literal);
        if (!value)
            throw UserError(Text("--where: \"%1\" is no number, date, true, false or null, nor a text in quotes",
                                 std::string(literal)));
        return {column, spelling.comparison, std::move(*value)};
    }
    Refuse(text);
}

bool Holds(Comparison comparison, int order) noexcept
{
    switch (comparison) {
    case Comparison::Equal: return order == 0;
    case Comparison::NotEqual: return order != 0;
    case Comparison::Less: return order < 0;
    case Comparison::LessOrEqual: return order <= 0;
    case Comparison::Greater: return order > 0;
    case Comparison::GreaterOrEqual: return order >= 0;
    }
    return false;
}

}  // namespace typedtable
