#include "velcoredata/utility/FeatureFlags.h"

#include <barrier>
#include <limits>
#include <memory>
#include <random>
#include <thread>
#include <type_traits>
#include <vector>

#include <boost/any.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/AllocationCounter.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/FeatureFlagsScope.h"
#include "tests/support/FreshProcess.h"
#include "tests/support/RecordingLogger.h"
#include "velcoredata/utility/FeatureCatalogue.h"

namespace {

using test_support::FeatureFlagsScope;
using testing::UnorderedElementsAre;

constexpr FeatureFlagId dummy1 = FeatureFlagId::DummyFeature1;
constexpr FeatureFlagId dummy2 = FeatureFlagId::DummyFeature2;
constexpr FeatureFlagId dummy3 = FeatureFlagId::DummyFeature3_Enabled;
constexpr FeatureFlagId dummy4 = FeatureFlagId::DummyFeature4;
constexpr FeatureFlagId unknown{7};
char16_t const * const slot = u"fflags-ctx";

static_assert(sizeof(FeatureFlags) == sizeof(std::unordered_set<FeatureFlagId>));
static_assert(std::is_same_v<std::underlying_type_t<FeatureFlagId>, std::uint32_t>);

std::unordered_set<FeatureFlagId> EnabledIn(FeatureFlags const & flags)
{
    ScopedSession const session;
    CoreThreadContext::SetSessionFeatureFlags(std::make_unique<FeatureFlags>(flags));
    return FeatureFlags::GetEnabled();
}

TEST(FeatureFlags, StartWithTheDefaultsOfTheCatalogue)
{
    EXPECT_THAT(EnabledIn(FeatureFlags()), UnorderedElementsAre(dummy3, dummy4));
}

TEST(FeatureFlags, OutsideASessionTheDefaultsAreOn)
{
    FeatureFlagsScope const restore;
    EXPECT_TRUE(FeatureFlags::IsOn(dummy3));
    EXPECT_TRUE(FeatureFlags::IsOn(dummy4));
    EXPECT_FALSE(FeatureFlags::IsOn(dummy1));
    EXPECT_FALSE(FeatureFlags::IsOn(dummy2));
    EXPECT_FALSE(FeatureFlags::IsOn(FeatureFlagId::WriteMarksForESV));
    EXPECT_THAT(FeatureFlags::GetEnabled(), UnorderedElementsAre(dummy3, dummy4));
}

TEST(FeatureFlags, EnableDisableAndClearChangeTheSet)
{
    FeatureFlags flags;
    flags.Enable(dummy1);
    EXPECT_THAT(EnabledIn(flags), UnorderedElementsAre(dummy1, dummy3, dummy4));
    flags.Enable(dummy1);
    EXPECT_THAT(EnabledIn(flags), UnorderedElementsAre(dummy1, dummy3, dummy4));
    flags.Disable(dummy3);
    EXPECT_THAT(EnabledIn(flags), UnorderedElementsAre(dummy1, dummy4));
    flags.Disable(dummy3);
    EXPECT_THAT(EnabledIn(flags), UnorderedElementsAre(dummy1, dummy4));
    flags.Clear();
    EXPECT_THAT(EnabledIn(flags), UnorderedElementsAre());
}

TEST(FeatureFlags, UnknownIdsRaiseNothing)
{
    FeatureFlagsScope const restore;
    for (FeatureFlagId const id : {unknown, FeatureFlagId(), FeatureFlagId(std::numeric_limits<unsigned>::max())}) {
        EXPECT_FALSE(FeatureFlags::IsOn(id));
        FeatureFlags::GetMutable().Disable(id);
        EXPECT_FALSE(FeatureFlags::IsOn(id));
        FeatureFlags::GetMutable().Enable(id);
        EXPECT_TRUE(FeatureFlags::IsOn(id));
        EXPECT_EQ(FeatureFlags::GetEnabled().count(id), 1u);
    }
}

TEST(FeatureFlags, AreValues)
{
    FeatureFlags flags;
    flags.Enable(dummy1);
    FeatureFlags copy(flags);
    EXPECT_EQ(copy, flags);
    copy.Enable(dummy2);
    EXPECT_NE(copy, flags);
    EXPECT_THAT(EnabledIn(flags), UnorderedElementsAre(dummy1, dummy3, dummy4));
    flags = copy;
    EXPECT_EQ(copy, flags);
    FeatureFlags & self = flags;
    flags = self;
    EXPECT_EQ(copy, flags);
    FeatureFlags const moved(std::move(copy));
    EXPECT_EQ(moved, flags);
    FeatureFlags assigned;
    assigned = FeatureFlags(moved);
    EXPECT_EQ(assigned, flags);
}

TEST(FeatureFlags, AreEqualWhateverTheOrderOfInsertion)
{
    FeatureFlags up;
    FeatureFlags down;
    up.Clear();
    down.Clear();
    for (unsigned i = 0; i < 1000; ++i) {
        up.Enable(FeatureFlagId(i));
        down.Enable(FeatureFlagId(999 - i));
    }
    EXPECT_TRUE(up == down);
    EXPECT_FALSE(up != down);
    down.Disable(FeatureFlagId(500));
    EXPECT_FALSE(up == down);
    EXPECT_TRUE(up != down);
    down.Enable(FeatureFlagId(1000));
    EXPECT_FALSE(up == down);
}

TEST(FeatureFlags, TheObjectOfTheProcessKeepsWhatIsDone)
{
    FeatureFlagsScope const restore;
    FeatureFlags & flags = FeatureFlags::GetMutable();
    EXPECT_EQ(&flags, &FeatureFlags::GetMutable());
    flags.Enable(dummy1);
    flags.Disable(dummy4);
    EXPECT_TRUE(FeatureFlags::IsOn(dummy1));
    EXPECT_FALSE(FeatureFlags::IsOn(dummy4));
    std::thread([] {
        EXPECT_TRUE(FeatureFlags::IsOn(dummy1));
        EXPECT_FALSE(FeatureFlags::IsOn(dummy4));
    }).join();
    flags.Clear();
    EXPECT_TRUE(FeatureFlags::GetEnabled().empty());
}

TEST(FeatureFlags, GetEnabledIsACopy)
{
    FeatureFlagsScope const restore;
    auto enabled = FeatureFlags::GetEnabled();
    enabled.clear();
    EXPECT_TRUE(FeatureFlags::IsOn(dummy3));
}

TEST(SessionFeatureFlags, ASessionWithoutFlagsSeesThoseOfTheProcess)
{
    FeatureFlagsScope const restore;
    ScopedSession const session;
    EXPECT_TRUE(FeatureFlags::IsOn(dummy3));
    FeatureFlags::GetMutable().Enable(dummy1);
    EXPECT_TRUE(FeatureFlagsScope::OfProcess() == FeatureFlags::GetMutable());
    EXPECT_EQ(&FeatureFlagsScope::OfProcess(), &FeatureFlags::GetMutable());
}

TEST(SessionFeatureFlags, ReplaceThoseOfTheProcessAsAWhole)
{
    FeatureFlagsScope const restore;
    FeatureFlags::GetMutable().Enable(dummy1);
    {
        ScopedSession const session;
        auto flags = std::make_unique<FeatureFlags>();
        flags->Clear();
        flags->Enable(dummy2);
        CoreThreadContext::SetSessionFeatureFlags(std::move(flags));
        EXPECT_THAT(FeatureFlags::GetEnabled(), UnorderedElementsAre(dummy2));
        EXPECT_NE(&FeatureFlagsScope::OfProcess(), &FeatureFlags::GetMutable());
        // Later changes stay on their own side.
        FeatureFlagsScope::OfProcess().Enable(unknown);
        EXPECT_FALSE(FeatureFlags::IsOn(unknown));
        FeatureFlags::GetMutable().Enable(dummy4);
        EXPECT_THAT(FeatureFlags::GetEnabled(), UnorderedElementsAre(dummy2, dummy4));
        EXPECT_EQ(&FeatureFlags::GetMutable(), &FeatureFlags::GetMutable());
    }
    EXPECT_THAT(FeatureFlags::GetEnabled(), UnorderedElementsAre(dummy1, dummy3, dummy4, unknown));
}

TEST(SessionFeatureFlags, AreReplacedByAnotherCall)
{
    ScopedSession const session;
    auto first = std::make_unique<FeatureFlags>();
    first->Enable(dummy1);
    CoreThreadContext::SetSessionFeatureFlags(std::move(first));
    EXPECT_TRUE(FeatureFlags::IsOn(dummy1));
    CoreThreadContext::SetSessionFeatureFlags(std::make_unique<FeatureFlags>());
    EXPECT_THAT(FeatureFlags::GetEnabled(), UnorderedElementsAre(dummy3, dummy4));
}

TEST(SessionFeatureFlags, StandByValueUnderTheirName)
{
    ScopedSession const session;
    CoreThreadContext::SetSessionFeatureFlags(std::make_unique<FeatureFlags>());
    std::shared_ptr<boost::any> const object = CoreThreadContext::GetGenericUnsynchronizedObject(slot);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(boost::any_cast<FeatureFlags>(object.get()), &FeatureFlags::GetMutable());
    // What a host puts there by itself counts as well.
    FeatureFlags mine;
    mine.Clear();
    mine.Enable(unknown);
    CoreThreadContext::SetGenericUnsynchronizedObject(slot, std::make_shared<boost::any>(mine));
    EXPECT_THAT(FeatureFlags::GetEnabled(), UnorderedElementsAre(unknown));
}

TEST(SessionFeatureFlags, AnObjectOfAnotherTypeCountsAsNone)
{
    ScopedSession const session;
    std::shared_ptr<boost::any> const others[] = {
        nullptr,
        std::make_shared<boost::any>(),
        std::make_shared<boost::any>(5),
        std::make_shared<boost::any>(std::make_shared<FeatureFlags>()),
        std::make_shared<boost::any>(std::unordered_set<FeatureFlagId>{dummy1}),
    };
    for (auto const & other : others) {
        CoreThreadContext::SetGenericUnsynchronizedObject(slot, other);
        EXPECT_EQ(&FeatureFlags::GetMutable(), &FeatureFlagsScope::OfProcess());
        EXPECT_FALSE(FeatureFlags::IsOn(dummy1));
        EXPECT_TRUE(FeatureFlags::IsOn(dummy3));
    }
}

TEST(SessionFeatureFlags, AreThoseOfTheThreadsOwnSession)
{
    ScopedSession const session;
    auto flags = std::make_unique<FeatureFlags>();
    flags->Enable(dummy1);
    CoreThreadContext::SetSessionFeatureFlags(std::move(flags));
    std::thread([] { EXPECT_FALSE(FeatureFlags::IsOn(dummy1)); }).join();
    std::thread([&] {
        ScopedSession const same(session.GetSession());
        EXPECT_TRUE(FeatureFlags::IsOn(dummy1));
    }).join();
    {
        ScopedSession const other;
        EXPECT_FALSE(FeatureFlags::IsOn(dummy1));
    }
    EXPECT_TRUE(FeatureFlags::IsOn(dummy1));
}

TEST(SessionFeatureFlags, OutsideASessionAreRefusedWithAWarning)
{
    FeatureFlagsScope const restore;
    test_support::RecordingLogger const logger;
    auto flags = std::make_unique<FeatureFlags>();
    flags->Enable(dummy1);
    CoreThreadContext::SetSessionFeatureFlags(std::move(flags));
    EXPECT_FALSE(FeatureFlags::IsOn(dummy1));
    ASSERT_EQ(logger.GetRecords().size(), 1u);
    EXPECT_NE(logger.GetRecords()[0].text.find("fflags-ctx"), std::string::npos);
}

TEST(SessionFeatureFlags, NullIsAnAssertion)
{
    ScopedSession const session;
    CoreThreadContext::SetSessionFeatureFlags(std::make_unique<FeatureFlags>());
    FeatureFlags::GetMutable().Enable(dummy1);
    EXPECT_THAT([] { CoreThreadContext::SetSessionFeatureFlags(nullptr); },
                ThrowsAssert("flags != nullptr", "LogicException_LogicAssert_0x7A1C40E7"));
    EXPECT_TRUE(FeatureFlags::IsOn(dummy1)) << "the flags before stay";
}

TEST(FeatureFlags, ManyThreadsMayReadTheObjectOfTheProcess)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([] {
            for (int n = 0; n < 2000; ++n) {
                EXPECT_TRUE(FeatureFlags::IsOn(dummy3));
                EXPECT_FALSE(FeatureFlags::IsOn(dummy1));
                EXPECT_EQ(FeatureFlags::GetEnabled().size(), 2u);
            }
        });
    for (std::thread & thread : threads)
        thread.join();
}

