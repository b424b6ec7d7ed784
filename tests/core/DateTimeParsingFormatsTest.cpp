#include "velcoredata/core/DateTimeParsingFormats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>

#include "main/core/DateTimeParsingRows.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoreplatform/TString.h"

using namespace test_support;

namespace {

constexpr char const * CONDITION =
    "fmt < DateTimeParsingFormats::DateFormat_End && fmt >= DateTimeParsingFormats::DateFormat_1";

}  // namespace

TEST(DateTimeParsingFormats, IdentifiersCountFromZeroToSeventy)
{
    EXPECT_EQ(static_cast<int>(DateTimeParsingFormats::DateFormat_1), 0);
    EXPECT_EQ(static_cast<int>(DateTimeParsingFormats::DateFormat_5), 4);
    EXPECT_EQ(static_cast<int>(DateTimeParsingFormats::DateFormat_70), 69);
    EXPECT_EQ(static_cast<int>(DateTimeParsingFormats::DateFormat_End), 70);
}

TEST(DateTimeParsingFormats, TheTableHasSeventyFourRowsOfWhichFiftyThreeAreSearched)
{
    auto const rows = detail::DateTimeParsingRows();
    ASSERT_EQ(rows.size(), 74u);
    EXPECT_EQ(std::count_if(rows.begin(), rows.end(), [](auto const & row) { return row.tryAll; }), 53);
}

TEST(DateTimeParsingFormats, BothLookupsAnswerTheTable)
{
    for (int id = 0; id < 70; ++id) {
        auto const fmt = static_cast<DateTimeParsingFormats>(id);
        TString const formatString = LookupDateTimeParsingFormatString(fmt);
        EXPECT_EQ(formatString, TString(detail::DateTimeParsingRows()[static_cast<std::size_t>(id)].formatString));
        TString expected = formatString;
        if (id == 25 || id == 26 || id == 34)
            expected.replace(TString(u"'Z'"), TString(u"Z"));
        EXPECT_EQ(TString(LookupDateTimeParsingPattern(fmt)), expected) << id;
        EXPECT_EQ(formatString.contains(TString(u"'Z'")), id == 25 || id == 26 || id == 34) << id;
    }
}

TEST(DateTimeParsingFormats, RowsWithoutAnIdentifierAreRefusedThoughTheyExist)
{
    EXPECT_EQ(TString(detail::DateTimeParsingRows()[70].formatString), TString(u"yyyy"));
    for (int const id : {70, 71, 72, 73, 74, -1, INT_MIN, INT_MAX}) {
        auto const fmt = static_cast<DateTimeParsingFormats>(id);
        EXPECT_THAT([&] { LookupDateTimeParsingFormatString(fmt); },
                    ThrowsAssert(CONDITION, "LogicException_LogicAssert_0xCB022B26"))
            << id;
        EXPECT_THAT([&] { LookupDateTimeParsingPattern(fmt); },
                    ThrowsAssert(CONDITION, "LogicException_LogicAssert_0x5f87753b"))
            << id;
    }
}
