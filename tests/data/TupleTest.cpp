#include "velcoredata/data/Tuple.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>
#include <type_traits>
#include <vector>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValueSamples.h"
#include "velsys/Hash.h"

namespace {

using namespace test_support;
using TuplePtr = RefCntPtr<Tuple, RefCntObject>;

TuplePtr Make(std::vector<DataValue> members)
{
    return new Tuple(std::move(members));
}

TEST(Tuple, TakesItsMembersByCopyMoveOrOne)
{
    std::vector<DataValue> const members = {1, 2.5};
    TuplePtr const copied(new Tuple(members));
    EXPECT_EQ(copied->GetSize(), 2u);
    EXPECT_EQ(copied->GetValues(), members);
    TuplePtr const one(new Tuple(DataValue(5)));
    EXPECT_EQ(one->GetSize(), 1u);
    EXPECT_EQ(one->GetDataValue(0), DataValue(5));
    EXPECT_EQ(Make({})->GetSize(), 0u);
    static_assert(!std::is_destructible_v<Tuple>);
    static_assert(!std::is_default_constructible_v<Tuple>);
}

TEST(Tuple, AnIndexAtOrPastTheEndRaises)
{
    TuplePtr const tuple = Make({1, 2});
    EXPECT_EQ(tuple->GetDataValue(1), DataValue(2));
    for (unsigned const index : {2u, 3u, 0xFFFFFFFFu})
        EXPECT_THAT([&] { tuple->GetDataValue(index); },
                    ThrowsAssert("size_t(index) < m_values.size()", "LogicException_LogicAssert_0xC28664A1"));
    EXPECT_THAT([&] { Make({})->GetDataValue(0); }, ThrowsAssert("size_t(index) < m_values.size()"));
}

TEST(Tuple, ABuilderFillsDefaultMembersAndClearsTheHash)
{
    detail::TupleBuilder builder(2);
    TuplePtr const tuple = builder.Build();
    EXPECT_TRUE(*tuple == *Make({DataValue(), DataValue()}));
    unsigned const before = tuple->Hash();
    builder.Set(1, DataValue(7));
    EXPECT_NE(tuple->Hash(), before);
    EXPECT_TRUE(*tuple == *Make({DataValue(), 7}));
    EXPECT_THAT([&] { builder.Set(2, DataValue(7)); },
                ThrowsAssert("size_t(idx) < m_values.size()", "LogicException_LogicAssert_0x5E2C5F16"));
    EXPECT_TRUE(*tuple == *Make({DataValue(), 7}));
}

TEST(Tuple, HashCombinesTheMembersInOrder)
{
    EXPECT_EQ(Make({})->Hash(), 0xdeadbeefu);
    EXPECT_EQ(Make({5})->Hash(), THashCombine32(DataValue(5).Hash(), 0xdeadbeefu));
    EXPECT_EQ(Make({5, true})->Hash(),
              THashCombine32(DataValue(true).Hash(), THashCombine32(DataValue(5).Hash(), 0xdeadbeefu)));
    EXPECT_NE(Make({5, true})->Hash(), Make({true, 5})->Hash());
    EXPECT_NE(Make({5})->Hash(), DataValue(5).Hash());
}

TEST(Tuple, AShorterTupleIsLessWhateverItsMembers)
{
    EXPECT_TRUE(*Make({9}) < *Make({1, 1}));
    EXPECT_FALSE(*Make({1, 1}) < *Make({9}));
    EXPECT_TRUE(*Make({}) < *Make({DataValue()}));
    EXPECT_TRUE(*Make({1, 2}) < *Make({1, 3}));
    EXPECT_TRUE(*Make({1, 9}) < *Make({2, 0}));
    EXPECT_FALSE(*Make({1, 2}) < *Make({1, 2}));
    // 1 and 1.0 are neither less nor equal: the next member decides.
    EXPECT_TRUE(*Make({1, 2}) < *Make({1.0, 3}));
    EXPECT_FALSE(*Make({1, 2}) == *Make({1.0, 2}));
    EXPECT_TRUE(*Make({1}) != *Make({2}));
}

TEST(Tuple, MixedNumbersAbove53BitsMakeTheOrderIntransitive)
{
    long long const n = 1LL << 53;
    auto const a = Make({n + 1, 1});
    auto const b = Make({static_cast<double>(n), 2});
    auto const c = Make({n, 3});
    EXPECT_TRUE(*a < *b);
    EXPECT_TRUE(*b < *c);
    EXPECT_FALSE(*a < *c);
}

TEST(Tuple, EqualityNeedsEqualHashes)
{
    // Equal under their collation, but of collations that hash apart.
    Collation const one(u"LEN_RUS_S2", 0);
    EXPECT_TRUE(*Make({DataValue(one, u"a")}) == *Make({DataValue(one, u"A")}));
    EXPECT_EQ(Make({DataValue(one, u"a")})->Hash(), Make({DataValue(one, u"A")})->Hash());
    EXPECT_FALSE(*Make({DataValue(one, u"a")}) == *Make({DataValue(one, u"b")}));
}

DataValue Nested(int depth, DataValue const & core)
{
    DataValue value = core;
    for (int i = 0; i < depth; ++i)
        value = TupleOf({value});
    return value;
}

// Comparing asks each level once, however deep: with two questions a level this would never end.
TEST(Tuple, AThousandLevelsAreDestroyedHashedAndCompared)
{
    DataValue const a = Nested(1000, DataValue(1));
    DataValue const b = Nested(1000, DataValue(1));
    DataValue const c = Nested(1000, DataValue(2));
    EXPECT_TRUE(a == b);
    EXPECT_EQ(a.Hash(), b.Hash());
    EXPECT_FALSE(a < b);
    EXPECT_FALSE(b < a);
    EXPECT_TRUE(a < c);
    EXPECT_FALSE(c < a);
    EXPECT_FALSE(a == c);
}

TEST(Tuple, ThreadsHashOneSharedTuple)
{
    for (int round = 0; round < 50; ++round) {
        std::vector<DataValue> members;
        for (int i = 0; i < 20; ++i) {
            members.push_back(DataValue(i + round));
            members.push_back(DataValue(Collation(u"LEN_RUS_S2", 0), TString::number(i)));
            members.push_back(TupleOf({i, 2.5}));
        }
        unsigned const expected = Make(members)->Hash();
        DataValue const shared = TupleOf(std::move(members));
        std::vector<unsigned> hashes(4);
        std::vector<std::thread> threads;
        for (unsigned & hash : hashes)
            threads.emplace_back([&hash, &shared] {
                DataValue const copy(shared);
                hash = copy.Hash();
            });
        for (std::thread & thread : threads)
            thread.join();
        EXPECT_THAT(hashes, testing::Each(expected));
    }
}

}  // namespace