TEST(FeatureFlags, AskingAllocatesNothing)
{
    auto const ask = [] { return FeatureFlags::IsOn(dummy3) && !FeatureFlags::IsOn(dummy1); };
    ASSERT_TRUE(ask());
    {
        AllocationCounter const allocations;
        EXPECT_TRUE(ask());
        EXPECT_EQ(allocations.Count(), 0u);
    }
    ScopedSession const session;
    CoreThreadContext::SetSessionFeatureFlags(std::make_unique<FeatureFlags>());
    AllocationCounter const allocations;
    EXPECT_TRUE(ask());
    EXPECT_EQ(allocations.Count(), 0u);
}

TEST(FeatureFlagsDeathTest, ThreadsMayBeTheFirstToAskAllAtOnce)
{
    test_support::InFreshProcess([] {
        std::barrier start(8);
        std::vector<FeatureFlags *> seen(8);
        std::vector<std::thread> threads;
        for (FeatureFlags *& mine : seen)
            threads.emplace_back([&start, &mine] {
                start.arrive_and_wait();
                EXPECT_TRUE(FeatureFlags::IsOn(dummy3));
                EXPECT_FALSE(FeatureFlags::IsOn(dummy1));
                mine = &FeatureFlags::GetMutable();
            });
        for (std::thread & thread : threads)
            thread.join();
        for (FeatureFlags * const other : seen)
            EXPECT_EQ(other, seen[0]);
        EXPECT_THAT(FeatureFlags::GetEnabled(), UnorderedElementsAre(dummy3, dummy4));
    });
}

