#include "DateTokens.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <chrono>

namespace VelNLS::detail {

namespace {

constexpr std::uint32_t kLongestRun = 4;

bool IsMarkOfDirection(UChar32 c)
{
    return c == 0x200E || c == 0x200F || c == 0x061C;
}

bool IsBlank(UChar32 c)
{
    return c < 0x80 ? c == u' ' || (c >= u'\t' && c <= u'\r') : u_isUWhiteSpace(c);
}

bool IsLetter(UChar32 c)
{
    return c < 0x80 ? (c | 0x20) >= u'a' && (c | 0x20) <= u'z' : u_isalpha(c);
}

// -1 for what is no digit.
std::int32_t DigitValue(UChar32 c)
{
    return c < 0x80 ? (c >= u'0' && c <= u'9' ? c - u'0' : -1) : u_charDigitValue(c);
}

UChar32 Next(std::u16string_view text, std::size_t & at)
{
    UChar32 c = 0;
    U16_NEXT(text.data(), at, text.size(), c);
    return c;
}

void AppendTo(std::u16string & text, UChar32 c)
{
    char16_t units[2];
    std::size_t count = 0;
    U16_APPEND_UNSAFE(units, count, c);
    text.append(units, count);
}

void AddToGap(DateGap & gap, UChar32 c)
{
    if (c == u' ' || c == u',')
        return;
    AppendTo(gap.text, c);
    gap.letters = gap.letters || IsLetter(c);
}

std::u16string_view Trimmed(std::u16string_view text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

// How the letter of an ICU pattern is written in a text.
enum class Form
{
    Number,
    Name,
    Unknown
};

Form FormOf(char16_t letter, std::size_t count)
{
    switch (letter) {
    case u'y':
    case u'd':
    case u'h':
    case u'H':
    case u'K':
    case u'k':
    case u'm':
    case u's': return Form::Number;
    case u'M':
    case u'L': return count <= 2 ? Form::Number : Form::Name;
    case u'E':
    case u'c':
    case u'G':
    case u'a':
    case u'b':
    case u'B': return Form::Name;
    default: return Form::Unknown;
    }
}

void NoteField(DateStyle & style, char16_t letter)
{
    bool const time = std::u16string_view(u"hHKkmsabB").find(letter) != std::u16string_view::npos;
    (time ? style.hasTime : style.hasDate) = true;
    style.hasWeekday = style.hasWeekday || letter == u'E' || letter == u'c';
}

// Adds a field to the style; false if a text has none such.
bool AddField(DateStyle & style, char16_t letter, std::size_t count, bool monthsHaveDigits)
{
    Form const form = FormOf(letter, count);
    if (form == Form::Unknown)
        return false;
    NoteField(style, letter);
    if (letter == u'b' || letter == u'B')  // times of day such as "at night": ICU does not tell their names
        letter = u'a';
    style.pattern.append(letter == u'y' ? 2 : count, letter);
    bool const month = letter == u'M' || letter == u'L';
    if (form == Form::Number) {
        style.fields.push_back(month ? u'M' : letter);
        style.gaps.emplace_back();
    } else if (month && monthsHaveDigits) {
        style.fields.push_back(u'#');
        style.gaps.back().letters = true;
        style.gaps.emplace_back().letters = true;
    } else {
        style.gaps.back().names = true;
    }
    return true;
}

bool FitsField(char16_t field, DigitRun const & run, bool fourDigitYear)
{
    if (field == u'y')
        return run.length == 4 || (run.length == 2 && !fourDigitYear);
    if (run.length > 2)
        return false;
    switch (field) {
    case u'M': return run.value >= 1 && run.value <= 12;
    case u'd': return run.value >= 1 && run.value <= 31;
    case u'H': return run.value <= 23;
    case u'K': return run.value <= 11;
    case u'h': return run.value >= 1 && run.value <= 12;
    case u'k': return run.value >= 1 && run.value <= 24;
    case u'm':
    case u's': return run.value <= 59;
    default: return true;
    }
}

// Whether a date that stands in numbers alone is one of the calendar.
bool IsOnCalendar(DateStyle const & style, DateText const & text)
{
    auto const valueOf = [&](char16_t field) {
        auto const at = std::find(style.fields.begin(), style.fields.end(), field);
        return at == style.fields.end() ? -1 : static_cast<int>(text.runs[at - style.fields.begin()].value);
    };
    int const month = valueOf(u'M');
    int const day = valueOf(u'd');
    if (month < 0 || day < 0)
        return true;
    using namespace std::chrono;
    // The centuries 1900 and 2000 of a two-digit year have the same leap years but for 00, which is 2000.
    int year = valueOf(u'y');
    if (year >= 0 && year < 100)
        year += 2000;
    return year_month_day{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                          std::chrono::day{static_cast<unsigned>(day)}}
        .ok();
}

bool FitsGap(DateGap const & style, DateGap const & text, bool atEnd)
{
    if (text.letters)
        return style.names || style.letters;
    if (style.names)
        return false;
    if (style.letters || style.text == text.text || (atEnd && text.text.empty()))
        return true;
    auto const isStroke = [](std::u16string const & gap) { return gap == u"/" || gap == u"-"; };
    return isStroke(style.text) && isStroke(text.text);
}

}  // namespace

std::optional<DateText> ReadDateText(std::u16string_view text)
{
    text = Trimmed(text);
    if (text.size() > kLongestDateText)
        return std::nullopt;
    auto const isPlainDigit = [](char16_t unit) { return (unit >= u'0' && unit <= u'9') || unit > 0x7F; };
    if (std::none_of(text.begin(), text.end(), isPlainDigit))
        return std::nullopt;

    DateText result;
    result.text.reserve(text.size());
    result.gaps.emplace_back();
    bool inRun = false;
    for (std::size_t at = 0; at < text.size();) {
        UChar32 c = Next(text, at);
        if (IsMarkOfDirection(c))
            continue;
        std::int32_t const digit = DigitValue(c);
        if (digit >= 0) {
            if (!inRun) {
                if (result.runs.size() == kMostDigitRuns)
                    return std::nullopt;
                result.runs.emplace_back();
                result.gaps.emplace_back();
            }
            DigitRun & run = result.runs.back();
            if (++run.length > kLongestRun)
                return std::nullopt;
            run.value = run.value * 10 + static_cast<std::uint32_t>(digit);
            c = u'0' + digit;
        } else {
            if (IsBlank(c))
                c = u' ';
            AddToGap(result.gaps.back(), c);
        }
        inRun = digit >= 0;
        AppendTo(result.text, c);
    }
    if (result.runs.empty())
        return std::nullopt;
    return result;
}

std::u16string CommonForm(std::u16string_view pattern)
{
    std::u16string common;
    for (char16_t const unit : pattern) {
        if (!IsMarkOfDirection(unit))
            common += IsBlank(unit) ? u' ' : unit;
    }
    return common;
}

std::optional<DateStyle> ReadDateStyle(std::u16string_view pattern, bool monthsHaveDigits)
{
    std::u16string const common = CommonForm(pattern);
    DateStyle style;
    style.gaps.emplace_back();
    bool quoted = false;
    for (std::size_t i = 0; i < common.size();) {
        char16_t letter = common[i];
        if (letter == u'\'') {
            bool const doubled = i + 1 < common.size() && common[i + 1] == u'\'';
            if (doubled)
                AddToGap(style.gaps.back(), letter);
            else
                quoted = !quoted;
            style.pattern.append(common, i, doubled ? 2 : 1);
            i += doubled ? 2 : 1;
        } else if (quoted || letter > 0x7F || !u_isalpha(letter)) {
            std::size_t const start = i;
            AddToGap(style.gaps.back(), Next(common, i));
            style.pattern.append(common, start, i - start);
        } else {
            std::size_t end = i;
            while (end < common.size() && common[end] == letter)
                ++end;
            if (letter == u'u')
                letter = u'y';
            if (!AddField(style, letter, end - i, monthsHaveDigits))
                return std::nullopt;
            i = end;
        }
    }
    return style;
}

bool MayMatch(DateStyle const & style, DateText const & text)
{
    if (style.fields.size() != text.runs.size())
        return false;
    for (std::size_t i = 0; i < style.fields.size(); ++i) {
        if (!FitsField(style.fields[i], text.runs[i], style.fourDigitYear))
            return false;
    }
    for (std::size_t i = 0; i < style.gaps.size(); ++i) {
        if (!FitsGap(style.gaps[i], text.gaps[i], i == 0 || i + 1 == style.gaps.size()))
            return false;
    }
    return !style.hasDate || IsOnCalendar(style, text);
}

std::u16string FoldCase(std::u16string_view text)
{
    std::u16string folded;
    folded.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        AppendTo(folded, u_foldCase(Next(text, at), U_FOLD_CASE_DEFAULT));
    }
    return folded;
}

}  // namespace VelNLS::detail
