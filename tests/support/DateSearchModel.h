// A second, plain writing of the search for dates in text, over ICU alone, by which the library's one is judged: every
// pattern is tried in its turn with a whole parse, nothing is skipped and nothing is foreseen.
//
// Belongs to one thread.
#pragma once

#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "velcoredata/data/DateTime.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

namespace test_support {

class DateSearchModel
{
public:
    // `icuName` is the locale's ICU name, which may name a calendar; `isoName` decides whose table is searched.
    DateSearchModel(std::string const & icuName, TString const & isoName, LCID lcid);

    // Options: 1 date, 2 time, 3 both. Nothing if the text is refused. Texts end at U+0000.
    using Result = std::optional<DateTime>;
    Result SearchDateTime(std::u16string_view text, DateTime const & reference, int options);
    Result SearchDate(std::u16string_view text, DateTime const & reference, int options);
    Result SearchTime(std::u16string_view text);
    Result ParseWithPattern(std::u16string_view text, std::u16string_view pattern, int options);
    Result ParseNative(std::u16string_view text, DateTime const & reference, int options);

    // Forgets what was read.
    void Reset();

    bool parseNative = true;
    bool cacheFormatter = true;

    // What the last reading left: the formatter's pattern, nothing before the first reading.
    std::optional<std::u16string> Pattern() const;
    bool IsLenient() const;
    bool LastParseNative() const { return m_lastParseNative; }
    int ParseCount() const { return m_parseCount; }

    // Number of the row that matched in the search over the table; -1 if none did or another step read the text.
    int MatchedRow() const { return m_matchedRow; }

    struct Row
    {
        std::u16string_view formatString;
        bool tryAll;
    };
    static constexpr int kRows = 74;
    static Row const & RowAt(int row);
    static std::u16string_view IsoShape(int index);       // of 10
    static std::u16string_view TimeShape(int index);      // of 14
    std::u16string const & FormatString(int code) const;  // of 24, the locale's own; empty: none

private:
    Result Search(std::u16string_view text, DateTime const & reference, int options, bool dateOnly);
    Result TryCached(std::u16string_view trimmed, int options);
    Result SearchTable(std::u16string_view trimmed, DateTime const & reference);
    Result SearchInternationalDateTime(std::u16string_view trimmed);
    Result SearchInternationalDate(std::u16string_view trimmed);
    Result SearchIsoShapes(std::u16string_view trimmed, int options);
    Result TryOnce(std::u16string_view text, DateTime const & reference, int options);
    Result ReadFields(int options) const;
    void Populate(std::u16string_view pattern);
    void Apply(std::u16string_view pattern);
    void MakeStyled(int dateStyle, int timeStyle);
    std::unique_ptr<icu::Calendar> MakeCalendar() const;

    icu::Locale m_locale;
    TString m_isoName;
    LCID m_lcid;
    std::u16string m_dateTime;
    std::u16string m_shortDate;
    std::u16string m_longDate;
    std::u16string m_time;
    std::u16string m_shortTime;
    std::unique_ptr<icu::SimpleDateFormat> m_formatter;
    std::unique_ptr<icu::Calendar> m_calendar;
    int m_parseCount = 0;
    bool m_lastParseNative = false;
    int m_matchedRow = -1;
};

}  // namespace test_support
