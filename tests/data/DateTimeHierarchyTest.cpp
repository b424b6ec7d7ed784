#include "velcoredata/data/DateTimeHierarchy.h"

#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"

#include <gtest/gtest.h>

namespace {

char const * const notInHierarchy = "positionInHierarchy != dateAggregations.cend()";

DateTimeHierarchy const & GregorianDates()
{
    return GregorianDateOptions().GetHierarchy(DateDataType::Date, DateComputationKind::Bin);
}

}  // namespace

TEST(DateTimeHierarchy, ALevelStandsBetweenItsNeighbours)
{
    DateTimeHierarchy const & hierarchy = GregorianDates();
    EXPECT_EQ(hierarchy.GetContainingDateAggregation(AGG_MONTH), AGG_QUARTER);
    EXPECT_EQ(hierarchy.GetNestedDateAggregation(AGG_MONTH), AGG_DAY);
    EXPECT_EQ(hierarchy.GetContainingDateAggregation(AGG_DAY), AGG_MONTH);
    EXPECT_EQ(hierarchy.GetNestedDateAggregation(AGG_YEAR), AGG_QUARTER);
}

TEST(DateTimeHierarchy, OnlyTheEndsHaveNoNeighbour)
{
    DateTimeHierarchy const & hierarchy = GregorianDates();
    struct
    {
        AggType level;
        bool hasContaining, hasNested;
    } const rows[] = {
        {AGG_YEAR, false, true}, {AGG_QUARTER, true, true}, {AGG_MONTH, true, true}, {AGG_DAY, true, false}};
    for (auto const & row : rows) {
        EXPECT_EQ(hierarchy.HasContainingDateAggregation(row.level), row.hasContaining) << row.level;
        EXPECT_EQ(hierarchy.HasNestedDateAggregation(row.level), row.hasNested) << row.level;
    }
}

TEST(DateTimeHierarchy, TheNeighbourBeyondAnEndIsAnAssertion)
{
    DateTimeHierarchy const & hierarchy = GregorianDates();
    EXPECT_THAT([&] { hierarchy.GetContainingDateAggregation(AGG_YEAR); },
                ThrowsAssert("positionInHierarchy != m_dateAggregationsSortedFromCoarsestToFinest.cbegin()",
                             "LogicException_LogicAssert_0x7570E5BB"));
    EXPECT_THAT([&] { hierarchy.GetNestedDateAggregation(AGG_DAY); },
                ThrowsAssert("positionInHierarchy != m_dateAggregationsSortedFromCoarsestToFinest.cend()",
                             "LogicException_LogicAssert_0xDC0A00E9"));
}

TEST(DateTimeHierarchy, EveryQuestionButContainsAssertsForALevelOutside)
{
    DateTimeHierarchy const & hierarchy = GregorianDates();
    auto const asserts = ThrowsAssert(notInHierarchy, "LogicException_LogicAssert_0x3B2267A4");
    for (AggType const outside : {AGG_HOUR, AGG_ISO_YEAR, TRUNC_YEAR, static_cast<AggType>(0)}) {
        EXPECT_FALSE(hierarchy.Contains(outside));
        EXPECT_THAT([&] { hierarchy.HasContainingDateAggregation(outside); }, asserts);
        EXPECT_THAT([&] { hierarchy.HasNestedDateAggregation(outside); }, asserts);
        EXPECT_THAT([&] { hierarchy.GetContainingDateAggregation(outside); }, asserts);
        EXPECT_THAT([&] { hierarchy.GetNestedDateAggregation(outside); }, asserts);
    }
}

TEST(DateTimeHierarchy, ContainsTellsTheCalendarsApart)
{
    DateTimeHierarchy const & iso = ISO8601DateOptions().GetHierarchy(DateDataType::Date, DateComputationKind::Bin);
    EXPECT_TRUE(iso.Contains(AGG_ISO_WEEK));
    EXPECT_FALSE(iso.Contains(AGG_MONTH));
    EXPECT_TRUE(GregorianDates().Contains(AGG_MONTH));
    EXPECT_FALSE(GregorianDates().Contains(AGG_ISO_WEEK));
}

