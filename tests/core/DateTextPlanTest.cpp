// Reading without ICU, held against reading through ICU.
//
// VELCOREDATA_PLAIN_TEXTS is the number of drawn texts for each test, 8000 without it.

#include "main/core/DateTextPlan.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "main/core/DateTimeParsingRows.h"
#include "tests/core/TLocalePeer.h"
#include "tests/support/QuietLogger.h"
#include "tests/support/RandomText.h"
#include "tests/support/ValuePrinters.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"

using detail::DateText;
using detail::DateTextPlan;
using Answer = DateTextPlan::Answer;

namespace {

DateTime const SENTINEL = DateTime::FromValue(2134567890123456);

int CountOfTexts()
{
    char const * const text = std::getenv("VELCOREDATA_PLAIN_TEXTS");
    return text == nullptr ? 8000 : std::atoi(text);
}

std::u16string_view const EXTRA_PATTERNS[] = {
    u"yyyyMMdd",
    u"yyyyMMdd'T'HHmmss",
    u"yyyyMMddHHmmssSSS",
    u" yyyy-MM-dd",
    u"yyyy-MM-dd ",
    u"/yyyy-MM-dd",
    u"HHmmss",
    u"ddMMyy",
    u"M/d/yy h:mm a",
    u"H:mm:ss.SSS",
    u"d MMMM yyyy",
    u"MMMd,yyyy",
    u"yyyy/MM/dd HHmm",
    u"yyMMdd HH:mm",
    u"h.mma",
    u"ha",
    u"H",
    u"y",
    u"d.M.yyyy",
    u"dd.MM.yyyy HH:mm",
    u"yyyy-MM-dd'Z'",
    u"MMMM",
    u"ss.SSSSSS",
    u"yyy-M-d",
    u"dMMM",
    u"MM dd  yyyy",
    u"yyyy - MM",
    u"MMM. d, yyyy",
    u"a h",
    u"S",
    u"yyyy MMM d",
    u"M",
};

class Drawer
{
public:
    explicit Drawer(unsigned seed, char16_t const * name) : m_random(seed), m_locale(TString(name))
    {
        for (detail::DateTimeParsingRow const & row : detail::DateTimeParsingRows())
            m_patterns.emplace_back(row.formatString);
        m_patterns.insert(m_patterns.end(), std::begin(EXTRA_PATTERNS), std::end(EXTRA_PATTERNS));
    }

    std::size_t Below(std::size_t n) { return m_random.Below(n); }
    std::u16string const & Pattern() { return m_patterns[Below(m_patterns.size())]; }

    // Made of a pattern, or of numbers, words and marks; spoiled more often than not.
    std::u16string Text(std::u16string const & pattern)
    {
        std::u16string text = Below(6) == 0 ? Pieces() : Printed(pattern);
        for (std::size_t n = Below(3); n > 0; --n)
            Spoil(text);
        return text.substr(0, text.find(u'\0'));
    }

private:
    std::u16string Printed(std::u16string const & pattern)
    {
        int const year = Below(12) == 0 ? static_cast<int>(400 + Below(9600)) : static_cast<int>(1900 + Below(160));
        int const month = static_cast<int>(1 + Below(12));
        int const day = static_cast<int>(1 + Below(static_cast<std::size_t>(DateTime::LastDay(year, month))));
        DateTime const value = DateTime(year, month, day, 0, 0, 0, 0.0) +
                               DateTimeSpan::FromMilliseconds(static_cast<long long>(Below(86400000)));
        return m_locale.Format(value, pattern.c_str()).toStdU16String();
    }

    std::u16string Pieces()
    {
        static constexpr std::u16string_view pieces[] = {
            u"1",   u"2",    u"05",  u"12",   u"13", u"24",   u"29",   u"30",   u"31",  u"32", u"59", u"60",
            u"99",  u"00",   u"0",   u"46",   u"47", u"45",   u"/",    u"/",    u"-",   u"-",  u".",  u":",
            u":",   u" ",    u" ",   u",",    u", ", u"T",    u"Z",    u"am",   u"PM",  u"p",  u"A",  u"May",
            u"jun", u"JULY", u"Sep", u"Sept", u"e",  u"2020", u"1999", u"0400", u"123",
        };
        return m_random.Of(pieces, 9);
    }

