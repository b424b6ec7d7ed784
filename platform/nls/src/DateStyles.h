// The styles in which a locale writes dates and times, with the ICU formats that read and print them.
#pragma once

#include <unicode/dtfmtsym.h>
#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "DateTokens.h"
#include "velsys/Lcid.h"

namespace VelNLS::detail {

// Fields of a date and time of day in the proleptic Gregorian calendar.
struct DateParts
{
    int year = 0;
    int month = 0;  // 1 to 12
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    bool hasDate = false;
    bool hasTime = false;
};

// One LCID's styles. Any thread may call the members at any time.
class DateStyles
{
public:
    // By the published name, "de-DE".
    explicit DateStyles(char const * publishedName);

    DateStyles(DateStyles const &) = delete;
    DateStyles & operator=(DateStyles const &) = delete;

    // Nothing if no style reads the whole of the text as one certain date.
    std::optional<DateParts> Read(DateText const & text) const;

    // The short date with a four-digit year, the time with seconds, and both, in ASCII digits.
    std::u16string Print(DateParts const & parts) const;

private:
    struct Entry
    {
        DateStyle style;
        mutable std::once_flag once;
        mutable std::unique_ptr<icu::SimpleDateFormat> format;
    };

    void AddStyle(std::u16string_view pattern, bool fourDigitYear = false);
    void AddCombinations(std::vector<std::u16string> const & dates, std::vector<std::u16string> const & times);
    void CollectWords();
    void AddWords(std::u16string_view text);
    bool KnowsWords(std::u16string_view text) const;
    std::unique_ptr<icu::SimpleDateFormat> MakeFormat(std::u16string const & pattern) const;
    std::optional<DateParts> ReadIn(Entry const & entry, DateText const & text) const;
    bool HasRightWeekday(icu::Calendar const & calendar, std::u16string_view text) const;

    icu::Locale m_locale;                                // Gregorian
    std::unique_ptr<icu::DateFormatSymbols> m_symbols;   // common blanks in the names of the halves of a day
    std::unique_ptr<icu::GregorianCalendar> m_calendar;  // proleptic, in UTC, not lenient
    bool m_monthsHaveDigits = false;
    std::vector<std::unique_ptr<Entry>> m_entries;  // in the order in which they are tried
    std::set<std::u16string> m_words;               // runs of letters of names and patterns, case folded
    std::size_t m_longestWord = 0;
    std::unique_ptr<icu::SimpleDateFormat> m_printDate;
    std::unique_ptr<icu::SimpleDateFormat> m_printTime;
};

// Null for an LCID without a published name. The 16 made last are kept.
std::shared_ptr<DateStyles const> GetDateStyles(LCID lcid);

}  // namespace VelNLS::detail
