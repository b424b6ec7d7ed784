// docs/locale-round-trip.md: which dates come back from their text, for every locale of ICU. The test holds the
// committed page against what it finds, for the version of ICU that the page was made with.
//
// VELCOREDATA_WRITE_ROUND_TRIP=1 writes the page anew.
#include <gtest/gtest.h>

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/uversion.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/QuietLogger.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"

namespace {

constexpr char const * kPage = "docs/locale-round-trip.md";

// The patterns that are the same for all, then the locale's own.
constexpr char16_t const * patterns[] = {
    u"yyyy-MM-dd HH:mm:ss.SSS",
    u"yyyyMMdd'T'HHmmss",
    u"dd/MM/yyyy HH:mm:ss",
    u"yyyy-MM-dd",
    u"d. MMMM yyyy",
    u"EEEE, MMMM d, yyyy h:mm:ss a",
    u"dd-MMM-yyyy HH:mm",
    u"y MMMM d G",
    u"M/d/yy",
    u"MMM yyyy",
    u"dd-MMM",
    u"HH:mm:ss",
};
struct Own
{
    char const * name;
    ICUUtils::DefaultDateTimeFormatSpec spec;
};
constexpr Own ownFormats[] = {
    {"short date", ICUUtils::SpecShortDate}, {"long date", ICUUtils::SpecLongDate},     {"time", ICUUtils::SpecTime},
    {"short time", ICUUtils::SpecShortTime}, {"date and time", ICUUtils::SpecDateTime},
};

// Number of letters of a field outside quotes.
int Count(TString const & pattern, std::u16string_view letters)
{
    int count = 0;
    bool quoted = false;
    for (char16_t const unit : pattern.View()) {
        quoted = unit == u'\'' ? !quoted : quoted;
        count += !quoted && letters.find(unit) != letters.npos ? 1 : 0;
    }
    return count;
}

struct Fields
{
    explicit Fields(TString const & pattern)
        : years(Count(pattern, u"yu")),
          hasMonth(Count(pattern, u"ML") > 0),
          hasDay(Count(pattern, u"d") > 0),
          hasHour(Count(pattern, u"hHkK") > 0),
          hasSecond(Count(pattern, u"s") > 0),
          hasMillisecond(Count(pattern, u"S") > 0)
    {}

    int years;
    bool hasMonth;
    bool hasDay;
    bool hasHour;
    bool hasSecond;
    bool hasMillisecond;
};

// Every month, both halves of the day, years of four centuries; with nothing finer than the pattern has.
std::vector<DateTime> AnyValues(Fields const & fields)
{
    static constexpr int years[] = {1583, 1752, 1900, 1969, 1999, 2000, 2012, 2024, 2049, 2100, 2999, 9998};
    std::vector<DateTime> values;
    for (int month = 1; month <= 12; ++month) {
        bool const hours = fields.hasHour;
        values.emplace_back(years[month - 1], month, month + 12, hours ? (month % 2 == 0 ? 3 : 12) + month % 12 : 0,
                            hours ? month * 4 : 0, fields.hasSecond ? month + 40 : 0,
                            fields.hasMillisecond ? month * 37 / 1000.0 : 0.0);
    }
    return values;
}

// The same in what the pattern has; what it has not is as an empty text has it, 30 December 1899.
std::vector<DateTime> ValuesWithin(Fields const & fields)
{
    std::vector<DateTime> values;
    for (DateTime const & value : AnyValues(fields)) {
        int const year = fields.years == 0 ? 1899 : fields.years == 2 ? 2000 + value.GetMonth() : value.GetYear();
        int const month = fields.hasMonth ? value.GetMonth() : 12;
        int const day = fields.hasDay ? value.GetDay() : 30;
        if (month == 2 && day == 30)
            continue;
        values.emplace_back(year, month, day, value.GetHour(), value.GetMinute(), value.GetSecond(),
                            value.GetMilliseconds() / 1000.0);
    }
    return values;
}

bool ComesBack(TLocale const & locale, TString const & pattern, std::vector<DateTime> const & values)
{
    return std::all_of(values.begin(), values.end(), [&](DateTime const & value) {
        TString const text = locale.Format(value, pattern.GetString());
        DateTime back;
        return locale.ParseDateTime(text.GetString(), pattern.GetString(), back, ParseDateAndTime) && back == value;
    });
}

TString WithoutWords(TString const & pattern)
{
    std::u16string out;
    for (char16_t const unit : pattern.View()) {
        bool const isMonth = unit == u'M' || unit == u'L';
        bool const isWord = unit == u'E' || unit == u'c' || unit == u'a' || unit == u'G';
        if (!isWord && !(isMonth && out.size() >= 2 && out[out.size() - 1] == unit && out[out.size() - 2] == unit))
            out += unit == u'h' ? u'H' : unit;
    }
    return TString::fromView(out);
}

// "=" if every value comes back, "-" without a pattern, else the letters of the legend.
std::string Outcome(TLocale const & locale, std::string const & name, TString const & pattern)
{
    if (pattern.indexOf(u'y') < 0 && pattern.indexOf(u'm') < 0 && pattern.indexOf(u'd') < 0)
        return "-";
    Fields const fields(pattern);
    if (ComesBack(locale, pattern, AnyValues(fields)))
        return "=";
    std::string letters;
    if (fields.years == 0 && !fields.hasMonth && !fields.hasDay)
        letters = "t";
    else
        letters =
            std::string(fields.years == 0 ? "y" : "") + (fields.years == 2 ? "2" : "") + (fields.hasDay ? "" : "d");
    auto const within = ValuesWithin(fields);
    if (ComesBack(locale, pattern, within))
        return letters.empty() ? "?" : letters;
    TLocale const asciiDigits(TString::fromStdString(name + "@numbers=latn"));
    if (ComesBack(asciiDigits, pattern, within))
        return letters + "n";
    return letters + (ComesBack(locale, WithoutWords(pattern), within) ? "w" : "?");
}

std::string DefaultCalendar(icu::Locale const & locale)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> const calendar(icu::Calendar::createInstance(locale, status));
    return U_FAILURE(status) ? "?" : calendar->getType();
}

