#include "velcoredata/core/RandomCache.h"

#include <gtest/gtest.h>

#include <atomic>
#include <deque>
#include <memory>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

using Cache = RandomCache<int, int>;

int Square(int key)
{
    return key * key;
}

std::set<int> Keys(Cache const & cache, int below)
{
    std::set<int> keys;
    for (int key = 0; key < below; ++key)
        if (cache.Contains(key))
            keys.insert(key);
    return keys;
}

}  // namespace

TEST(RandomCache, MakesAValueOnceAndFindsItAgain)
{
    Cache cache(TStringCore(u"squares"), 10);
    int made = 0;
    auto const compile = [&made](int key) {
        ++made;
        return Square(key);
    };
    EXPECT_EQ(cache.Get(7, compile), 49);
    EXPECT_EQ(cache.Get(7, compile), 49);
    EXPECT_EQ(made, 1);
    EXPECT_EQ(cache.GetLookups(), 2u);
    EXPECT_EQ(cache.GetHits(), 1u);
    EXPECT_EQ(cache.GetName(), u"squares");
}

TEST(RandomCache, CapacityBelowFiveIsFive)
{
    for (unsigned const asked : {0u, 1u, 4u, 5u}) {
        Cache cache(TStringCore(), asked);
        EXPECT_EQ(cache.GetCapacity(), 5u);
        for (int key = 0; key < 20; ++key)
            cache.Get(key, Square);
        EXPECT_EQ(cache.Size(), 5u);
    }
}

TEST(RandomCache, OneOverCapacityEvictsExactlyOneOlderEntry)
{
    Cache cache(TStringCore(), 4096);
    for (int key = 0; key < 4096; ++key)
        cache.Get(key, Square);
    EXPECT_EQ(cache.Size(), 4096u);
    EXPECT_EQ(Keys(cache, 4096).size(), 4096u);
    cache.Get(4096, Square);
    EXPECT_EQ(cache.Size(), 4096u);
    EXPECT_TRUE(cache.Contains(4096));
    EXPECT_EQ(Keys(cache, 4097).size(), 4096u);
}

TEST(RandomCache, TheNewestEntryIsNeverTheVictim)
{
    Cache cache(TStringCore(), 5);
    for (int key = 0; key < 10'000; ++key) {
        cache.Get(key, Square);
        ASSERT_TRUE(cache.Contains(key));
        ASSERT_LE(cache.Size(), 5u);
    }
}

TEST(RandomCache, EveryOlderEntryMayBeTheVictim)
{
    std::set<int> ages;
    Cache cache(TStringCore(), 5);
    std::deque<int> order;
    for (int key = 0; key < 1000; ++key) {
        cache.Get(key, Square);
        order.push_back(key);
        for (std::size_t i = 0; i < order.size(); ++i)
            if (!cache.Contains(order[i])) {
                ages.insert(static_cast<int>(order.size() - 1 - i));
                order.erase(order.begin() + static_cast<std::ptrdiff_t>(i));
                break;
            }
    }
    EXPECT_EQ(ages, (std::set<int>{1, 2, 3, 4, 5}));
}

TEST(RandomCache, SameSequenceOfLookupsHoldsTheSameKeys)
{
    Cache first(TStringCore(), 50);
    Cache second(TStringCore(), 50);
    std::mt19937 random(44);
    for (int draw = 0; draw < 10'000; ++draw) {
        int const key = static_cast<int>(random() % 200);
        ASSERT_EQ(first.Get(key, Square), second.Get(key, Square));
        ASSERT_LE(first.Size(), 50u);
        ASSERT_TRUE(first.Contains(key));
    }
    EXPECT_EQ(Keys(first, 200), Keys(second, 200));
}

TEST(RandomCache, HitsDrawNothing)
{
    Cache plain(TStringCore(), 5);
    Cache withHits(TStringCore(), 5);
    for (int key = 0; key < 200; ++key) {
        plain.Get(key, Square);
        for (int i = 0; i < 3; ++i)
            withHits.Get(key, Square);
    }
    EXPECT_EQ(Keys(plain, 200), Keys(withHits, 200));
}

