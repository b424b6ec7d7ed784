#pragma once

#include <string>
#include <string_view>

/// Decoders of the cells of acceptance tables. Every one throws std::runtime_error, with the cell in the message,
/// when the whole cell is not of the form that is asked for.
namespace velcoredata::vectors {

/// UTF-8 text with `\uXXXX` escapes to UTF-16 code units: `a\u005Cb` is the three units a, \, b.
/// `\u` with four hexadecimal digits is one code unit and may be half of a surrogate pair. A backslash that begins
/// no such escape is an error.
std::u16string DecodeText(std::string_view cell);

/// The inverse form for messages: all but printable ASCII, and the backslash, as `\uXXXX`.
std::string EscapeText(std::u16string_view text);

/// C hexadecimal or decimal float, `inf`, `-inf`, `nan`.
double DecodeReal(std::string_view cell);

/// Hexadecimal float that DecodeReal reads back to the same bits, `nan` for every NaN.
std::string EncodeReal(double value);

long long DecodeInt(std::string_view cell);
unsigned long long DecodeUInt(std::string_view cell);

/// `1`, `true`, `0` or `false`.
bool DecodeBool(std::string_view cell);

/// Units in the last place between two numbers; 0 for equal bits and for two NaNs, the highest number if one is a NaN.
/// Zeros of different sign are 1 apart.
unsigned long long UlpDistance(double a, double b);

}  // namespace velcoredata::vectors
