// Reads plain texts by a pattern as ICU's strict formats read them, without ICU.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "main/core/DateSpeech.h"
#include "main/core/DateText.h"
#include "velcoredata/core/DateTimeParseOptions.h"
#include "velcoredata/core/Export.h"

class DateTime;

namespace detail {

// A pattern taken apart. Serves patterns of y, M in any number, d, H, h with a, m, s, S and literals of ASCII marks,
// each letter once; to others the answer is always Unsure.
//
// The answer is that of one try with a strict format on a calendar that is not lenient: what ICU allows is allowed here
// (blanks before a field, a single digit for MM, a month's name for M, a missing tail of literals). Fits and Fails are
// sure; whatever might be otherwise is Unsure.
class VELCOREDATA_API DateTextPlan
{
public:
    enum class Answer : std::uint8_t
    {
        Fits,
        Fails,
        Unsure
    };

    DateTextPlan() = default;
    explicit DateTextPlan(std::u16string_view pattern);

    std::u16string_view GetPattern() const noexcept { return m_pattern; }
    // Whether the answer is ever sure.
    bool IsKnown() const noexcept { return m_known; }

    // `out` is written where the answer is Fits. The reference gives what the pattern leaves out, as in TryDateText.
    Answer Read(DateText const & text, DateSpeech speech, DateTimeParseOptions options, DateTime const & reference,
                DateTime & out) const;

    // The same for a text that has exactly the form in which the pattern prints, "2020-01-02 03:04:05", up to its
    // terminator: true with `out`, or false for any doubt. Only patterns of a year in fours and the rest in twos, with
    // a year, a month and a day, have such a form.
    bool ReadExactForm(char16_t const * text, DateTimeParseOptions options, DateTime & out) const noexcept;

private:
    enum class Field : std::uint8_t
    {
        Year,
        Month,
        MonthName,
        Day,
        Hour,
        HourOfHalf,
        Minute,
        Second,
        Fraction,
        Half,
        Blank,    // one or more
        Literal,  // one code unit
    };
    struct Step
    {
        Field field;
        std::uint8_t count;  // letters; in a run of numbers without anything between, the digits that count
        std::uint8_t run;    // on the first of such a run, the digits of all of it, else 0
        std::uint8_t inRun;  // 1 for all of such a run
        char16_t unit;       // of Literal
    };
    struct Parts;
    class Reader;

    static constexpr std::size_t MOST_STEPS = 32;

    bool TakeApart();
    bool AddField(char16_t letter, int count);
    bool AddLiteral(char16_t unit);
    void JoinRuns();
    bool HasNumberBehindName() const noexcept;
    void DrawSignature();
    void DrawForm();
    bool CannotFit(DateText const & text) const noexcept;

    std::u16string m_pattern;
    std::array<Step, MOST_STEPS> m_steps{};
    std::uint8_t m_count = 0;
    bool m_known = false;
    std::uint16_t m_fields = 0;  // bits by Field

    // What a plain text that fits has: the numbers and marks, and letters.
    bool m_hasSignature = false;
    bool m_takesLetters = false;
    bool m_needsLetters = false;
    std::uint64_t m_signature = 0;

    // The exact form: each code unit less `least` is at most `range`. The places of the fields' digits; 0 length if
    // there is no such form.
    static constexpr std::size_t LONGEST_FORM = 32;
    std::uint8_t m_formLength = 0;
    std::array<std::uint16_t, LONGEST_FORM> m_least{};
    std::array<std::uint16_t, LONGEST_FORM> m_range{};
    std::array<std::int8_t, 9> m_places{};  // by Field; -1 for a field that the pattern lacks
};

}  // namespace detail