TEST(RandomCache, RemovesOneKey)
{
    Cache cache(TStringCore(), 10);
    for (int key = 0; key < 5; ++key)
        cache.Get(key, Square);
    EXPECT_TRUE(cache.Remove(1));
    EXPECT_FALSE(cache.Remove(1));
    EXPECT_FALSE(cache.Remove(99));
    EXPECT_EQ(Keys(cache, 5), (std::set<int>{0, 2, 3, 4}));
    EXPECT_TRUE(cache.Remove(4));
    EXPECT_TRUE(cache.Remove(0));
    EXPECT_EQ(cache.Size(), 2u);
    for (int key = 10; key < 100; ++key)
        cache.Get(key, Square);
    EXPECT_EQ(cache.Size(), 10u);
}

TEST(RandomCache, ClearsAllAndGoesOn)
{
    Cache cache(TStringCore(), 10);
    for (int key = 0; key < 30; ++key)
        cache.Get(key, Square);
    cache.Clear();
    EXPECT_EQ(cache.Size(), 0u);
    EXPECT_EQ(Keys(cache, 30), std::set<int>());
    EXPECT_EQ(cache.Get(3, Square), 9);
    EXPECT_EQ(cache.Size(), 1u);
}

TEST(RandomCache, WhatCompileThrowsLeavesTheCacheAsItWas)
{
    Cache cache(TStringCore(), 10);
    EXPECT_THROW(cache.Get(1, [](int) -> int { throw std::runtime_error("no"); }), std::runtime_error);
    EXPECT_FALSE(cache.Contains(1));
    EXPECT_EQ(cache.Get(1, Square), 1);
}

TEST(RandomCache, AValueInUseOutlivesItsEviction)
{
    RandomCache<int, std::shared_ptr<int const>> cache(TStringCore(), 5);
    auto const make = [](int key) { return std::make_shared<int const>(key); };
    auto const held = cache.Get(0, make);
    for (int key = 1; cache.Contains(0); ++key)
        cache.Get(key, make);
    EXPECT_EQ(*held, 0);
    EXPECT_EQ(held.use_count(), 1);
}

TEST(RandomCache, CompilesOutsideItsLock)
{
    Cache cache(TStringCore(), 10);
    cache.Get(1, [&cache](int key) { return cache.Get(key + 1, Square) + static_cast<int>(cache.Size()); });
    EXPECT_EQ(cache.Get(1, Square), 5);
}

TEST(RandomCache, WhenTwoThreadsMissAtOnceTheFirstValueStays)
{
    Cache cache(TStringCore(), 10);
    // The other thread's lookup comes to an end while this one compiles.
    int const got = cache.Get(1, [&cache](int) {
        std::thread([&cache] { cache.Get(1, [](int) { return 100; }); }).join();
        return 200;
    });
    EXPECT_EQ(got, 100);
    EXPECT_EQ(cache.Size(), 1u);
    EXPECT_EQ(cache.Get(1, Square), 100);
}

TEST(RandomCache, EightThreadsOnFiveThousandKeysGetTheValuesOfTheirKeys)
{
    Cache cache(TStringCore(), 1000);
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (unsigned t = 0; t < 8; ++t)
        threads.emplace_back([&cache, &wrong, t] {
            std::mt19937 random(t);
            for (int draw = 0; draw < 20'000; ++draw) {
                int const key = static_cast<int>(random() % 5000);
                if (cache.Get(key, Square) != Square(key))
                    ++wrong;
                if (draw % 1000 == 999)
                    cache.Remove(key);
            }
        });
    for (auto & thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
    for (int key = 0; key < 5000; ++key)
        cache.Get(key, Square);
    EXPECT_EQ(cache.Size(), 1000u);
    EXPECT_EQ(Keys(cache, 5000).size(), 1000u);
}