std::string IcuVersion()
{
    UVersionInfo version;
    u_getVersion(version);
    char text[U_MAX_VERSION_STRING_LENGTH];
    u_versionToString(version, text);
    return text;
}

struct Line
{
    std::string locale;
    std::string calendar;
    std::vector<std::string> outcomes;
};

std::vector<Line> AllLines()
{
    std::int32_t count = 0;
    icu::Locale const * const locales = icu::Locale::getAvailableLocales(count);
    std::vector<Line> lines;
    for (std::int32_t i = 0; i < count; ++i) {
        std::string const name = locales[i].getName();
        TLocale const locale(TString::fromStdString(name));
        Line line{name, DefaultCalendar(locales[i]), {}};
        for (char16_t const * const pattern : patterns)
            line.outcomes.push_back(Outcome(locale, name, TString(pattern)));
        for (Own const & own : ownFormats)
            line.outcomes.push_back(Outcome(locale, name, TLocale::GetLocaleFormatAsICU(own.spec, locale.GetLCID())));
        lines.push_back(std::move(line));
    }
    std::sort(lines.begin(), lines.end(), [](Line const & a, Line const & b) { return a.locale < b.locale; });
    return lines;
}

std::vector<std::string> Titles()
{
    std::vector<std::string> titles;
    for (char16_t const * const pattern : patterns)
        titles.push_back('`' + TString(pattern).toStdString() + '`');
    for (Own const & own : ownFormats)
        titles.emplace_back(own.name);
    return titles;
}

std::string Page(std::vector<Line> const & lines)
{
    std::ostringstream page;
    page << R"(# Dates that come back from their text

For every locale of ICU )"
         << IcuVersion() << R"(, for twelve patterns and for the locale's own formats
(`TLocale::GetLocaleFormatAsICU`): whether `ParseDateTime(Format(x, pattern), pattern)` is x. Tried are twelve
values, one of each month, in both halves of the day, in the years 1583 to 9998, with nothing finer than the pattern
has. Written by the test `LocaleRoundTrip`, which also checks this page.

| Mark | Means |
|---|---|
| = | every value comes back |
| y | no year in the pattern: the text reads as one of 1899; values of that year come back |
| d | no day in the pattern: the text reads as the 30th, and that of February not at all; values of a 30th come back |
| t | no date in the pattern: the text reads as a time of 1899-12-30; values of that day come back |
| 2 | a year of two digits: the text reads as one within 80 years back and 20 years on; such values come back |
| n | digits of the locale: they take two code units each, so that fields without a mark between them run together |
| w | words of the locale that do not read back |
| - | the platform has no format of its own for the locale |

Where the locale has another calendar than the Gregorian one, the Gregorian calendar is used all the same, for printing
and for reading, so that no failure comes from eras or calendars.

## By pattern

)";
    std::vector<std::string> const titles = Titles();
    page << "| Pattern | Comes back in | Fails in |\n|---|---|---|\n";
    for (std::size_t i = 0; i < titles.size(); ++i) {
        std::map<std::string, int> marks;
        for (Line const & line : lines)
            ++marks[line.outcomes[i]];
        page << "| " << titles[i] << " | " << marks["="] << " locales | ";
        std::string separator;
        for (auto const & [mark, count] : marks) {
            if (mark == "=" || mark == "-" || count == 0)
                continue;
            page << separator << count << " (" << mark << ')';
            separator = ", ";
        }
        page << " |\n";
    }
    page << "\n## By locale\n\n| Locale | Calendar |";
    for (std::string const & title : titles)
        page << ' ' << title << " |";
    page << "\n|---|---|";
    for (std::size_t i = 0; i < titles.size(); ++i)
        page << "---|";
    page << '\n';
    for (Line const & line : lines) {
        page << "| " << line.locale << " | " << line.calendar << " |";
        for (std::string const & outcome : line.outcomes)
            page << ' ' << outcome << " |";
        page << '\n';
    }
    return page.str();
}

}  // namespace

TEST(LocaleRoundTrip, ThePublishedPageTellsWhatHappens)
{
    test_support::QuietLogger const quiet;
    std::string committed;
    {
        std::ifstream file(kPage);
        std::ostringstream text;
        text << file.rdbuf();
        committed = text.str();
    }
    bool const write = std::getenv("VELCOREDATA_WRITE_ROUND_TRIP") != nullptr;
    if (!write && committed.find("locale of ICU " + IcuVersion() + ",") == std::string::npos)
        GTEST_SKIP() << kPage << " was made with another version of ICU than " << IcuVersion();

    std::vector<Line> const lines = AllLines();
    EXPECT_GT(lines.size(), 700u);
    for (Line const & line : lines) {
        for (std::string const & outcome : line.outcomes)
            EXPECT_EQ(outcome.find('?'), std::string::npos) << line.locale << ": a failure that no class explains";
        EXPECT_EQ(line.outcomes[0], "=") << line.locale;
    }
    std::string const page = Page(lines);
    if (write) {
        std::ofstream(kPage) << page;
        return;
    }
    EXPECT_TRUE(page == committed) << kPage << " does not tell what happens: write it anew with "
                                   << "VELCOREDATA_WRITE_ROUND_TRIP=1 and look at the difference";
}
