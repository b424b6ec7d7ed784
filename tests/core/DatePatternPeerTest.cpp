// Reading and printing by patterns that nobody would write, against plain ICU.
//
// VELCOREDATA_DATE_PATTERNS is the number of patterns for each locale, 2000 without it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/DateSearchPair.h"
#include "tests/support/QuietLogger.h"
#include "tests/support/RandomDateText.h"
#include "velcoredata/data/DateTime.h"

namespace {

using test_support::RandomDateText;

std::size_t CountOfPatterns()
{
    char const * const text = std::getenv("VELCOREDATA_DATE_PATTERNS");
    return text == nullptr ? 2000 : std::strtoul(text, nullptr, 10);
}

std::string Utf8(std::u16string_view text)
{
    return TString::fromView(text).toStdString();
}

// Fields that ICU has; now and then a letter that it has not, or a quote that nothing closes.
std::u16string RandomPattern(RandomDateText & random, bool legal)
{
    static constexpr std::u16string_view often = u"yMdHhmsaS";
    static constexpr std::u16string_view letters = u"GyYuUQqMLwWdDFgEecabBhHKkmsSA";
    static constexpr std::u16string_view between[] = {
        u"/", u"-", u".", u":", u" ", u", ", u"", u"", u"'T'", u"''", u"'of '", u"\u5E74", u"T'", u"n", u"\U0001F4C5"};
    std::u16string pattern;
    for (std::size_t n = 1 + random.Below(7); n > 0; --n) {
        std::u16string_view const from = random.OneIn(3) ? letters : often;
        pattern.append(1 + random.Below(random.OneIn(6) ? 7 : 4), from[random.Below(from.size())]);
        pattern += between[random.Below(std::size(between) - (legal ? 3 : 0))];
    }
    return pattern;
}

class DatePatternPeer : public ::testing::TestWithParam<char16_t const *>
{
protected:
    DatePatternPeer() : m_icuName(TString(GetParam()).toStdString() + "@calendar=gregorian") {}

    std::unique_ptr<icu::SimpleDateFormat> MakeFormat(std::u16string const & pattern) const
    {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale const locale(m_icuName.c_str());
        auto format = std::make_unique<icu::SimpleDateFormat>(
            icu::UnicodeString(pattern.data(), static_cast<std::int32_t>(pattern.size())), locale, status);
        EXPECT_TRUE(U_SUCCESS(status));
        format->adoptCalendar(MakeCalendar().release());
        return format;
    }

    // Gregorian in every year, in UTC.
    std::unique_ptr<icu::GregorianCalendar> MakeCalendar() const
    {
        UErrorCode status = U_ZERO_ERROR;
        auto calendar =
            std::make_unique<icu::GregorianCalendar>(*icu::TimeZone::getGMT(), icu::Locale(m_icuName.c_str()), status);
        calendar->setGregorianChange(-184303902528000000.0, status);
        EXPECT_TRUE(U_SUCCESS(status));
        return calendar;
    }

    std::string m_icuName;
};

}  // namespace

TEST_P(DatePatternPeer, AnyPatternReadsAsIcuReadsIt)
{
    test_support::QuietLogger const quiet;
    test_support::DateSearchPair pair(GetParam());
    RandomDateText random(42, m_icuName, {u"yyyy-MM-dd HH:mm:ss", u"d/M/yy", u"d. MMMM y", u"h:mm a"});
    std::size_t read = 0;
    for (std::size_t i = 0; i < CountOfPatterns(); ++i) {
        std::u16string const pattern = RandomPattern(random, !random.OneIn(4));
        std::u16string text = random.OneIn(4) ? random.Next() : random.Format(*MakeFormat(pattern));
        if (random.OneIn(3))
            random.Spoil(text);
        auto const options =
            random.OneIn(6) ? static_cast<DateTimeParseOptions>(1 + random.Below(3)) : ParseDateAndTime;
        ASSERT_EQ(pair.Take(test_support::DateSearchPair::Step::Pattern, text, pattern, DateTime(), options), "")
            << Utf8(text) << " [" << Utf8(pattern) << "] " << options;
        read += pair.Read() ? 1 : 0;
    }
    EXPECT_GT(read, CountOfPatterns() / 50);
}

