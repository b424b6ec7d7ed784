// A text that may be a date, and a date style, both reduced to runs of digits and what stands between them.
#pragma once

#include <boost/container/static_vector.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VelNLS::detail {

// What stands before, between and after the runs of digits: blanks and commas are left out.
struct DateGap
{
    std::u16string text;
    bool letters = false;  // has a letter
    bool names = false;    // styles only: has a field that is a name
};

struct DigitRun
{
    std::uint32_t value = 0;
    std::uint32_t length = 0;
};

// Longest text that is read, in code units, and most runs of digits in it.
inline constexpr std::size_t kLongestDateText = 128;
inline constexpr std::size_t kMostDigitRuns = 6;

// A text in a common form: ASCII digits, common blanks, no marks of direction.
struct DateText
{
    std::u16string text;
    boost::container::static_vector<DigitRun, kMostDigitRuns> runs;
    boost::container::static_vector<DateGap, kMostDigitRuns + 1> gaps;  // one more than runs
};

// Nothing for a text that no style can match: no digit, too long, more than six runs of digits, a run of more than
// four.
std::optional<DateText> ReadDateText(std::u16string_view text);

// Common blanks and no marks of direction.
std::u16string CommonForm(std::u16string_view pattern);

struct DateStyle
{
    std::u16string pattern;        // ICU's notation, in common form, years as "yy"
    std::vector<char16_t> fields;  // letters of the numeric fields in their order; '#' for digits inside a name
    std::vector<DateGap> gaps;     // one more than fields
    bool hasDate = false;
    bool hasTime = false;
    bool hasWeekday = false;
    bool fourDigitYear = false;  // a year of two digits is not taken
};

// Nothing for a pattern with fields that no text of a date has. `monthsHaveDigits`: names of months hold a number.
std::optional<DateStyle> ReadDateStyle(std::u16string_view pattern, bool monthsHaveDigits);

// Whether the numbers fit the fields and the marks between them are the style's, '/' and '-' being one. What is between
// letters is left to ICU.
bool MayMatch(DateStyle const & style, DateText const & text);

// Takes any case of a letter to one.
std::u16string FoldCase(std::u16string_view text);

}  // namespace VelNLS::detail