// Code that runs while the process ends may still ask.
TEST(FeatureFlagsDeathTest, TheObjectOfTheProcessOutlivesItsUsers)
{
    test_support::InFreshProcess([] {
        static struct AskedAtExit
        {
            ~AskedAtExit()
            {
                if (!FeatureFlags::IsOn(dummy1) || GetFeatureFlagName(dummy1) != u"DummyFeature1")
                    std::_Exit(2);
            }
        } const asked;
        FeatureFlags::GetMutable().Enable(dummy1);
    });
}

// Sequences of operations against a plain set.
TEST(FeatureFlagsLaws, TheSetIsAPlainSet)
{
    std::mt19937 random(45);
    std::vector<FeatureFlagId> ids = GetAllFeatureFlagIds();
    for (unsigned i = 0; i < 5; ++i)
        ids.push_back(FeatureFlagId(i));
    FeatureFlags flags;
    auto const & defaults = GetDefaultEnabledFeatureIds();
    std::unordered_set<FeatureFlagId> model(defaults.begin(), defaults.end());
    for (int i = 0; i < 10'000; ++i) {
        FeatureFlagId const id = ids[random() % ids.size()];
        FeatureFlags const before(flags);
        if (random() % 2 == 0) {
            flags.Enable(id);
            model.insert(id);
            FeatureFlags twice(flags);
            twice.Enable(id);
            ASSERT_EQ(twice, flags);
            twice.Disable(id);
            FeatureFlags off(before);
            off.Disable(id);
            ASSERT_EQ(twice, off);
        } else {
            flags.Disable(id);
            model.erase(id);
            FeatureFlags twice(flags);
            twice.Disable(id);
            ASSERT_EQ(twice, flags);
        }
        if (random() % 100 == 0) {
            flags.Clear();
            model.clear();
        }
        FeatureFlags expected;
        expected.Clear();
        for (FeatureFlagId const on : model)
            expected.Enable(on);
        ASSERT_EQ(flags, expected);
        if (i % 10 == 0) {
            ASSERT_EQ(EnabledIn(flags), model);
        }
    }
}

}  // namespace