    void Spoil(std::u16string & text)
    {
        static constexpr std::u16string_view units = u"0123456789012 /-.:,TZaApPmMeEnN+\u00A0\u0662'\t";
        std::size_t const at = Below(text.size() + 1);
        auto const place = text.begin() + static_cast<std::ptrdiff_t>(at);
        switch (Below(8)) {
        case 0:
        case 1: text.insert(place, units[Below(units.size())]); break;
        case 2:
        case 3:
            if (at < text.size())
                text[at] = units[Below(units.size())];
            break;
        case 4:
        case 5:
            if (at < text.size())
                text.erase(at, 1);
            break;
        case 6: text.insert(at, 1 + Below(2), u' '); break;
        default: text.resize(at); break;
        }
    }

    test_support::RandomText m_random;
    TLocale m_locale;
    std::vector<std::u16string> m_patterns;
};

// One object that reads as it likes and one that asks ICU always.
class Pair
{
public:
    explicit Pair(TString const & name) : m_made(name), m_fast(m_made), m_plain(m_made) { StartAnew(true); }
    explicit Pair(char16_t const * name) : Pair(TString(name)) {}

    void StartAnew(bool cacheFormatter)
    {
        m_fast = m_made;
        m_plain = m_made;
        TLocalePeer::ReadPlainly(m_plain);
        for (TLocale * const locale : {&m_fast, &m_plain}) {
            locale->setParseNative(false);
            locale->setCacheFormatter(cacheFormatter);
        }
    }

    TLocale & Fast() { return m_fast; }

    template <class Operation>
    ::testing::AssertionResult Agree(Operation const & operation)
    {
        DateTime fast = SENTINEL;
        DateTime plain = SENTINEL;
        bool const fastRead = operation(m_fast, fast);
        bool const plainRead = operation(m_plain, plain);
        if (fastRead != plainRead || fast != plain)
            return ::testing::AssertionFailure() << fastRead << " " << fast << " for " << plainRead << " " << plain;
        if (TLocalePeer::GetPattern(m_fast) != TLocalePeer::GetPattern(m_plain))
            return ::testing::AssertionFailure() << TLocalePeer::GetPattern(m_fast).toStdString() << " is left for "
                                                 << TLocalePeer::GetPattern(m_plain).toStdString();
        if (TLocalePeer::CountReadings(m_fast) != TLocalePeer::CountReadings(m_plain) ||
            (TLocalePeer::GetCalendar(m_fast) == nullptr) != (TLocalePeer::GetCalendar(m_plain) == nullptr) ||
            TLocalePeer::ReadNativeLast(m_fast) != TLocalePeer::ReadNativeLast(m_plain))
            return ::testing::AssertionFailure() << "the state differs";
        return ::testing::AssertionSuccess();
    }

private:
    TLocale m_made;
    TLocale m_fast;
    TLocale m_plain;
};

}  // namespace

TEST(DateText, IsPlainIfItsNumbersArePlainDigits)
{
    for (char16_t const * const text :
         {u"", u"2020-01-02", u"May 5, 2020 10:11 PM", u"2020-01-02T03:04:05Z", u"x", u"123456789", u"5 Sep", u"Jan-1"})
        EXPECT_TRUE(DateText(text).IsPlain()) << TString(text).toStdString();
    for (char16_t const * const text : {u"1234567890", u"-5", u"T-1", u"AM-1", u"5--6", u" -5", u"5e3", u"6E", u"NaN",
                                        u"5+6", u"5\u00A06", u"\u0662", u"5'6", u"\t", u"(5)", u"5_6"})
        EXPECT_FALSE(DateText(text).IsPlain()) << TString(text).toStdString();
    EXPECT_TRUE(DateText(std::u16string(100, u'x')).IsPlain());
    EXPECT_FALSE(DateText(std::u16string(101, u'x')).IsPlain());
}

