#include "typedtable/CastChoice.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "typedtable/Texts.h"
#include "typedtable/UserError.h"

namespace typedtable {

namespace {

// Boolean is left out: nothing casts to it.
constexpr std::array<std::pair<std::string_view, DataType>, 6> kTypes = {{
    {"integer", DataType::Integer},
    {"real", DataType::Real},
    {"date", DataType::Date},
    {"datetime", DataType::DateTime},
    {"string", DataType::String},
    {"spatial", DataType::Spatial},
}};

std::string ListTypes()
{
    std::string list;
    for (auto const & [name, type] : kTypes)
        list.append(list.empty() ? "" : ", ").append(name);
    return list;
}

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

}  // namespace

std::size_t FindColonBehindColumn(std::string const & option, std::string const & text)
{
    // A column's name may hold a colon, what stands behind it does not.
    std::size_t const colon = text.rfind(':');
    if (colon == std::string::npos || colon == 0)
        return std::string::npos;
    // Nor does a colon within the brackets of a qualified name end it.
    if (text.starts_with('[') && LengthOfQualifiedName(text, ":") > colon) {
        ReadColumnName(option, text);
        return std::string::npos;
    }
    return colon;
}

CastChoice ReadCastChoice(std::string const & text)
{
    std::size_t const colon = FindColonBehindColumn("--cast", text);
    if (colon == std::string::npos)
        throw UserError(Text("--cast: \"%1\" is not COLUMN:TYPE", text));
    std::string const name = text.substr(colon + 1);
    auto const type = std::find_if(kTypes.begin(), kTypes.end(),
                                   [&](auto const & candidate) { return candidate.first == Lower(name); });
    if (type == kTypes.end())
        throw UserError(Text("--cast: \"%1\" is not a type: %2", name, ListTypes()));
    return {ReadColumnName("--cast", text.substr(0, colon)), type->second};
}

}  // namespace typedtable
