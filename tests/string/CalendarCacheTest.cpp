#include "main/string/CalendarCache.h"

#include <set>
#include <thread>
#include <vector>

#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/DateTime.h"
#include "velcoredata/string/ICUUtils.h"
#include "velicu/ScopedStatusFault.h"

namespace {

using ICUUtils::detail::CalendarCache;
using ICUUtils::detail::CalendarWrapper;

void EmptyPool()
{
    while (CalendarCache::Get().CountWaiting() != 0)
        CalendarCache::Get().Acquire();
}

}  // namespace

TEST(CalendarCache, ACalendarServesTwoUses)
{
    CalendarCache cache;
    EXPECT_EQ(0u, cache.CountWaiting());
    CalendarWrapper const * first = nullptr;
    {
        auto const use = cache.Acquire();
        first = use.get();
        EXPECT_FALSE(use->retired);
        EXPECT_EQ(0u, cache.CountWaiting());
    }
    EXPECT_EQ(1u, cache.CountWaiting());
    std::weak_ptr<CalendarWrapper> watched;
    {
        auto const use = cache.Acquire();
        watched = use;
        EXPECT_EQ(first, use.get());
        EXPECT_FALSE(use->retired);
        EXPECT_EQ(0u, cache.CountWaiting());
    }
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(0u, cache.CountWaiting());
}

TEST(CalendarCache, AWaitingCalendarIsRetired)
{
    CalendarCache cache;
    std::shared_ptr<CalendarWrapper> use = cache.Acquire();
    CalendarWrapper const * const wrapper = use.get();
    use.reset();
    EXPECT_TRUE(wrapper->retired);  // it waits in the queue
    EXPECT_FALSE(cache.Acquire()->retired);
}

TEST(CalendarCache, HoldsAsManyAsThereWereFirstUsesAtOnce)
{
    CalendarCache cache;
    {
        std::vector<std::shared_ptr<CalendarWrapper>> uses;
        std::set<CalendarWrapper *> different;
        for (int i = 0; i < 7; ++i) {
            uses.push_back(cache.Acquire());
            different.insert(uses.back().get());
        }
        EXPECT_EQ(7u, different.size());
    }
    EXPECT_EQ(7u, cache.CountWaiting());
    for (int i = 7; i > 0; --i) {
        cache.Acquire();
        EXPECT_EQ(static_cast<std::size_t>(i - 1), cache.CountWaiting());
    }
}

TEST(CalendarCache, AFirstUseMayOutliveTheCache)
{
    std::shared_ptr<CalendarWrapper> use;
    {
        CalendarCache cache;
        use = cache.Acquire();
    }
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    EXPECT_EQ(0.0, use->calendar->getTime(status));
}

TEST(CalendarCache, ConversionsUseTheProcesssOne)
{
    EmptyPool();
    ICUUtils::ConvertToTDate(DateTime());
    EXPECT_EQ(1u, CalendarCache::Get().CountWaiting());
    ICUUtils::ConvertToTDate(DateTime());
    EXPECT_EQ(0u, CalendarCache::Get().CountWaiting());
    ICUUtils::CreateTDate(1970, 0, 1, 0, 0, 0);
    EXPECT_EQ(1u, CalendarCache::Get().CountWaiting());
}

TEST(CalendarCache, CalendarsAreAmericanGregorianAndStartClear)
{
    CalendarWrapper const wrapper;
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    EXPECT_EQ(0.0, wrapper.calendar->getTime(status));
    EXPECT_EQ(1, wrapper.calendar->getFirstDayOfWeek(status));
    EXPECT_EQ(VelICU::ICUGregorianCalendar::getStaticClassID(), wrapper.calendar->getDynamicClassID());
}

TEST(CalendarCache, ACalendarThatCannotBeBuiltIsAnAssertion)
{
    EmptyPool();
    VelICU::ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
    EXPECT_THAT([] { ICUUtils::ConvertToTDate(DateTime()); },
                ThrowsAssert("VelICU::ICU_SUCCESS(status)", "LogicException_LogicAssert_0x724C7F0E"));
    EXPECT_EQ(0u, CalendarCache::Get().CountWaiting());
    ICUUtils::ConvertToTDate(DateTime());
    EXPECT_EQ(1u, CalendarCache::Get().CountWaiting());
}

TEST(CalendarCache, ThreadsConvertAsOneThreadDoes)
{
    constexpr int threads = 8;
    constexpr int conversions = 2000;
    auto const dateAt = [](int i) {
        return DateTime(1600 + i % 500, 1 + i % 12, 1 + i % 28, i % 24, i % 60, i % 60, 0.0);
    };
    std::vector<double> expected;
    for (int i = 0; i < conversions; ++i)
        expected.push_back(ICUUtils::ConvertToTDate(dateAt(i), true));

    std::vector<int> wrong(threads);
    std::vector<std::thread> running;
    for (int t = 0; t < threads; ++t)
        running.emplace_back([&, t] {
            for (int k = 0; k < conversions; ++k) {
                int const i = (k + t * 251) % conversions;
                if (ICUUtils::ConvertToTDate(dateAt(i), true) != expected[static_cast<std::size_t>(i)])
                    ++wrong[static_cast<std::size_t>(t)];
                if (ICUUtils::CreateTDate(1970, 0, 1 + i, 0, 0, 0) != i * 86400000.0)
                    ++wrong[static_cast<std::size_t>(t)];
            }
        });
    for (std::thread & thread : running)
        thread.join();
    EXPECT_EQ(std::vector<int>(threads), wrong);
    EXPECT_LE(CalendarCache::Get().CountWaiting(), static_cast<std::size_t>(threads + 1));
}

TEST(CalendarCache, NoCalendarIsUsedByTwoThreadsAtOnce)
{
    CalendarCache cache;
    std::vector<std::thread> running;
    for (int t = 0; t < 8; ++t)
        running.emplace_back([&] {
            for (int i = 0; i < 2000; ++i) {
                // Plain writes: the thread sanitizer tells of any sharing.
                auto const use = cache.Acquire();
                AutoSynchronize const lock(use->mutex, 0, __FILE__, "test", __LINE__);
                use->calendar->set(2000 + i % 20, 0, 1);
            }
        });
    for (std::thread & thread : running)
        thread.join();
    EXPECT_LE(cache.CountWaiting(), 8u);
}