TEST(DateText, IsTrimmedAsTStringTrims)
{
    EXPECT_EQ(DateText::Trimmed(nullptr).View(), u"");
    test_support::RandomText random(37);
    static constexpr std::u16string_view pieces[] = {u" ",      u"\t",     u"\n",     u"\r",     u"\u00A0",
                                                     u"\u3000", u"\u2028", u"\u0085", u"\u200B", u"\uFEFF",
                                                     u"\u001C", u"x",      u"\v",     u"\xD800"};
    for (int i = 0; i < 5000; ++i) {
        std::u16string const text = random.Of(pieces, 6);
        TString expected = TString::fromView(text);
        expected.trim();
        DateText const trimmed = DateText::Trimmed(text.c_str());
        EXPECT_EQ(TString::fromView(trimmed.View()), expected);
        EXPECT_EQ(trimmed.AsTString(), expected);
        EXPECT_EQ(trimmed.IsEmpty(), expected.isEmpty());
    }
}

TEST(DateTextPlan, KnowsThePatternsThatItCanDecide)
{
    for (char16_t const * const pattern :
         {u"yyyy-MM-dd HH:mm:ss.SSS", u"M/d/yy h:mm a", u"yyyyMMdd'T'HHmmss", u"a h", u"dd-MMM", u"y", u"ss.SSSSSS"})
        EXPECT_TRUE(DateTextPlan(pattern).IsKnown()) << TString(pattern).toStdString();
    for (char16_t const * const pattern : {u"", u"EEEE", u"yyyy yyyy", u"h:mm", u"HH:mm a", u"MM MMM", u"yyyy'x'",
                                           u"yyyyy", u"''yyyy", u"dd\u5E74", u"MMMMM", u"yyyyZ", u"H h a"})
        EXPECT_FALSE(DateTextPlan(pattern).IsKnown()) << TString(pattern).toStdString();
    EXPECT_FALSE(DateTextPlan(std::u16string(40, u'-')).IsKnown());
}

TEST(DateTextPlan, AnswersSurelyOrNotAtAll)
{
    DateTextPlan const plan(u"yyyy-MM-dd HH:mm:ss");
    auto const read = [&](char16_t const * text, DateTimeParseOptions options, DateTime & out) {
        return plan.Read(DateText(text), detail::DateSpeech::English, options, DateTime(), out);
    };
    DateTime out = SENTINEL;
    EXPECT_EQ(read(u"2020-02-30 03:04:05", ParseDateAndTime, out), Answer::Fails);
    EXPECT_EQ(read(u"2020-02-28 03:04", ParseDateAndTime, out), Answer::Fails);
    EXPECT_EQ(read(u"2020-02-28 03:04:05", ParseTimeOnly, out), Answer::Unsure);
    EXPECT_EQ(read(u"0399-02-28 03:04:05", ParseDateAndTime, out), Answer::Unsure);
    EXPECT_EQ(read(u"2020-02-28\u00A003:04:05", ParseDateAndTime, out), Answer::Unsure);
    EXPECT_EQ(out, SENTINEL);
    EXPECT_EQ(read(u"2020-2- 28  3:04:05", ParseDateAndTime, out), Answer::Fits);
    EXPECT_EQ(out, DateTime(2020, 2, 28, 3, 4, 5, 0.0));
    EXPECT_EQ(read(u"2020-02-28 03:04:05", ParseDateOnly, out), Answer::Fits);
    EXPECT_EQ(out, DateTime(2020, 2, 28, 0, 0, 0, 0.0));
    DateTextPlan const words(u"MMM d");
    EXPECT_EQ(words.Read(DateText(u"May 5"), detail::DateSpeech::Digits, ParseDateAndTime, DateTime(), out),
              Answer::Unsure);
    EXPECT_EQ(
        plan.Read(DateText(u"2020-02-28 03:04:05"), detail::DateSpeech::Unknown, ParseDateAndTime, DateTime(), out),
        Answer::Unsure);
}

