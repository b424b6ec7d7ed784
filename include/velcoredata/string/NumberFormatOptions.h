// NumberFormatOptions: how a number is written, opened out into fields.
#pragma once

#include <cstdint>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"

/// The unit in which a number is shown, by the letter behind it.
enum class UnitsFormatEnum : std::int32_t
{
    None = 0,
    K = 1,  ///< thousands
    M = 2,  ///< millions
    B = 3,  ///< billions, 10^9
    G = 4,  ///< billions by another letter
};

/// How a negative number is written: where the sign stands beside prefix ("$"), number and suffix.
enum class NegativeFormatEnum : std::int32_t
{
    Automatic = 0,
    Parentheses = 1,       ///< "($5)"
    MinusFirst = 2,        ///< "-$5"
    MinusLast = 3,         ///< "$5-"
    MinusAfterPrefix = 4,  ///< "$-5"
    MinusAfterNumber = 5,  ///< "5-$" where the sign of the currency is the suffix
};

/// A plain structure; texts may be empty and nothing is checked. Several threads may read one object, a writer needs it
/// alone.
struct VELCOREDATA_API NumberFormatOptions
{
    NumberFormatOptions();
    NumberFormatOptions(int decimals, TString decimalSeparator, bool useGrouping, TString grouping,
                        TString thousandSeparator, TString prefix, TString suffix, UnitsFormatEnum units,
                        NegativeFormatEnum negative);
    NumberFormatOptions(NumberFormatOptions const & other);
    NumberFormatOptions(NumberFormatOptions && other) noexcept;
    NumberFormatOptions & operator=(NumberFormatOptions const & other);
    NumberFormatOptions & operator=(NumberFormatOptions && other) noexcept;
    ~NumberFormatOptions();

    int decimals = 0;          ///< digits after the point
    TString decimalSeparator;  ///< "." for 1033; empty unless it is set
    bool useGrouping = true;
    TString grouping{
        u"3;0"};  ///< sizes of the groups from the point on, the last repeats before "0": "3;2;0" for India
    TString thousandSeparator;  ///< between the groups
    TString prefix;             ///< before the number, "$"
    TString suffix;             ///< after it, " €"
    UnitsFormatEnum units = UnitsFormatEnum::None;
    NegativeFormatEnum negative = NegativeFormatEnum::Automatic;
};
