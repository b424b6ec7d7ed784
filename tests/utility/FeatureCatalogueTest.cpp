#include "velcoredata/utility/FeatureCatalogue.h"

#include <barrier>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/AllocationCounter.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/FreshProcess.h"

namespace {

using testing::ElementsAre;

struct ColumnsOfFlag
{
    FeatureFlagId id;
    unsigned number;
    int maturity;
    bool enabledByDefault;
    char16_t const * team;
    char16_t const * scrumAlias;
    char16_t const * tfsId;
    char16_t const * removalDate;
    char16_t const * toggleRequirement;
    char16_t const * name;
    char16_t const * description;
};

// The flags that code of this library or its callers' tests read.
ColumnsOfFlag const known[] = {
    {FeatureFlagId::DummyFeature1, 14083698, 1, false, u"TestFlag", u"TestFlag", u"000000", u"", u"none",
     u"DummyFeature1", u"Dummy feature flag 1, used for testing"},
    {FeatureFlagId::DummyFeature2, 622279639, 1, false, u"TestFlag", u"TestFlag", u"", u"", u"none", u"DummyFeature2",
     u"Dummy feature flag 2, used for testing"},
    {FeatureFlagId::DummyFeature3_Enabled, 1113916174, 4, true, u"TestFlag", u"TestFlag", u"", u"", u"none",
     u"DummyFeature3_Enabled", u"Dummy feature flag 3, used for testing"},
    {FeatureFlagId::DummyFeature4, 1562627884, 3, true, u"TestFlag", u"TestFlag", u"", u"", u"none", u"DummyFeature4",
     u"Dummy feature flag 4, used for testing"},
    {FeatureFlagId::WriteMarksForESV, 4110945375, 1, false, u"File Format", u"FileFormatTeam", u"912489", u"2019-11-5",
     u"restart", u"WriteMarksForESV", u"Add ESV_MARKED[<value>] around DataValue formatting."},
};

TEST(FeatureCatalogue, KnownFlagsHaveTheirColumns)
{
    for (ColumnsOfFlag const & flag : known) {
        SCOPED_TRACE(flag.number);
        EXPECT_EQ(static_cast<unsigned>(flag.id), flag.number);
        EXPECT_EQ(GetFeatureFlagName(flag.id), flag.name);
        EXPECT_EQ(GetFeatureFlagDescription(flag.id), flag.description);
        EXPECT_EQ(GetFeatureTeam(flag.id), flag.team);
        EXPECT_EQ(GetFeatureScrumAlias(flag.id), flag.scrumAlias);
        EXPECT_EQ(GetTFSId(flag.id), flag.tfsId);
        EXPECT_EQ(GetFeatureFlagRemovalDate(flag.id), flag.removalDate);
        EXPECT_EQ(GetFeatureToggleRequirement(flag.id), flag.toggleRequirement);
        EXPECT_EQ(static_cast<int>(GetFeatureMaturity(flag.id)), flag.maturity);
        EXPECT_EQ(GetDefaultFeatureIdLookup().GetId(flag.name), flag.id);
    }
}

TEST(FeatureCatalogue, IdsStandInTheOrderOfTheTable)
{
    EXPECT_THAT(GetAllFeatureFlagIds(),
                ElementsAre(FeatureFlagId(14083698), FeatureFlagId(622279639), FeatureFlagId(1113916174),
                            FeatureFlagId(1562627884), FeatureFlagId(4110945375)));
}

TEST(FeatureCatalogue, OnlyTheDefaultColumnSaysWhatIsOnByDefault)
{
    EXPECT_THAT(GetDefaultEnabledFeatureIds(),
                ElementsAre(FeatureFlagId::DummyFeature3_Enabled, FeatureFlagId::DummyFeature4));
}

TEST(FeatureCatalogue, AnUnknownIdIsAnAssertionInEveryColumn)
{
    auto const unknown = ThrowsAssert("it != std::cend(GetFeatureInfos())", "LogicException_LogicAssert_0x7A1C40E6");
    for (unsigned const number : {0u, 1u, 14083697u, 14083699u, std::numeric_limits<unsigned>::max()}) {
        FeatureFlagId const id{number};
        SCOPED_TRACE(number);
        EXPECT_THAT([&] { GetFeatureFlagName(id); }, unknown);
        EXPECT_THAT([&] { GetFeatureFlagDescription(id); }, unknown);
        EXPECT_THAT([&] { GetFeatureTeam(id); }, unknown);
        EXPECT_THAT([&] { GetFeatureScrumAlias(id); }, unknown);
        EXPECT_THAT([&] { GetTFSId(id); }, unknown);
        EXPECT_THAT([&] { GetFeatureFlagRemovalDate(id); }, unknown);
        EXPECT_THAT([&] { GetFeatureToggleRequirement(id); }, unknown);
        EXPECT_THAT([&] { GetFeatureMaturity(id); }, unknown);
    }
}

TEST(FeatureCatalogueDeathTest, RowsAreBuiltAtTheFirstCallAndNeverAgain)
{
    test_support::InFreshProcess([] {
        AllocationCounter allocations;
        GetFeatureFlagName(FeatureFlagId::DummyFeature1);
        EXPECT_GT(allocations.Count(), 5u);  // the vector, and several texts a row
        allocations.Reset();
        for (ColumnsOfFlag const & flag : known)
            GetFeatureFlagName(flag.id);
        EXPECT_EQ(allocations.Count(), 0u);
        GetAllFeatureFlagIds();
        GetDefaultEnabledFeatureIds();
        GetDefaultFeatureIdLookup();
        allocations.Reset();
        GetAllFeatureFlagIds();
        GetDefaultEnabledFeatureIds();
        GetDefaultFeatureIdLookup();
        EXPECT_EQ(allocations.Count(), 0u);
    });
}

TEST(FeatureCatalogueDeathTest, ThreadsMayBeTheFirstToAskAllAtOnce)
{
    test_support::InFreshProcess([] {
        struct Seen
        {
            void const * all;
            void const * enabled;
            void const * lookup;
            void const * name;
        };
        std::barrier start(8);
        std::vector<Seen> seen(8);
        std::vector<std::thread> threads;
        for (Seen & mine : seen)
            threads.emplace_back([&start, &mine] {
                start.arrive_and_wait();
                mine.lookup = &GetDefaultFeatureIdLookup();
                mine.all = &GetAllFeatureFlagIds();
                mine.enabled = &GetDefaultEnabledFeatureIds();
                mine.name = &GetFeatureFlagName(FeatureFlagId::DummyFeature4);
            });
        for (std::thread & thread : threads)
            thread.join();
        for (Seen const & other : seen) {
            EXPECT_EQ(other.all, seen[0].all);
            EXPECT_EQ(other.enabled, seen[0].enabled);
            EXPECT_EQ(other.lookup, seen[0].lookup);
            EXPECT_EQ(other.name, seen[0].name);
        }
        EXPECT_EQ(GetAllFeatureFlagIds().size(), 5u);
    });
}

}  // namespace