TEST(DateTextPlan, MostTextsAreDecided)
{
    Drawer draw(38, u"en_US");
    int sure = 0;
    int fits = 0;
    int const count = 10000;
    for (int i = 0; i < count; ++i) {
        std::u16string const pattern = draw.Pattern();
        DateTextPlan const plan(pattern);
        std::u16string const text = draw.Text(pattern);
        DateTime out;
        Answer const answer = plan.Read(DateText(text), detail::DateSpeech::English, ParseDateAndTime, DateTime(), out);
        sure += answer != Answer::Unsure;
        fits += answer == Answer::Fits;
    }
    EXPECT_GT(sure, count / 2);
    EXPECT_GT(fits, count / 10);
}

TEST(DateTextPlan, ReadsAPatternAsIcuDoesInEveryLocale)
{
    test_support::QuietLogger const quiet;
    for (char16_t const * const name :
         {u"en_US", u"de_DE", u"fr_FR", u"en_GB", u"ja_JP", u"de_CH", u"hi_IN", u"ar_EG", u"ar_AE", u"sv_SE", u"fa_IR",
          u"zh_CN", u"en_US_POSIX", u"th_TH", u"lt_LT", u"th_TH@calendar=buddhist"})
    {
        Pair pair(name);
        Drawer draw(39, name);
        bool const english = TString(name) == u"en_US";
        int const count = english ? 4 * CountOfTexts() : CountOfTexts() / 10;
        for (int i = 0; i < count; ++i) {
            std::u16string const pattern = draw.Pattern();
            std::u16string const text = draw.Text(pattern);
            auto const options = draw.Below(8) == 0 ? ParseDateOnly : ParseDateAndTime;
            ASSERT_TRUE(pair.Agree([&](TLocale const & locale, DateTime & out) {
                return locale.ParseDateTime(text.c_str(), pattern.c_str(), out, options);
            })) << TString(name).toStdString()
                << " [" << TString::fromView(pattern).toStdString() << "] \"" << TString::fromView(text).toStdString()
                << "\" " << options;
        }
    }
}

// A few texts in each: what would tell a locale apart are its digits, marks and calendar, not the text.
TEST(DateTextPlan, ReadsAsIcuDoesInWhateverLocaleIcuKnows)
{
    test_support::QuietLogger const quiet;
    auto const locales = VelICU::ICULocale::getAvailableLocales();
    Drawer draw(41, u"en_US");
    std::size_t planned = 0;
    for (auto const & icuLocale : locales) {
        TString const name = TString::fromLatin1(icuLocale->getName());
        Pair pair(name);
        for (int i = 0; i < 12; ++i) {
            std::u16string const pattern = i == 0 ? u"yyyy-MM-dd HH:mm:ss" : draw.Pattern();
            std::u16string const text = i == 0 ? u"2021-02-03 14:15:16" : draw.Text(pattern);
            ASSERT_TRUE(pair.Agree([&](TLocale const & locale, DateTime & out) {
                return locale.ParseDateTime(text.c_str(), pattern.c_str(), out, ParseDateAndTime);
            })) << name.toStdString()
                << " [" << TString::fromView(pattern).toStdString() << "] \"" << TString::fromView(text).toStdString()
                << '"';
        }
        planned += TLocalePeer::HasPlan(pair.Fast());
    }
    EXPECT_GT(planned, locales.size() / 2);
}

