// Reads plain texts by a pattern as ICU's strict formats read them, without ICU.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "main/core/DateText.h"
#include "velcoredata/core/DateTimeParseOptions.h"
#include "velcoredata/core/Export.h"

class DateTime;

namespace VelICU_V2 {
class ICULocale;
}

namespace detail {

// What a locale takes for a number and for a word.
enum class DateSpeech : std::uint8_t
{
    Unknown,  // other digits than ASCII's, or a calendar of its own
    Digits,   // ASCII digits; words are ICU's
    English,  // and the English names of months and halves of the day
};

// Asks ICU.
DateSpeech SpeechOf(VelICU_V2::ICULocale const & locale);

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

    std::u16string m_pattern;
    std::array<Step, MOST_STEPS> m_steps{};
    std::uint8_t m_count = 0;
    bool m_known = false;
    std::uint16_t m_fields = 0;  // bits by Field
};

}  // namespace detail