TEST(DateTimeHierarchy, MoreDetailedMeansStandingLater)
{
    DateTimeHierarchy const & hierarchy = GregorianDates();
    EXPECT_TRUE(hierarchy.Is(AGG_MONTH).MoreDetailedThan(AGG_YEAR));
    EXPECT_FALSE(hierarchy.Is(AGG_YEAR).MoreDetailedThan(AGG_MONTH));
    EXPECT_FALSE(hierarchy.Is(AGG_MONTH).MoreDetailedThan(AGG_MONTH));
    EXPECT_TRUE(DateTimeHierarchyAggPredicates(hierarchy, AGG_DAY).MoreDetailedThan(AGG_MONTH));
}

TEST(DateTimeHierarchy, MoreDetailedAssertsForItsOwnLevelBeforeTheOther)
{
    DateTimeHierarchy const & hierarchy = GregorianDates();
    EXPECT_THAT(
        [&] { hierarchy.Is(AGG_MONTH).MoreDetailedThan(AGG_HOUR); },
        ThrowsAssert("m_hierarchy.Contains(lessDetailedDateAggregation)", "LogicException_LogicAssert_0x19247530"));
    auto const ownLevel = ThrowsAssert(notInHierarchy, "LogicException_LogicAssert_0xDEECCF43");
    EXPECT_THAT([&] { hierarchy.Is(AGG_HOUR).MoreDetailedThan(AGG_MONTH); }, ownLevel);
    EXPECT_THAT([&] { hierarchy.Is(AGG_HOUR).MoreDetailedThan(AGG_MINUTE); }, ownLevel);
    EXPECT_NO_THROW(hierarchy.Is(AGG_HOUR));
}

TEST(DateTimeHierarchy, TheOrderIsTheCallersAndIsNotChecked)
{
    DateTimeHierarchy const upsideDown({AGG_DAY, AGG_YEAR});
    EXPECT_TRUE(upsideDown.Is(AGG_YEAR).MoreDetailedThan(AGG_DAY));
    EXPECT_EQ(upsideDown.GetNestedDateAggregation(AGG_DAY), AGG_YEAR);
}

TEST(DateTimeHierarchy, OfALevelThatStandsTwiceTheFirstIsFound)
{
    DateTimeHierarchy const twice({AGG_DAY, AGG_YEAR, AGG_DAY});
    EXPECT_EQ(twice.GetNestedDateAggregation(AGG_DAY), AGG_YEAR);
    EXPECT_FALSE(twice.HasContainingDateAggregation(AGG_DAY));
}

TEST(DateTimeHierarchy, CopiesItsListAndCopiesAndMovesLikeAValue)
{
    std::vector<AggType> list = {AGG_YEAR, AGG_MONTH};
    DateTimeHierarchy original(list);
    list.clear();
    DateTimeHierarchy copy(original);
    DateTimeHierarchy assigned({});
    assigned = copy;
    DateTimeHierarchy const moved(std::move(copy));
    DateTimeHierarchy moveAssigned({});
    moveAssigned = std::move(original);
    for (DateTimeHierarchy const * hierarchy : {&std::as_const(assigned), &moved, &std::as_const(moveAssigned)})
        EXPECT_EQ(hierarchy->GetNestedDateAggregation(AGG_YEAR), AGG_MONTH);
}

TEST(DateTimeHierarchy, AnEmptyHierarchyContainsNothing)
{
    DateTimeHierarchy const empty({});
    EXPECT_FALSE(empty.Contains(AGG_YEAR));
    EXPECT_THAT([&] { empty.HasNestedDateAggregation(AGG_YEAR); }, ThrowsAssert(notInHierarchy));
}
