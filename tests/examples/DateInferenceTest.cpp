#include "typedtable/DateInference.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/QuietLogger.h"
#include "typedtable/ValueText.h"

namespace typedtable {
namespace {

std::shared_ptr<DateColumn const> Infer(char16_t const * locale, std::vector<std::string> const & cells)
{
    test_support::QuietLogger const quiet;
    DateInference inference{TLocale(TString(locale))};
    for (std::string const & cell : cells)
        inference.Look(cell);
    if (!inference.IsDates())
        return nullptr;
    for (std::string const & cell : cells)
        inference.Count(cell);
    return inference.Finish();
}

std::string Read(DateColumn const & dates, std::string const & cell)
{
    test_support::QuietLogger const quiet;
    auto const value = dates.Read(cell);
    return value ? ValueText(*value) : "nothing";
}

TEST(DateInference, ThePatternThatReadsMostCellsWins)
{
    auto const dates = Infer(u"en_US", {"01/02/2020", "13/02/2020", "14/03/2020", "12/31/2020"});
    ASSERT_NE(dates, nullptr);
    EXPECT_EQ(dates->GetWinner().pattern, u"dd/MM/yyyy");
    EXPECT_EQ(dates->GetWinner().cells, 3);
    EXPECT_EQ(dates->GetDisagreeing(), 1);
    ASSERT_NE(dates->GetTwin(), nullptr);
    EXPECT_EQ(dates->GetTwin()->pattern, u"MM/dd/yyyy");
    EXPECT_EQ(dates->GetTwin()->cells, 2);
    EXPECT_EQ(Read(*dates, "01/02/2020"), "2020-02-01");
    EXPECT_EQ(Read(*dates, "12/31/2020"), "2020-12-31");
    EXPECT_EQ(Read(*dates, "31/31/2020"), "nothing");
    EXPECT_EQ(Read(*dates, "  "), "%null%");
}

TEST(DateInference, OfEqualPatternsTheOneFoundFirstWins)
{
    auto const dates = Infer(u"en_US", {"01/02/2020", "03/04/2020"});
    ASSERT_NE(dates, nullptr);
    EXPECT_EQ(dates->GetWinner().pattern, u"MM/dd/yyyy");
    EXPECT_EQ(dates->GetTwin()->cells, 2);
}

TEST(DateInference, ReadingDoesNotDependOnWhatWasReadBefore)
{
    auto const dates = Infer(u"en_US", {"01/02/2020", "13/02/2020", "2020-05-06", "Jan 7, 2020", "Jan 8 2020"});
    ASSERT_NE(dates, nullptr);
    std::string const before = Read(*dates, "01/02/2020");
    EXPECT_EQ(Read(*dates, "Jan 8 2020"), "2020-01-08");
    EXPECT_EQ(Read(*dates, "2020-05-06"), "2020-05-06");
    EXPECT_EQ(Read(*dates, "01/02/2020"), before);
}

TEST(DateInference, ThePlatformsParserTellsNoPattern)
{
    auto const dates = Infer(u"en_US", {"Jan 1 2000"});
    ASSERT_NE(dates, nullptr);
    EXPECT_TRUE(dates->GetWinner().pattern.isEmpty());
    EXPECT_EQ(dates->GetTwin(), nullptr);
    EXPECT_EQ(dates->GetType(), DataType::Date);
}

TEST(DateInference, MoreThanTwelvePatternsAreNone)
{
    std::vector<std::string> cells = {"2020-01-02 03:04:05.678",
                                      "01/02/2020 03:04:05 PM",
                                      "January 02, 2020 03:04:05",
                                      "1/2/2020 03:04:05",
                                      "January 02 2020 03:04PM",
                                      "01-02-2020 03:04",
                                      "2020-01-02 03:04",
                                      "January 02, 2020",
                                      "01-02-2020",
                                      "2020-01-02",
                                      "2020/01/02",
                                      "January 02 2020",
                                      "02-Jan-2020",
                                      "2020-01-02T03:04:05.678Z",
                                      "2020.1.2"};
    EXPECT_EQ(Infer(u"en_US", cells), nullptr);
    cells.resize(3);
    EXPECT_NE(Infer(u"en_US", cells), nullptr);
}

TEST(DateInference, NullsAloneAreNoDates)
{
    EXPECT_EQ(Infer(u"en_US", {"", " "}), nullptr);
    EXPECT_EQ(Infer(u"en_US", {}), nullptr);
}

}  // namespace
}  // namespace typedtable
