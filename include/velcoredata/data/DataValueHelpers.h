// Conversions between neighbouring types with a rounding direction, and the short text that stands for a set of values.
#pragma once

#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DataValue.h"
#include "velcoreplatform/TString.h"

/// The numbers are part of the contract.
enum class RoundingMode : int
{
    Up = 0,          ///< toward positive infinity
    Down = 1,        ///< toward negative infinity
    Unnecessary = 2  ///< the caller asserts that there is nothing to round
};

/// The value in the neighbouring type: Integer to Real and back, DateTime to Date and back. The same type gives a copy
/// whatever the mode. The marker is not looked at: a null counts as its zero payload, the date 1899-12-30.
///
///   ConvertToType(1.2, Integer, Up) is 2, Down 1          1900-01-02 00:00 to Date is that day either way
///   ConvertToType(-1.2, Integer, Up) is -1, Down -2       one second later, Up is the next day
///
/// The Integer of a Real is cut to 32 bits: 3000000000.0 becomes -2147483648. Raises logic assertions for a target that
/// is no neighbour:
///
///   Integer    "targetType == DataType::Real"        "LogicException_LogicAssert_0x007398D2"
///   Real       "targetType == DataType::Integer"     "LogicException_LogicAssert_0xF95ACAF3"
///   DateTime   "targetType == DataType::Date"        "LogicException_LogicAssert_0x342B3714"
///   Date       "targetType == DataType::DateTime"    "LogicException_LogicAssert_0xB6ECE404"
///   any other  "DataValueHelper ConvertToType reached unsupported conversion case.",
///              "LogicException_LogicAssert_0x54AEFE46"
///
/// and "roundingMode != RoundingMode::Unnecessary" for the two conversions that can lose something, from Real
/// ("LogicException_LogicAssert_0xD8D349BD") and from DateTime ("LogicException_LogicAssert_0xE5004855"). A DateTime
/// before the year 400 has no Date: throws "VeltriaException_AutoGen_0xDD90F63D".
VELCOREDATA_API DataValue ConvertToType(DataValue const & value, DataType const & targetType,
                                        RoundingMode roundingMode);

/// A caption for a set of values, in the language of the session. In English:
///
///   {}                 "None"
///   {a}, or firstOnly  "a"
///   {a, b}             "a & b", whatever the limit
///   {a, b, c}          "a, b, c" within the limit, "a, b and 1 more" with limit 2, " and 3 more" with 0 and below
VELCOREDATA_API TString BuildValueList(std::vector<TString> const & values, int limit, bool firstOnly);

/// The same of string values, as a String of the unknown collation. If the first value is no String, is the only one,
/// or `firstOnly` is set, a copy of it. No more than `limit` values are taken, and the others are not mentioned: a, b,
/// c with limit 2 is "a & b", with limit 0 "None". Throws "VeltriaException_IncorrectDatatypeException_0xCA8336D0" if
/// one of the values taken is no String.
VELCOREDATA_API DataValue BuildFromValueList(std::vector<DataValue> const & values, int limit, bool firstOnly);
