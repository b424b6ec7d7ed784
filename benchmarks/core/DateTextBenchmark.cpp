// Dates and times as text beside ICU and the C library. Inputs are 32,768 random moments of the years 1970 to 2069.
#include <ctime>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include "main/core/DateTimeParsingRows.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"

namespace {

constexpr int c_count = 32768;
constexpr char16_t const * c_pattern = u"yyyy-MM-dd HH:mm:ss";

std::vector<DateTime> const & Values()
{
    static std::vector<DateTime> const values = [] {
        std::mt19937_64 random(42);
        DateTime const first(1970, 1, 1, 0, 0, 0, 0.0);
        std::vector<DateTime> result;
        for (int i = 0; i < c_count; ++i)
            result.push_back(first + DateTimeSpan(0, 0, 0, static_cast<long long>(random() % 3155760000ULL), 0.0));
        return result;
    }();
    return values;
}

std::vector<std::u16string> Texts(char16_t const * pattern)
{
    TLocale const locale(u"en_US");
    std::vector<std::u16string> texts;
    for (DateTime const & value : Values())
        texts.push_back(locale.Format(value, pattern).toStdU16String());
    return texts;
}

std::vector<std::string> NarrowTexts(char16_t const * pattern)
{
    std::vector<std::string> texts;
    for (std::u16string const & text : Texts(pattern))
        texts.push_back(TString::fromView(text).toStdString());
    return texts;
}

// Time per input of an operation on prepared inputs.
template <class Item, class Operation>
void Run(benchmark::State & state, std::vector<Item> const & items, Operation const & operation)
{
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(items.size())))
        for (Item const & item : items)
            benchmark::DoNotOptimize(operation(item));
}

// The formats of the table's rows, strict, and a calendar that is not lenient: what a search asks of ICU.
class ICUSearch
{
public:
    ICUSearch() : m_calendar(*icu::TimeZone::getGMT(), icu::Locale("en_US"), m_status)
    {
        m_calendar.setLenient(false);
        m_format = std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString(), icu::Locale("en_US"), m_status);
        m_format->setTimeZone(*icu::TimeZone::getGMT());
        m_format->setLenient(false);
    }

    bool Try(icu::UnicodeString const & text)
    {
        m_calendar.clear();
        m_calendar.set(1899, 11, 30);
        icu::ParsePosition position(0);
        m_format->parse(text, m_calendar, position);
        return position.getErrorIndex() == -1 && position.getIndex() == text.length();
    }
    void Apply(char16_t const * pattern) { m_format->applyPattern(icu::UnicodeString(pattern)); }
    bool Search(std::u16string const & text)
    {
        icu::UnicodeString const alias(false, text.data(), static_cast<std::int32_t>(text.size()));
        for (detail::DateTimeParsingRow const & row : detail::DateTimeParsingRows()) {
            if (!row.tryAll)
                continue;
            Apply(row.formatString);
            if (Try(alias))
                return true;
        }
        return false;
    }

private:
    UErrorCode m_status = U_ZERO_ERROR;
    icu::GregorianCalendar m_calendar;
    std::unique_ptr<icu::SimpleDateFormat> m_format;
};

void FormatOurs(benchmark::State & state)
{
    TLocale const locale(u"en_US");
    Run(state, Values(), [&](DateTime const & value) { return locale.Format(value, c_pattern); });
}
void FormatICU(benchmark::State & state)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat const format(icu::UnicodeString(c_pattern), icu::Locale("en_US"), status);
    Run(state, Values(), [&](DateTime const & value) {
        UErrorCode callStatus = U_ZERO_ERROR;
        icu::GregorianCalendar calendar(*icu::TimeZone::getGMT(), icu::Locale("en_US"), callStatus);
        calendar.set(value.GetYear(), value.GetMonth() - 1, value.GetDay(), value.GetHour(), value.GetMinute(),
                     value.GetSecond());
        icu::UnicodeString text;
        icu::FieldPosition position(icu::FieldPosition::DONT_CARE);
        format.format(calendar, text, position);
        return text.length();
    });
}
void FormatStrftime(benchmark::State & state)
{
    Run(state, Values(), [&](DateTime const & value) {
        DateTime::YearMonthDay const civil = value.GetYearMonthDay();
        std::tm parts{};
        parts.tm_year = civil.year - 1900;
        parts.tm_mon = civil.month - 1;
        parts.tm_mday = civil.day;
        parts.tm_hour = value.GetHour();
        parts.tm_min = value.GetMinute();
        parts.tm_sec = value.GetSecond();
        char text[32];
        std::size_t const length = std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts);
        benchmark::DoNotOptimize(text);
        return length;
    });
}

void KnownOurs(benchmark::State & state)
{
    TLocale const locale(u"en_US");
    DateTime out;
    Run(state, Texts(c_pattern), [&](std::u16string const & text) {
        return locale.ParseDateTimeTryAllFormats(text.c_str(), out, ParseDateAndTime);
    });
}
void KnownICU(benchmark::State & state)
{
    ICUSearch icu;
    icu.Apply(c_pattern);
    Run(state, Texts(c_pattern), [&](std::u16string const & text) {
        return icu.Try(icu::UnicodeString(false, text.data(), static_cast<std::int32_t>(text.size())));
    });
}
void KnownStrptime(benchmark::State & state)
{
    Run(state, NarrowTexts(c_pattern), [&](std::string const & text) {
        std::tm parts{};
        return strptime(text.c_str(), "%Y-%m-%d %H:%M:%S", &parts);
    });
}

// A last row of the table, "MM/dd/yy hh:mm a", and a text that no row fits, searched without the memory of patterns.
std::vector<std::u16string> LateTexts()
{
    return Texts(u"MM/dd/yy hh:mm a");
}
std::vector<std::u16string> MissTexts()
{
    std::vector<std::u16string> texts = Texts(u"yyyy-MM-dd HH:mm:ss");
    for (std::u16string & text : texts)
        text[5] = u'7';  // a month of 70 and more
    return texts;
}
using MakeTexts = std::vector<std::u16string> (*)();

void SearchOurs(benchmark::State & state, MakeTexts makeTexts)
{
    TLocale locale(u"en_US");
    locale.setParseNative(false);
    locale.setCacheFormatter(false);
    DateTime out;
    Run(state, makeTexts(), [&](std::u16string const & text) {
        return locale.ParseDateTimeTryAllFormats(text.c_str(), out, ParseDateAndTime);
    });
}
void SearchICU(benchmark::State & state, MakeTexts makeTexts)
{
    ICUSearch icu;
    Run(state, makeTexts(), [&](std::u16string const & text) { return icu.Search(text); });
}

BENCHMARK(FormatOurs)->Name("date-time to text/ours");
BENCHMARK(FormatICU)->Name("date-time to text/peer:ICU format");
BENCHMARK(FormatStrftime)->Name("date-time to text/peer:strftime");
BENCHMARK(KnownOurs)->Name("text to date-time, known format/ours");
BENCHMARK(KnownICU)->Name("text to date-time, known format/peer:ICU parse");
BENCHMARK(KnownStrptime)->Name("text to date-time, known format/peer:strptime");
BENCHMARK_CAPTURE(SearchOurs, late, LateTexts)->Name("date search, late row/ours");
BENCHMARK_CAPTURE(SearchICU, late, LateTexts)->Name("date search, late row/peer:ICU over the rows");
BENCHMARK_CAPTURE(SearchOurs, miss, MissTexts)->Name("date search, full miss/ours");
BENCHMARK_CAPTURE(SearchICU, miss, MissTexts)->Name("date search, full miss/peer:ICU over the rows");

}  // namespace