// By the pattern that is in the formatter already, where a text in the exact form of the pattern is read at once.
TEST(DateTextPlan, ReadsTheSameTextTwiceAsIcuDoes)
{
    struct Case
    {
        char16_t const * pattern;
        char16_t const * text;
    };
    static constexpr Case cases[] = {
        {u"yyyy-MM-dd", u"2020-01-02"},
        {u"yyyy-MM-dd", u" 2020-01-02 "},
        {u"yyyy-MM-dd", u"0399-01-02"},
        {u"yyyy-MM-dd", u"0046-01-02"},
        {u"yyyy-MM-dd", u"0000-01-02"},
        {u"yyyy-MM-dd", u"2100-02-29"},
        {u"yyyy-MM-dd HH:mm:ss.SSS", u"2020-01-02 24:00:00.000"},
        {u"yyyy-MM-dd HH:mm:ss.SSS", u"9999-12-31 23:59:59.999"},
        {u" yyyy-MM-dd", u" 2020-01-02"},
        {u" yyyy-MM-dd", u"2020-01-02"},
        {u"  yyyy-MM-dd", u" 2020-01-02"},
        {u"yyyy-MM-dd ", u"2020-01-02 "},
        {u"yyyy-MM-dd  ", u"2020-01-02 "},
        {u"yyyy-MM-dd.", u"2020-01-02"},
        {u"yyyy-MM-dd'Z'", u"2020-01-02Z"},
        {u"yyyy  MM dd", u"2020 01 02"},
        {u"yyyyMMddHHmmssSSS", u"20200102030405678"},
        {u"yyyyMMddHHmmssSSS", u"20201302030405678"},
        {u"-yyyy-MM-dd", u"-2020-01-02"},
        {u"/yyyy/MM/dd", u"/2020/01/02"},
        {u"MM-dd yyyy", u"01-02 -999"},
        {u"MMMHH", u"Jan-0"},
        {u"d MMMHH:mm", u"5 Jan-0:04"},
        {u"yyyy-MM-dd'TTT'HH", u"2020-01-02TTT-0"},
        {u"yyyy-MM-dd'ZT'HH", u"2020-01-02ZT-0"},
        {u"M'T'HH", u"JanT-0"},
        {u"MMMahh", u"MayAM-0"},
        {u"MMMss", u"Jan-00"},
        {u"MMM'-'HH", u"Jan--0"},
    };
    test_support::QuietLogger const quiet;
    for (char16_t const * const name : {u"en_US", u"de_DE", u"sv_SE", u"ar_EG", u"th_TH@calendar=buddhist"}) {
        Pair pair(name);
        for (Case const & c : cases) {
            pair.StartAnew(true);
            for (int i = 0; i < 3; ++i) {
                ASSERT_TRUE(pair.Agree([&](TLocale const & locale, DateTime & out) {
                    return locale.ParseDateTime(c.text, c.pattern, out, ParseDateAndTime);
                })) << TString(name).toStdString()
                    << " [" << TString(c.pattern).toStdString() << "] \"" << TString(c.text).toStdString() << '"';
            }
            for (auto const options : {ParseDateAndTime, ParseDateOnly, ParseTimeOnly}) {
                ASSERT_TRUE(pair.Agree([&](TLocale const & locale, DateTime & out) {
                    return locale.ParseDateTimeTryAllFormats(c.text, out, options);
                })) << TString(name).toStdString()
                    << " [" << TString(c.pattern).toStdString() << "] \"" << TString(c.text).toStdString() << '"';
            }
        }
    }
}

TEST(DateTextPlan, SearchesAsIcuDoes)
{
    test_support::QuietLogger const quiet;
    for (char16_t const * const name : {u"en_US", u"de_DE", u"en_GB", u"ja_JP", u"ar_EG"}) {
        Pair pair(name);
        Drawer draw(40, name);
        bool const english = TString(name) == u"en_US";
        int const count = english ? CountOfTexts() : CountOfTexts() / 200;
        for (int i = 0; i < count; ++i) {
            if (draw.Below(50) == 0)
                pair.StartAnew(draw.Below(3) != 0);
            std::u16string const text = draw.Text(draw.Pattern());
            std::size_t const kind = draw.Below(8);
            DateTime const reference(draw.Below(20) == 0 ? 250 + 9600 : 2008, 2, 29 - 1, 0, 0, 0, 0.0);
            ASSERT_TRUE(pair.Agree([&](TLocale const & locale, DateTime & out) {
                switch (kind) {
                case 0: return locale.ParseDateTryAllFormats(text.c_str(), out, ParseDateOnly);
                case 1: return locale.ParseDateTimeTryAllFormats(text.c_str(), reference, out, ParseDateAndTime);
                case 2:
                    return locale.ParseDateTryAllFormats(
                        text.c_str(), DateTime::FromValue(reference.GetRepresentation() % 7), out, ParseDateAndTime);
                case 3: {
                    auto const [read, value] = locale.ParseTimeTryAllFormats(TString::fromView(text));
                    out = read ? value : out;
                    return read;
                }
                default: return locale.ParseDateTimeTryAllFormats(text.c_str(), out, ParseDateAndTime);
                }
            })) << TString(name).toStdString()
                << " \"" << TString::fromView(text).toStdString() << "\" " << kind;
        }
    }
}

