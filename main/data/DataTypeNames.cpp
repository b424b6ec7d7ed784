#include "main/data/DataTypeNames.h"

#include <array>
#include <ostream>

#include "velcoredata/data/XMLEnumException.h"
#include "velsys/NoDestructor.h"

namespace {

constexpr std::array<char const *, 12> kNames = {"integer", "real",    "string",  "datetime", "boolean", "date",
                                                 "tuple",   "spatial", "unknown", "binary",   "time",    "table"};

constexpr std::array<char const *, 10> kMarkers = {"normal",      "%null%",   "%all%",   "%wildcard%",    "%skipped%",
                                                   "%no-access%", "%ragged%", "%error%", "%many-values%", "%missing%"};

std::array<TString, kNames.size()> MakeNames()
{
    std::array<TString, kNames.size()> names;
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = TString::fromLatin1(kNames[i]);
    return names;
}

}  // namespace

char const * detail::DataTypeAttributeNameOrNull(DataType type) noexcept
{
    auto const index = static_cast<std::size_t>(type);
    return index < kNames.size() ? kNames[index] : nullptr;
}

TString const & detail::DataTypeAttributeName(DataType type)
{
    static NoDestructor<std::array<TString, kNames.size()>> s_names(MakeNames());
    auto const index = static_cast<std::size_t>(type);
    if (index >= kNames.size())
        Implementation::ThrowXMLEnumEncodingException();
    return s_names.Get()[index];
}

std::ostream & operator<<(std::ostream & out, DataType type)
{
    char const * const name = detail::DataTypeAttributeNameOrNull(type);
    if (name != nullptr)
        return out << name;
    return out << "DataType(" << static_cast<int>(type) << ')';
}

std::ostream & DataValueTypes::operator<<(std::ostream & out, Special special)
{
    auto const index = static_cast<std::size_t>(special);
    if (index < kMarkers.size())
        return out << kMarkers[index];
    return out << "Special(" << static_cast<int>(special) << ')';
}
