// DataType and DataValueTypes::Special: what a DataValue holds, or which marker stands in its place.
//
// The numbers are part of the contract: the order of values across types and stored forms rest on them.
#pragma once

#include <cstdint>
#include <iosfwd>

#include "velcoredata/core/Export.h"

enum class DataType : std::uint8_t
{
    Integer = 0,
    Real = 1,
    String = 2,
    DateTime = 3,
    Boolean = 4,
    Date = 5,
    Tuple = 6,
    Spatial = 7,
    Unknown = 8,
    Binary = 9,
    Time = 10,
    Table = 11  // a type of fields and columns; no DataValue holds it
};

namespace DataValueTypes {

// Comment: the text form of the marker.
enum Special : std::uint8_t
{
    Normal = 0,      // no marker: the value is what its type says
    Null = 1,        // %null%
    All = 2,         // %all%
    Wildcard = 3,    // %wildcard%
    Skipped = 4,     // %skipped%
    NoAccess = 5,    // %no-access%
    Ragged = 6,      // %ragged%
    Error = 7,       // %error%
    ManyValues = 8,  // %many-values%
    Missing = 9      // %missing%
};

}  // namespace DataValueTypes

// Integer and Real.
constexpr bool IsNumeric(DataType type) noexcept
{
    return static_cast<std::uint8_t>(type) < 2;
}

// Integer, Real, DateTime and Date.
constexpr bool IsQuantitative(DataType type) noexcept
{
    auto const number = static_cast<std::uint8_t>(type);
    return number <= 5 && ((43u >> number) & 1u) != 0;
}

// DateTime and Date. Time is not temporal here.
constexpr bool IsTemporal(DataType type) noexcept
{
    return type == DataType::DateTime || type == DataType::Date;
}

// The attribute name, "integer", or "DataType(200)" for a number outside the enumeration.
VELCOREDATA_API std::ostream & operator<<(std::ostream & out, DataType type);

namespace DataValueTypes {
// The text form, "%null%"; "normal" for Normal; "Special(77)" for a number outside the enumeration.
VELCOREDATA_API std::ostream & operator<<(std::ostream & out, Special special);
}  // namespace DataValueTypes