TEST(DateTextPlan, AFormatThatACallerChangedIsLeftToIcu)
{
    TLocale const locale(u"en_US");
    DateTime out;
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(u"2020-01-02", out, ParseDateAndTime));
    EXPECT_TRUE(TLocalePeer::HasPlan(locale));
    locale.GetFormatterCache()->GetICUDateFormatter().applyPattern(u"yyyy-dd-MM");
    EXPECT_FALSE(TLocalePeer::HasPlan(locale));
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(u"2020-01-02", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(2020, 2, 1, 0, 0, 0, 0.0));
    // Leniency stays with the format, whatever pattern comes.
    locale.GetFormatterCache()->GetICUDateFormatter().setLenient(true);
    EXPECT_TRUE(locale.ParseDateTime(u"2020/1/2", u"yyyy-MM-dd", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(2020, 1, 2, 0, 0, 0, 0.0));
    EXPECT_FALSE(TLocalePeer::HasPlan(locale));
}

TEST(DateTextPlan, ACenturyThatACallerChoseCounts)
{
    TLocale const locale(u"en_US");
    DateTime out;
    EXPECT_TRUE(locale.ParseDateTime(u"05/06/20", u"MM/dd/yy", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(2020, 5, 6, 0, 0, 0, 0.0));
    EXPECT_TRUE(TLocalePeer::HasPlan(locale));
    auto * const format =
        dynamic_cast<VelICU::ICUSimpleDateFormat *>(&locale.GetFormatterCache()->GetICUDateFormatter());
    ASSERT_NE(format, nullptr);
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    constexpr double YEAR_1801 = -5333126400000.0;  // its first moment, in milliseconds
    format->set2DigitYearStart(YEAR_1801, status);
    EXPECT_TRUE(VelICU::ICU_SUCCESS(status));
    EXPECT_FALSE(TLocalePeer::HasPlan(locale));
    // By the pattern in place, and by one that is applied later.
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(u"05/06/20", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(1820, 5, 6, 0, 0, 0, 0.0));
    EXPECT_TRUE(locale.ParseDateTime(u"06.05.21", u"dd.MM.yy", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(1821, 5, 6, 0, 0, 0, 0.0));
}

TEST(DateTextPlan, AFormatterOfTheCallersIsLeftToIcu)
{
    TLocale locale(u"en_US");
    DateTime out;
    EXPECT_TRUE(locale.ParseDateTime(u"05/06/2020", u"MM/dd/yyyy", out, ParseDateAndTime));
    std::unique_ptr<LocaleFormatter const> german =
        std::make_unique<LocaleFormatter const>(TString(u"d. MMMM yyyy"), TLocale(u"de_DE").getICULocale());
    locale.SetFormatterCache(german);
    EXPECT_FALSE(TLocalePeer::HasPlan(locale));
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(u"5. M\u00E4rz 2020", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(2020, 3, 5, 0, 0, 0, 0.0));
    EXPECT_FALSE(locale.ParseDateTime(u"May 5", u"MMM d", out, ParseDateAndTime));
    EXPECT_FALSE(TLocalePeer::HasPlan(locale));
    std::unique_ptr<LocaleFormatter const> none;
    locale.SetFormatterCache(none);
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(u"May 5, 2020", out, ParseDateAndTime));
    EXPECT_TRUE(TLocalePeer::HasPlan(locale));
}

TEST(DateTextPlan, CopiesAndAssignedObjectsForgetThePlan)
{
    TLocale locale(u"en_US");
    DateTime out;
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(u"13/02/2020", out, ParseDateAndTime));
    EXPECT_FALSE(TLocalePeer::HasPlan(TLocale(locale)));
    locale = TLocale(u"ar_EG");
    EXPECT_FALSE(TLocalePeer::HasPlan(locale));
    EXPECT_TRUE(locale.ParseDateTime(u"\u0662\u0660\u0662\u0660", u"yyyy", out, ParseDateAndTime));
}
