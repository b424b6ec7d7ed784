#include "velcoredata/utility/FeatureOverrides.h"

#include <algorithm>
#include <random>
#include <type_traits>
#include <unordered_set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/FeatureFlagsScope.h"
#include "velcoredata/utility/FeatureCatalogue.h"

namespace {

using test_support::FeatureFlagsScope;
using testing::ElementsAre;
using testing::IsEmpty;

// The destructor is the only virtual operation: a table pointer and the two lists.
static_assert(std::has_virtual_destructor_v<FeatureOverrides>);
static_assert(sizeof(FeatureOverrides) == sizeof(void *) + 2 * sizeof(std::vector<FeatureFlagId>));

TEST(FeatureOverrides, AreEmptyAtFirst)
{
    FeatureOverrides const overrides;
    EXPECT_LT(&overrides.enabledOverrides, &overrides.disabledOverrides);
    EXPECT_THAT(overrides.enabledOverrides, IsEmpty());
    EXPECT_THAT(overrides.disabledOverrides, IsEmpty());
}

TEST(FeatureOverrides, AreCopiedByMember)
{
    FeatureOverrides overrides;
    overrides.enabledOverrides = {FeatureFlagId(1), FeatureFlagId(2)};
    overrides.disabledOverrides = {FeatureFlagId(3)};
    FeatureOverrides const copy(overrides);
    overrides = FeatureOverrides();
    EXPECT_THAT(overrides.enabledOverrides, IsEmpty());
    EXPECT_THAT(copy.enabledOverrides, ElementsAre(FeatureFlagId(1), FeatureFlagId(2)));
    overrides = copy;
    EXPECT_THAT(overrides.disabledOverrides, ElementsAre(FeatureFlagId(3)));
}

TEST(FeatureOverrides, OfTheDefaultsAreNone)
{
    FeatureFlagsScope const restore;
    FeatureFlags::GetMutable() = FeatureFlags();
    FeatureOverrides const overrides = GetFeatureFlagOverrides();
    EXPECT_THAT(overrides.enabledOverrides, IsEmpty());
    EXPECT_THAT(overrides.disabledOverrides, IsEmpty());
}

TEST(FeatureOverrides, StandInTheOrderOfTheCatalogueWithoutUnknownIds)
{
    FeatureFlagsScope const restore;
    FeatureFlags & flags = FeatureFlags::GetMutable();
    flags.Enable(FeatureFlagId::WriteMarksForESV);
    flags.Enable(FeatureFlagId::DummyFeature2);
    flags.Enable(FeatureFlagId(5));
    flags.Enable(FeatureFlagId::DummyFeature1);
    flags.Disable(FeatureFlagId::DummyFeature4);
    FeatureOverrides const overrides = GetFeatureFlagOverrides();
    EXPECT_THAT(overrides.enabledOverrides, ElementsAre(FeatureFlagId::DummyFeature1, FeatureFlagId::DummyFeature2,
                                                        FeatureFlagId::WriteMarksForESV));
    EXPECT_THAT(overrides.disabledOverrides, ElementsAre(FeatureFlagId::DummyFeature4));
}

TEST(FeatureOverrides, OfAClearedSetAreAllDefaults)
{
    FeatureFlagsScope const restore;
    FeatureFlags::GetMutable().Clear();
    FeatureOverrides const overrides = GetFeatureFlagOverrides();
    EXPECT_THAT(overrides.enabledOverrides, IsEmpty());
    EXPECT_EQ(overrides.disabledOverrides, GetDefaultEnabledFeatureIds());
}

TEST(FeatureOverrides, AreThoseOfTheSession)
{
    FeatureFlagsScope const restore;
    FeatureFlags::GetMutable().Clear();
    ScopedSession const session;
    auto flags = std::make_unique<FeatureFlags>();
    flags->Enable(FeatureFlagId::DummyFeature1);
    CoreThreadContext::SetSessionFeatureFlags(std::move(flags));
    FeatureOverrides const overrides = GetFeatureFlagOverrides();
    EXPECT_THAT(overrides.enabledOverrides, ElementsAre(FeatureFlagId::DummyFeature1));
    EXPECT_THAT(overrides.disabledOverrides, IsEmpty());
}

TEST(FeatureOverridesLaws, PutOnTheDefaultsGiveTheFlagsInForce)
{
    FeatureFlagsScope const restore;
    std::mt19937 random(45);
    auto const & all = GetAllFeatureFlagIds();
    auto const & defaults = GetDefaultEnabledFeatureIds();
    auto const contains = [](std::vector<FeatureFlagId> const & ids, FeatureFlagId id) {
        return std::find(ids.begin(), ids.end(), id) != ids.end();
    };
    for (int i = 0; i < 10'000; ++i) {
        FeatureFlags flags;
        for (std::size_t n = random() % 8; n > 0; --n) {
            FeatureFlagId const id = random() % 4 == 0 ? FeatureFlagId(random() % 3) : all[random() % all.size()];
            random() % 2 == 0 ? flags.Enable(id) : flags.Disable(id);
        }
        FeatureFlags::GetMutable() = flags;
        FeatureOverrides const overrides = GetFeatureFlagOverrides();
        std::unordered_set<FeatureFlagId> applied(defaults.begin(), defaults.end());
        for (FeatureFlagId const id : overrides.enabledOverrides) {
            ASSERT_FALSE(contains(defaults, id));
            ASSERT_FALSE(contains(overrides.disabledOverrides, id));
            applied.insert(id);
        }
        for (FeatureFlagId const id : overrides.disabledOverrides) {
            ASSERT_TRUE(contains(defaults, id));
            applied.erase(id);
        }
        auto enabled = FeatureFlags::GetEnabled();
        for (auto it = enabled.begin(); it != enabled.end();)
            it = contains(all, *it) ? std::next(it) : enabled.erase(it);
        ASSERT_EQ(applied, enabled);
    }
}

}  // namespace
