#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValueSamples.h"
#include "velcoredata/utility/DataValueOperators.h"

namespace {

using namespace test_support;
using Operators = DataValueOperators;

constexpr char const * kTwoTypes = "DataValueOperatorException_AutoGen_0x5EA10C37";
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kTiny = std::numeric_limits<double>::denorm_min();

DataValue All(DataType type)
{
    return DataValue(DataValueTypes::All, type);
}

struct CompareRow
{
    DataValue a;
    DataValue b;
    int plain;
    int sql;
};

TEST(DataValueOperatorsCompare, BothNullSemanticsSideBySide)
{
    DataValue const nullInt = Null(DataType::Integer);
    CompareRow const rows[] = {
        {1, 1.0, 0, 0},
        {1, 2.5, -1, -1},
        {nullInt, 5, -1, -1},
        {5, nullInt, 1, 1},
        {nullInt, 0, -1, -1},
        {0, All(DataType::Integer), -1, 1},
        {All(DataType::Integer), 0, 1, -1},
        {All(DataType::Integer), nullInt, 1, 1},
        {nullInt, Null(DataType::Real), 0, 0},
        {nullInt, 5.0, -1, -1},
        {Null(DataType::Real), 0.0, 0, -1},  // equal as doubles
        {Null(DataType::Real), DataValue(-1.0), -1, -1},
        {DataValue(), 5, -1, -1},
        {DateOf(2020, 1, 1), DatetimeOf(2020, 1, 1, 0, 0, 0), 0, 0},
        {DateOf(2020, 1, 1), DatetimeOf(2020, 1, 1, 12, 0, 0), -1, -1},
        {false, true, -1, -1},
        {0.0, -0.0, 0, 0},
        {kNaN, kNaN, 0, 0},
        {kNaN, 1.0, 1, 1},
        {1.0, kNaN, 1, 1},
        {kNaN, 1, 1, 1},
    };
    for (CompareRow const & row : rows) {
        Operators sql;
        sql.SetSQLNullSemantics(true);
        EXPECT_EQ(Operators().Compare(row.a, row.b, false), row.plain)
            << testing::PrintToString(row.a) << " and " << testing::PrintToString(row.b);
        EXPECT_EQ(sql.Compare(row.a, row.b, false), row.sql)
            << testing::PrintToString(row.a) << " and " << testing::PrintToString(row.b) << " with SQL nulls";
    }
}

TEST(DataValueOperatorsCompare, WithSqlNullsTheTypesOfMarkersPlayNoPart)
{
    Operators sql;
    sql.SetSQLNullSemantics(true);
    EXPECT_EQ(sql.Compare(Null(DataType::String), 5, false), -1);
    EXPECT_EQ(sql.Compare(Null(DataType::String), All(DataType::Date), false), -1);
    EXPECT_EQ(sql.Compare(5, Null(DataType::String), false), 1);
    EXPECT_THAT([] { Operators().Compare(Null(DataType::String), 5, false); }, ThrowsError(kTwoTypes));
}

TEST(DataValueOperatorsCompare, TypesThatDoNotPromoteRaise)
{
    EXPECT_THAT([] { Operators().Compare(1, DataValue(GetBinaryCollation(), u"1"), false); },
                ThrowsError(kTwoTypes, "type exception"));
    EXPECT_THAT([] { Operators().Max(true, 1); }, ThrowsError(kTwoTypes, "type exception"));
    EXPECT_THAT([] { Operators().Min(DateOf(2020, 1, 1), 1); }, ThrowsError(kTwoTypes, "type exception"));
}

TEST(DataValueOperatorsCompare, BinaryObjectsCompareAsGreaterBothWays)
{
    DataValue const a = BinaryOf({'x'});
    DataValue const b = BinaryOf({'x'});
    EXPECT_EQ(Operators().Compare(a, b, false), 1);
    EXPECT_EQ(Operators().Compare(b, a, false), 1);
    EXPECT_EQ(Operators().Compare(a, DataValue(a), false), 0);
}

TEST(DataValueOperatorsCompare, FuzzyRealsWithinSixteenUnitsAreEqualUnlessPromoted)
{
    auto const above = [](std::int64_t units) {
        return DataValue(std::bit_cast<double>(std::bit_cast<std::int64_t>(1.0) + units));
    };
    Operators const o;
    EXPECT_EQ(o.Compare(1.0, above(1), true), 0);
    EXPECT_EQ(o.Compare(1.0, above(16), true), 0);
    EXPECT_EQ(o.Compare(1.0, above(17), true), -1);
    EXPECT_EQ(o.Compare(above(17), 1.0, true), 1);
    EXPECT_EQ(o.Compare(1.0, above(1), false), -1);
    EXPECT_EQ(o.Compare(1, above(1), true), -1);  // promotion drops the tolerance
    EXPECT_EQ(o.Compare(above(1), 1, true), 1);
}

struct UlpRow
{
    double a;
    double b;
    unsigned ulps;
    int result;
};

TEST(DataValueOperatorsCompare, DoublesByUnitsInTheLastPlace)
{
    double const next = std::nextafter(1.0, 2.0);
    UlpRow const rows[] = {
        {1.0, 1.0, 0, 0},
        {1.0, next, 0, -1},
        {next, 1.0, 0, 1},
        {1.0, next, 1, 0},
        {-1.0, -next, 0, 1},
        {-next, -1.0, 0, -1},
        {-1.0, -next, 1, 0},
        {0.0, -0.0, 0, 0},
        {-1.0, 1.0, 1000, -1},
        {1.0, -1.0, 0xFFFFFFFF, 1},
        {kTiny, -kTiny, 1, 1},
        {kTiny, -kTiny, 2, 0},
        {-kTiny, kTiny, 1, -1},
        {-kTiny, 0.0, 0, -1},
        {-kTiny, 0.0, 1, 0},
        {0.0, -std::numeric_limits<double>::min(), 0xFFFFFFFF, 1},
        {kNaN, kNaN, 0, 0},
        {kNaN, -kNaN, 0xFFFFFFFF, 1},
        {kInfinity, std::numeric_limits<double>::max(), 1, 0},
        {kInfinity, std::numeric_limits<double>::max(), 0, 1},
        {kInfinity, -kInfinity, 0xFFFFFFFF, 1},
        {0.0, kInfinity, 0xFFFFFFFF, -1},
    };
    for (UlpRow const & row : rows)
        EXPECT_EQ(Operators::Compare(row.a, row.b, row.ulps), row.result) << row.a << ' ' << row.b << ' ' << row.ulps;
}

float FloatOf(std::uint32_t bits)
{
    return std::bit_cast<float>(bits);
}

TEST(DataValueOperatorsCompare, FloatsDifferInMaskAndCap)
{
    float const next = std::nextafterf(1.0f, 2.0f);
    EXPECT_EQ(Operators::Compare(1.0f, next, 0u), -1);
    EXPECT_EQ(Operators::Compare(1.0f, next, 1u), 0);
    EXPECT_EQ(Operators::Compare(-1.0f, -next, 0u), 1);
    EXPECT_EQ(Operators::Compare(0.0f, -0.0f, 0u), 0);
    // A biased exponent of 1 is still near the other sign, one of 2 is not.
    EXPECT_EQ(Operators::Compare(FloatOf(0x00800000), FloatOf(0x80000000), 1000000u), 1);
    EXPECT_EQ(Operators::Compare(FloatOf(0x000003E8), FloatOf(0x80000000), 1000u), 0);
    EXPECT_EQ(Operators::Compare(FloatOf(0x80FFFFFF), FloatOf(0x00FFFFFF), 0u), -1);
    EXPECT_EQ(Operators::Compare(FloatOf(0x81000000), FloatOf(0x00000000), 1000000u), -1);
    // A tolerance of two million acts as one million.
    std::uint32_t const one = std::bit_cast<std::uint32_t>(1.0f);
    EXPECT_EQ(Operators::Compare(1.0f, FloatOf(one + 1000000), 2000000u), 0);
    EXPECT_EQ(Operators::Compare(1.0f, FloatOf(one + 1000001), 2000000u), -1);
    EXPECT_EQ(Operators::Compare(1.0f, FloatOf(one + 1000001), 0xFFFFFFFF), -1);
}

TEST(DataValueOperatorsCompare, UlpComparisonIsAntisymmetricAndAgreesWithTheOrderOfReals)
{
    std::mt19937_64 random(4);
    for (int i = 0; i < 100000; ++i) {
        std::uint64_t const bits = random();
        double const a = std::bit_cast<double>(bits);
        double const b = std::bit_cast<double>((i & 1) != 0 ? random() : bits + random() % 40 - 20);
        auto const ulps = static_cast<unsigned>(random() % 20);
        ASSERT_EQ(Operators::Compare(a, b, ulps), -Operators::Compare(b, a, ulps)) << a << ' ' << b;
        if (!std::isnan(a) && !std::isnan(b)) {
            ASSERT_EQ(Operators::Compare(a, b, 0u), a < b ? -1 : (b < a ? 1 : 0)) << a << ' ' << b;
        }
    }
}

TEST(DataValueOperatorsMinMax, TheCopyKeepsItsTypeAndTheRightOneWinsOnEqual)
{
    Operators o;
    EXPECT_TRUE(SameFields(o.Max(1, 0.5), 1));
    EXPECT_TRUE(SameFields(o.Min(1, 0.5), 0.5));
    EXPECT_TRUE(SameFields(o.Max(1, 1.0), 1.0));
    EXPECT_TRUE(SameFields(o.Max(1.0, 1), 1));
    EXPECT_TRUE(SameFields(o.Min(1, 1.0), 1.0));
    EXPECT_TRUE(SameFields(o.Min(1.0, 1), 1));
    EXPECT_TRUE(SameFields(o.Max(DataValue(2.0, 5, 2), 1), DataValue(2.0, 5, 2)));
    // A NaN is above everything on the left, and below it on the right.
    EXPECT_TRUE(SameFields(o.Max(kNaN, 1.0), kNaN));
    EXPECT_TRUE(SameFields(o.Max(1.0, kNaN), 1.0));
    EXPECT_TRUE(SameFields(o.Min(kNaN, 1.0), 1.0));
    EXPECT_TRUE(SameFields(o.Min(1.0, kNaN), kNaN));
    DataValue const upper(Collation(u"LEN_RUS_S2", 0), u"A");
    DataValue const lower(Collation(u"LEN_RUS_S2", 0), u"a");
    EXPECT_EQ(o.Max(upper, lower).GetString(), u"a");
    EXPECT_EQ(o.Min(lower, upper).GetString(), u"A");
}

TEST(DataValueOperatorsMinMax, MarkersByBothSemantics)
{
    Operators plain;
    Operators sql;
    sql.SetSQLNullSemantics(true);
    EXPECT_TRUE(SameFields(plain.Max(Null(DataType::Integer), -1), -1));
    EXPECT_TRUE(SameFields(plain.Min(Null(DataType::Integer), -1), Null(DataType::Integer)));
    EXPECT_TRUE(SameFields(sql.Max(Null(DataType::Integer), -1), Null(DataType::Integer)));
    EXPECT_TRUE(SameFields(sql.Min(2.5, All(DataType::Integer)), All(DataType::Real)));
    EXPECT_THAT([&] { sql.Max(Null(DataType::String), 1); }, ThrowsError(kTwoTypes));
}

}  // namespace
