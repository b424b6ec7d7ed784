// What the locales of dates as text have for numbers and words.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

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

// English names in lower case, and the length of the short ones. The halves of the day are "am" and "pm", or "a" and
// "p".
inline constexpr std::u16string_view ENGLISH_MONTHS[] = {u"january",   u"february", u"march",    u"april",
                                                         u"may",       u"june",     u"july",     u"august",
                                                         u"september", u"october",  u"november", u"december"};
inline constexpr std::size_t SHORT_MONTH = 3;

}  // namespace detail
