// Laws of values, on random values from small ranges.
#include <gtest/gtest.h>

#include <random>
#include <utility>
#include <vector>

#include "tests/support/ValueSamples.h"
#include "velcoredata/data/DataValue.h"

namespace {

using namespace test_support;

std::vector<Collation> Collations()
{
    return {GetBinaryCollation(), Collation(u"LEN_RUS_S2", 0)};
}

TEST(DataValueLaws, EqualValuesHashAlike)
{
    int equal = 0;
    for (Collation const & collation : Collations()) {
        RandomValue random(54, collation);
        for (int i = 0; i < 100000; ++i) {
            DataValue const a = random.Any();
            DataValue const b = random.OfType(a.GetDataType());
            ASSERT_EQ(a == b, b == a);
            ASSERT_TRUE(a == a);
            if (a == b) {
                ++equal;
                ASSERT_EQ(a.Hash(), b.Hash()) << testing::PrintToString(a) << ' ' << testing::PrintToString(b);
            }
        }
    }
    EXPECT_GT(equal, 10000);
}

TEST(DataValueLaws, LessIsIrreflexiveAndAsymmetricForAllPairs)
{
    for (Collation const & collation : Collations()) {
        RandomValue random(55, collation);
        std::vector<DataValue> pool = AllSamples();
        for (int i = 0; i < 500; ++i)
            pool.push_back(random.Any());
        for (DataValue const & a : pool) {
            ASSERT_FALSE(a < a) << testing::PrintToString(a);
            for (DataValue const & b : pool) {
                ASSERT_FALSE(a < b && b < a) << testing::PrintToString(a) << ' ' << testing::PrintToString(b);
                ASSERT_FALSE(a == b && a < b) << testing::PrintToString(a) << ' ' << testing::PrintToString(b);
            }
        }
    }
}

TEST(DataValueLaws, LessIsTransitiveWithinOneTypeWithoutNaN)
{
    for (Collation const & collation : Collations()) {
        RandomValue random(56, collation);
        for (int type = 0; type < kTypes - 1; ++type)
            for (int i = 0; i < 20000; ++i) {
                DataValue const a = random.OfType(TypeOf(type));
                DataValue const b = random.OfType(TypeOf(type));
                DataValue const c = random.OfType(TypeOf(type));
                ASSERT_TRUE(!(a < b && b < c) || a < c) << testing::PrintToString(a) << ' ' << testing::PrintToString(b)
                                                        << ' ' << testing::PrintToString(c);
            }
    }
}

int CountOf(RefCntObject const & object)
{
    object.AddReference();
    return object.RemoveReference();
}

// Random copies, moves, assignments and setters over a row of values, then everything is gone but the originals.
TEST(DataValueLaws, CopiesMovesAndAssignmentsGiveEveryReferenceBack)
{
    RefCntPtr<StringWithCollation, RefCntObject> const text(new StringWithCollation(u"text", GetBinaryCollation()));
    RefCntPtr<Tuple, RefCntObject> const tuple(new Tuple(std::vector<DataValue>{DataValue(text), DataValue(1)}));
    RefCntPtr<BinaryDataValue, RefCntObject> const binary(new BinaryDataValue("abc", 3));
    auto const spatial = MakeSpatial(1, 1);
    int const textCount = CountOf(*text);
    {
        std::mt19937 random(57);
        std::vector<DataValue> values(24);
        auto const any = [&]() -> DataValue & { return values[random() % values.size()]; };
        for (int i = 0; i < 100000; ++i) {
            DataValue & target = any();
            switch (random() % 13) {
            case 0: target = any(); break;
            case 1: target = std::move(any()); break;  // a moved-from value is only assigned to or copied bit by bit
            case 2: target = DataValue(text); break;
            case 3: target.SetTuple(tuple); break;
            case 4: target.SetBinary(binary); break;
            case 5: target.SetSpatial(spatial); break;
            case 6: target.SetString(text); break;
            case 7: target.SetInt(5); break;
            case 8: target.MakeSpecial(DataValueTypes::Null, DataType::String); break;
            case 9: std::swap(target, any()); break;
            case 10: target = TupleOf({any(), any()}); break;
            case 11: {
                DataValue copy(target);
                DataValue const moved(std::move(copy));
                ASSERT_EQ(moved.GetDataType(), target.GetDataType());
                break;
            }
            default: values.erase(values.begin() + static_cast<std::ptrdiff_t>(random() % values.size()));
            }
            while (values.size() < 24)
                values.emplace_back();
            // Tuples of tuples would grow for ever.
            if (i % 50 == 0)
                any().SetReal(2.0);
            if (i % 500 == 0)
                values.assign(24, DataValue(spatial));
        }
    }
    EXPECT_EQ(CountOf(*text), textCount);
    EXPECT_EQ(CountOf(*tuple), 1);
    EXPECT_EQ(CountOf(*binary), 1);
    EXPECT_EQ(spatial.use_count(), 1);
}

}  // namespace
