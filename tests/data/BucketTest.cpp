#include "velcoredata/data/Bucket.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <unordered_map>
#include <utility>

#include "tests/support/ValueSamples.h"
#include "velsys/Hash.h"

namespace {

using namespace test_support;

MultiBucket Row(std::vector<DataValue> values)
{
    MultiBucket row;
    for (DataValue const & value : values)
        row.AddBucket(value);
    return row;
}

TEST(Bucket, TheDefaultHoldsATypelessNull)
{
    EXPECT_TRUE(SameFields(Bucket().GetValue(), DataValue(DataValueTypes::Null, DataType::Unknown)));
}

TEST(Bucket, CopiesMovesAndGivesItsValueForChange)
{
    DataValue value(GetBinaryCollation(), u"a");
    Bucket const copied(value);
    EXPECT_EQ(copied.GetValue(), value);
    Bucket moved(std::move(value));
    EXPECT_EQ(moved.GetValue(), copied.GetValue());
    moved.GetValueMutable().SetInt(5);
    EXPECT_EQ(moved.GetValue(), DataValue(5));
    Bucket assigned;
    assigned = moved;
    EXPECT_EQ(assigned, moved);
    Bucket const target(std::move(moved));
    EXPECT_EQ(target, assigned);
}

TEST(Bucket, FollowsTheIdentityOfItsValue)
{
    EXPECT_FALSE(Bucket(DataValue(1)) == Bucket(DataValue(1.0)));
    EXPECT_TRUE(Bucket(DataValue(1)) != Bucket(DataValue(1.0)));
    EXPECT_TRUE(Bucket(DataValue(1)).IsEqual(DataValue(1)));
    EXPECT_TRUE(Bucket(DataValue(1)).IsLess(DataValue(2)));
    EXPECT_TRUE(Bucket(DataValue(1)) < Bucket(DataValue(2.5)));
    EXPECT_EQ(Bucket(DataValue(1)).Hash(), DataValue(1).Hash());
    EXPECT_EQ(std::hash<Bucket>()(DataValue(1)), DataValue(1).Hash());
    EXPECT_TRUE(std::equal_to<Bucket>()(DataValue(1), DataValue(1)));
}

TEST(MultiBucket, ALongerRowCanBeTheLesserOne)
{
    EXPECT_TRUE(Row({1}) < Row({1, 2}));
    EXPECT_FALSE(Row({1, 2}) < Row({1}));
    EXPECT_TRUE(Row({1, 2}) < Row({2}));
    EXPECT_FALSE(Row({2}) < Row({1, 2}));
    EXPECT_TRUE(Row({}) < Row({1}));
    EXPECT_FALSE(Row({1, 2}) < Row({1, 2}));
}

// The first pair that differs by == decides, even if neither is less: unlike a tuple, nothing after it is looked at.
TEST(MultiBucket, TheFirstUnequalPairDecides)
{
    EXPECT_FALSE(Row({1, 2}) < Row({1.0, 3}));
    EXPECT_FALSE(Row({1.0, 3}) < Row({1, 2}));
    EXPECT_FALSE(Row({1, 2}).IsLess(Row({1.0})));
}

TEST(MultiBucket, EqualityIsOfSizesAndPairs)
{
    EXPECT_TRUE(Row({1, 2}) == Row({1, 2}));
    EXPECT_FALSE(Row({1, 2}) == Row({1}));
    EXPECT_TRUE(Row({1, 2}) != Row({2, 1}));
    EXPECT_TRUE(Row({}).IsEqual(MultiBucket()));
}

TEST(MultiBucket, HashIsThatOfATupleOfTheSameValues)
{
    EXPECT_EQ(MultiBucket().Hash(), 0xdeadbeefu);
    EXPECT_EQ(Row({1, true}).Hash(), TupleOf({1, true}).Hash());
    EXPECT_EQ(std::hash<MultiBucket>()(Row({5})), THashCombine32(DataValue(5).Hash(), 0xdeadbeefu));
}

TEST(MultiBucket, GrowsAndClears)
{
    std::vector<Bucket> buckets;
    buckets.push_back(DataValue(1));
    MultiBucket row(std::move(buckets));
    row.Reserve(10);
    row.AddBucket(DataValue(2));
    EXPECT_EQ(row, Row({1, 2}));
    EXPECT_EQ(row.GetBuckets().size(), 2u);
    row.Clear();
    EXPECT_EQ(row, MultiBucket());
    std::unordered_map<MultiBucket, int> groups;
    ++groups[Row({1, 2})];
    ++groups[Row({1, 2})];
    EXPECT_EQ(groups.size(), 1u);
}

}  // namespace
