#include "velcoredata/data/MruCache.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/ErrorMatchers.h"

namespace {

using Cache = MruCache<int, std::string, 1>;

bool Holds(Cache & cache, int key)
{
    std::string value;
    return cache.Lookup(key, value);
}

// A key whose order changes behind the table's back.
struct TrickyKey
{
    int number;
    static inline bool allEqual = false;
    static inline int comparisons = 0;
    friend bool operator<(TrickyKey const & a, TrickyKey const & b)
    {
        if (allEqual && ++comparisons > 1)
            return false;
        return a.number < b.number;
    }
};

}  // namespace

TEST(MruCache, LookupCopiesTheValueAndMovesItToTheFront)
{
    Cache cache(2);
    std::string value = "untouched";
    EXPECT_FALSE(cache.Lookup(1, value));
    EXPECT_EQ(value, "untouched");
    cache.Put(1, "one");
    cache.Put(2, "two");
    EXPECT_TRUE(cache.Lookup(1, value));
    EXPECT_EQ(value, "one");
    cache.Put(3, "three");
    EXPECT_FALSE(Holds(cache, 2));
    EXPECT_TRUE(Holds(cache, 1));
    EXPECT_TRUE(Holds(cache, 3));
}

TEST(MruCache, PutExchangesTheValueAndTheWeight)
{
    Cache cache(10);
    cache.Put(1, "one", 4);
    cache.Put(2, "two", 4);
    EXPECT_TRUE(cache.GetSize() == 8);
    cache.Put(1, "uno", 6);
    EXPECT_TRUE(cache.GetSize() == 10);
    std::string value;
    EXPECT_TRUE(cache.Lookup(1, value));
    EXPECT_EQ(value, "uno");
    cache.Put(1, "eins", 7);
    EXPECT_FALSE(Holds(cache, 2));
    EXPECT_TRUE(cache.GetSize() == 7);
}

TEST(MruCache, WeightsDropAsManyAsNeeded)
{
    Cache cache(5);
    for (int key = 1; key <= 5; ++key)
        cache.Put(key, "x");
    cache.Put(6, "heavy", 4);
    EXPECT_TRUE(cache.GetSize() == 5);
    EXPECT_TRUE(Holds(cache, 5));
    EXPECT_FALSE(Holds(cache, 4));
    EXPECT_TRUE(Holds(cache, 6));
}

TEST(MruCache, AWeightAboveTheMaximumChangesNothing)
{
    Cache cache(3);
    cache.Put(1, "one");
    cache.Put(1, "too heavy", 4);
    cache.Put(2, "too heavy", 4);
    std::string value;
    EXPECT_TRUE(cache.Lookup(1, value));
    EXPECT_EQ(value, "one");
    EXPECT_FALSE(Holds(cache, 2));
}

TEST(MruCache, AWeightOfZeroCountsAsOne)
{
    Cache cache(2);
    cache.Put(1, "one", 0);
    EXPECT_TRUE(cache.GetSize() == 1);
    Cache none(0);
    none.Put(1, "one", 0);  // 0 is not above the maximum, the raised weight is: in and out again
    EXPECT_FALSE(Holds(none, 1));
    EXPECT_TRUE(none.GetSize() == 0);
}

TEST(MruCache, ClearEmptiesTheTable)
{
    Cache cache(3);
    cache.Put(1, "one");
    cache.Clear();
    EXPECT_FALSE(Holds(cache, 1));
    EXPECT_TRUE(cache.GetSize() == 0);
    cache.Put(1, "again");
    EXPECT_TRUE(Holds(cache, 1));
}

TEST(MruCache, AKeyThatIsNeitherFoundNorInsertedAsserts)
{
    MruCache<TrickyKey, int, 1> cache(10);
    cache.Put({1}, 1);
    TrickyKey::comparisons = 0;
    TrickyKey::allEqual = true;
    EXPECT_THAT([&] { cache.Put({2}, 2); },
                ThrowsAssert("result.second == true", "LogicException_LogicAssert_0x4CE9D476"));
    TrickyKey::allEqual = false;
    cache.Put({3}, 3);
    int value = 0;
    EXPECT_TRUE(cache.Lookup({3}, value));
}

TEST(CacheDimensions, SubtractionBelowZeroAsserts)
{
    CacheDimensions<2> a(5);
    a -= 5;
    EXPECT_TRUE(a == CacheDimensions<2>());
    EXPECT_THAT([&] { a -= CacheDimensions<2>(1); },
                ThrowsAssert("m_dimensions[i] >= rhs.m_dimensions[i]", "LogicException_LogicAssert_0x2D8C440D"));
    EXPECT_TRUE((CacheDimensions<2>(3) + CacheDimensions<2>(4)) == CacheDimensions<2>(7));
    EXPECT_TRUE((CacheDimensions<2>(4) - CacheDimensions<2>(3)) == CacheDimensions<2>(1));
    EXPECT_TRUE(IsExceededBy(CacheDimensions<2>(3), CacheDimensions<2>(4)));
    EXPECT_FALSE(IsExceededBy(CacheDimensions<2>(4), CacheDimensions<2>(4)));
}
