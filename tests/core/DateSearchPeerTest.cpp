// The search for dates against the plain writing of its steps over ICU, text by text and with what each leaves behind.
//
// VELCOREDATA_DATE_TEXTS is the number of texts for en_US, of which each of the twelve other locales takes a fortieth.
// Without it CTest takes 40000 and 300. The full count is 2000000, with 50000 for each other locale: half an hour.
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tests/support/DateSearchModel.h"
#include "tests/support/DateSearchPair.h"
#include "tests/support/QuietLogger.h"
#include "tests/support/RandomDateText.h"
#include "velcoredata/data/DateTime.h"

namespace {

using test_support::DateSearchModel;
using Pair = test_support::DateSearchPair;
using test_support::RandomDateText;

std::size_t CountOfTexts(bool english)
{
    char const * const text = std::getenv("VELCOREDATA_DATE_TEXTS");
    if (text == nullptr)
        return english ? 40000 : 300;
    std::size_t const count = std::strtoul(text, nullptr, 10);
    return english ? count : count / 40;
}

std::string Utf8(std::u16string_view text)
{
    return TString::fromView(text).toStdString();
}

// Every pattern that a search may try, and some that only callers name.
std::vector<std::u16string> PatternsOf(DateSearchModel const & model, std::string const & icuName)
{
    std::vector<std::u16string> patterns;
    for (int row = 0; row < DateSearchModel::kRows; ++row)
        patterns.emplace_back(DateSearchModel::RowAt(row).formatString);
    for (int i = 0; i < 10; ++i)
        patterns.emplace_back(DateSearchModel::IsoShape(i));
    for (int i = 0; i < 14; ++i)
        patterns.emplace_back(DateSearchModel::TimeShape(i));
    for (int code : {0, 4, 9, 20, 23})
        patterns.push_back(model.FormatString(code));
    icu::Locale const locale((icuName + "@calendar=gregorian").c_str());
    for (int date = 0; date < 4; ++date) {
        for (int time = -1; time < 4; ++time) {
            std::unique_ptr<icu::DateFormat> const format(icu::DateFormat::createDateTimeInstance(
                static_cast<icu::DateFormat::EStyle>(date), static_cast<icu::DateFormat::EStyle>(time), locale));
            icu::UnicodeString pattern;
            dynamic_cast<icu::SimpleDateFormat &>(*format).toPattern(pattern);
            patterns.emplace_back(pattern.getBuffer(), static_cast<std::size_t>(pattern.length()));
        }
    }
    return patterns;
}

struct Tally
{
    std::size_t texts = 0;
    std::size_t read = 0;
    std::set<int> rows;
};

Pair::Step AnyStep(RandomDateText & random)
{
    std::size_t const at = random.Below(20);
    return at < 11   ? Pair::Step::DateTime
           : at < 13 ? Pair::Step::DateTimeFrom
           : at < 15 ? Pair::Step::Date
           : at < 16 ? Pair::Step::DateFrom
           : at < 17 ? Pair::Step::Time
           : at < 19 ? Pair::Step::Pattern
                     : Pair::Step::Native;
}

// Sequences of texts on one object, the same text twice now and then, or one shape again and again.
Tally Compare(char16_t const * name, unsigned seed, std::size_t count)
{
    test_support::QuietLogger const quiet;
    std::string const icuName = TString(name).toStdString();
    Pair pair(name);
    RandomDateText random(seed, icuName + "@calendar=gregorian", PatternsOf(pair.Model(), icuName));
    Tally tally;
    std::u16string text;
    int failures = 0;
    for (; tally.texts < count; ++tally.texts) {
        if (random.OneIn(12))
            pair.StartAnew(!random.OneIn(3), !random.OneIn(5));
        if (!random.OneIn(10))
            text = random.Next();
        Pair::Step const step = AnyStep(random);
        DateTime const reference = random.OneIn(6) ? DateTime::FromValue(random.Below(5000000ull * DateTime::s_scaling))
                                                   : DateTime(1900 + static_cast<int>(random.Below(150)),
                                                              1 + static_cast<int>(random.Below(12)),
                                                              1 + static_cast<int>(random.Below(28)), 5, 6, 7, 0.5);
        auto const options =
            random.OneIn(8) ? static_cast<DateTimeParseOptions>(1 + random.Below(3)) : ParseDateAndTime;
        std::u16string const pattern = random.AnyPattern();
        std::string const difference = pair.Take(step, text, pattern, reference, options);
        if (!difference.empty()) {
            ADD_FAILURE() << Utf8(name) << " text " << tally.texts << " step " << static_cast<int>(step) << " options "
                          << options << " [" << Utf8(text) << "] pattern [" << Utf8(pattern) << "] reference "
                          << reference.GetRepresentation() << ": " << difference;
            pair.StartAnew(true, true);
            if (++failures == 20)
                break;
        }
        tally.read += pair.Read() ? 1 : 0;
        tally.rows.insert(pair.Model().MatchedRow());
    }
    return tally;
}

class DateSearchPeer : public ::testing::TestWithParam<char16_t const *>
{};

}  // namespace

TEST(DateSearchPeer, EnglishOfTheUnitedStatesAnswersAsThePlainSteps)
{
    std::size_t const count = CountOfTexts(true);
    Tally const tally = Compare(u"en_US", 20200102, count);
    ASSERT_EQ(tally.texts, count);
    // The texts reach the table: rows that an earlier one always shadows cannot match.
    EXPECT_GE(tally.rows.size(), 35u);
    EXPECT_GT(tally.read, count / 4);
    EXPECT_LT(tally.read, count - count / 8);
}

TEST_P(DateSearchPeer, TheLocaleAnswersAsThePlainSteps)
{
    std::size_t const count = CountOfTexts(false);
    Tally const tally = Compare(GetParam(), 20200103, count);
    EXPECT_EQ(tally.texts, count);
    EXPECT_GT(tally.read, count / 8);
}

INSTANTIATE_TEST_SUITE_P(OtherLocales, DateSearchPeer,
                         ::testing::Values(u"en_GB", u"de_DE", u"fr_FR", u"es_ES", u"pt_BR", u"ru_RU", u"ja_JP",
                                           u"zh_CN", u"ko_KR", u"ar_EG", u"th_TH", u"hi_IN"));