// What an exact reading would get wrong at its edges: one code unit changed, put in or left out, at every place.
TEST_P(DatePatternPeer, EveryCodeUnitOfATextCountsAsForIcu)
{
    static constexpr std::u16string_view units = u"0139/-.:, ZTaep+\u00A0\u202F\uFF11\u0661\u200F";
    test_support::QuietLogger const quiet;
    test_support::DateSearchPair pair(GetParam());
    std::vector<std::u16string> patterns;
    for (int row = 0; row < test_support::DateSearchModel::kRows; ++row)
        patterns.emplace_back(test_support::DateSearchModel::RowAt(row).formatString);
    for (int code : {0, 4, 9, 20, 23})
        patterns.push_back(pair.Model().FormatString(code));
    RandomDateText random(44, m_icuName, patterns);
    auto const take = [&](std::u16string const & text, std::u16string const & pattern) {
        ASSERT_EQ(pair.Take(test_support::DateSearchPair::Step::Pattern, text, pattern, DateTime(), ParseDateAndTime),
                  "")
            << Utf8(text) << " [" << Utf8(pattern) << ']';
        // The same once more as the pattern tried last, in a search.
        if (random.OneIn(40)) {
            ASSERT_EQ(
                pair.Take(test_support::DateSearchPair::Step::DateTime, text, pattern, DateTime(), ParseDateAndTime),
                "")
                << Utf8(text) << " [" << Utf8(pattern) << ']';
        }
    };
    for (std::u16string const & pattern : patterns) {
        std::u16string const text = random.Format(*MakeFormat(pattern));
        for (std::size_t at = 0; at <= text.size(); ++at) {
            std::u16string changed = text;
            if (at < text.size())
                take(changed.erase(at, 1), pattern);
            for (std::size_t i = 0; i < 3; ++i) {
                char16_t const unit = units[random.Below(units.size())];
                take(std::u16string(text).insert(at, 1, unit), pattern);
                if (at < text.size()) {
                    changed = text;
                    changed[at] = unit;
                    take(changed, pattern);
                }
            }
            if (HasFatalFailure())
                return;
        }
    }
}

// The only number that a sign leaves in its field's range.
TEST_P(DatePatternPeer, AZeroWithASignReadsAsForIcu)
{
    struct Case
    {
        char16_t const * text;
        char16_t const * pattern;
    };
    static constexpr Case cases[] = {
        {u"2020-01-02T-0:04", u"yyyy-MM-dd'T'HH:mm"},
        {u"1987-01-11T-0:09:52.142000Z", u"yyyy-MM-dd'T'HH:mm:ss.SSSSSS'Z'"},
        {u"2020-01-02-00:04", u"yyyy-MM-dd HH:mm"},
        {u"2020-01-02 -0:04", u"yyyy-MM-dd HH:mm"},
        {u"2020-01-02 00:-0", u"yyyy-MM-dd HH:mm"},
        {u"2020-01-02 00:00:00.-0", u"yyyy-MM-dd HH:mm:ss.SSS"},
        {u"5-Jan-2020-0:04", u"d-MMM-yyyy HH:mm"},
        {u"5-Jan-0", u"d-MMM-yy"},
        {u"5 Jan-0", u"d MMM yy"},
        {u"Jan-0", u"MMM yyyy"},
        {u"12AM-0", u"hha-mm"},
        {u"12AM-0", u"hha mm"},
    };
    test_support::QuietLogger const quiet;
    test_support::DateSearchPair pair(GetParam());
    for (Case const & c : cases) {
        pair.StartAnew(false, true);
        for (auto const step :
             {test_support::DateSearchPair::Step::Pattern, test_support::DateSearchPair::Step::DateTime})
            EXPECT_EQ(pair.Take(step, c.text, c.pattern, DateTime(), ParseDateAndTime), "")
                << Utf8(c.text) << " [" << Utf8(c.pattern) << ']';
    }
}

TEST_P(DatePatternPeer, AnyPatternPrintsAsIcuPrintsIt)
{
    TLocale const locale(GetParam());
    RandomDateText random(43, m_icuName, {u"yyyy"});
    auto const calendar = MakeCalendar();
    for (std::size_t i = 0; i < CountOfPatterns(); ++i) {
        std::u16string const pattern = RandomPattern(random, true);
        auto const format = MakeFormat(pattern);
        for (int k = 0; k < 4; ++k) {
            int const year = random.OneIn(4) ? 400 + static_cast<int>(random.Below(9600))
                                             : 1970 + static_cast<int>(random.Below(80));
            DateTime const value(year, 1 + static_cast<int>(random.Below(12)), 1 + static_cast<int>(random.Below(28)),
                                 static_cast<int>(random.Below(24)), static_cast<int>(random.Below(60)),
                                 static_cast<int>(random.Below(60)), static_cast<double>(random.Below(10000)) / 10000);
            calendar->clear();
            calendar->set(value.GetYear(), value.GetMonth() - 1, value.GetDay(), value.GetHour(), value.GetMinute(),
                          value.GetSecond());
            calendar->set(UCAL_MILLISECOND, value.GetMilliseconds());
            icu::UnicodeString expected;
            icu::FieldPosition ignored(icu::FieldPosition::DONT_CARE);
            format->format(*calendar, expected, ignored);
            ASSERT_EQ(locale.Format(value, pattern.c_str()),
                      TString::fromView({expected.getBuffer(), static_cast<std::size_t>(expected.length())}))
                << Utf8(pattern) << ' ' << value.GetRepresentation();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Locales, DatePatternPeer,
                         ::testing::Values(u"en_US", u"de_DE", u"fr_FR", u"ja_JP", u"ar_EG", u"hi_IN", u"th_TH"));
