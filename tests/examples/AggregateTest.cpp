#include "typedtable/Aggregate.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>

#include "typedtable/UserError.h"
#include "velcoredata/data/Collation.h"

namespace typedtable {
namespace {

using enum AggregateKind;

DataValue Result(AggregateKind kind, DataType type, std::initializer_list<DataValue> values)
{
    Aggregate aggregate(kind, type);
    for (DataValue const & value : values)
        aggregate.Add(value);
    return aggregate.GetResult();
}

DataValue NullOf(DataType type)
{
    return DataValue(DataValueTypes::Null, type);
}

constexpr long long kMost = std::numeric_limits<long long>::max();
constexpr long long kLeast = std::numeric_limits<long long>::min();

TEST(Aggregate, SumsIntegersExactlyThroughPartialSumsBeyond64Bits)
{
    EXPECT_EQ(Result(Sum, DataType::Integer, {1, 2, -4}).GetInt(), -1);
    EXPECT_EQ(Result(Sum, DataType::Integer, {kMost, kMost, kLeast, kLeast, 7}).GetInt(), 5);
    EXPECT_EQ(Result(Sum, DataType::Integer, {kLeast}).GetInt(), kLeast);
}

TEST(Aggregate, RefusesASumOfIntegersBeyond64Bits)
{
    EXPECT_THROW(Result(Sum, DataType::Integer, {kMost, 1}), TableError);
    EXPECT_THROW(Result(Sum, DataType::Integer, {kLeast, -1}), TableError);
}

TEST(Aggregate, CarriesTheRoundingErrorsOfASumOfReals)
{
    Aggregate tenths(Sum, DataType::Real);
    for (int i = 0; i < 10; ++i)
        tenths.Add(DataValue(0.1));
    EXPECT_EQ(tenths.GetResult().GetReal(), 1.0);
    EXPECT_EQ(Result(Sum, DataType::Real, {1e100, 1.0, -1e100}).GetReal(), 1.0);
}

TEST(Aggregate, GivesInfinityForASumOfRealsBeyondThem)
{
    constexpr double most = std::numeric_limits<double>::max();
    EXPECT_EQ(Result(Sum, DataType::Real, {most, most}).GetReal(), std::numeric_limits<double>::infinity());
}

TEST(Aggregate, MeansAreReal)
{
    EXPECT_EQ(Result(Mean, DataType::Integer, {1, 2}).GetReal(), 1.5);
    EXPECT_EQ(Result(Mean, DataType::Integer, {kMost, kMost}).GetReal(), 9223372036854775808.0);
    EXPECT_EQ(Result(Mean, DataType::Real, {0.5, 1.0, NullOf(DataType::Real)}).GetReal(), 0.75);
}

TEST(Aggregate, FindsExtremesOfNumbersAndDates)
{
    EXPECT_EQ(Result(Min, DataType::Integer, {3, -5, 4}).GetInt(), -5);
    EXPECT_EQ(Result(Max, DataType::Integer, {-3, -5}).GetInt(), -3);
    EXPECT_EQ(Result(Min, DataType::Real, {0.5, -0.5}).GetReal(), -0.5);
    EXPECT_EQ(Result(Max, DataType::Real, {-0.5, -1.5}).GetReal(), -0.5);
    DateTime const early(2012, 1, 31, 6, 0, 0, 0.0);
    DateTime const late(2012, 1, 31, 7, 0, 0, 0.0);
    EXPECT_EQ(
        Result(Max, DataType::DateTime, {DataValue::FromDateTime(late), DataValue::FromDateTime(early)}).GetDatetime(),
        late);
    EXPECT_EQ(Result(Min, DataType::Date, {DataValue::FromDate(late), DataValue::FromDate(early)}).GetDate(),
              early.GetDate());
}

TEST(Aggregate, CountsNullsAndPassesThemOverElsewhere)
{
    DataValue const null = NullOf(DataType::Integer);
    EXPECT_EQ(Result(Count, DataType::Integer, {null, 1, null}).GetInt(), 3);
    EXPECT_EQ(Result(Count, DataType::String, {}).GetInt(), 0);
    EXPECT_EQ(Result(Sum, DataType::Integer, {null, 1, null}).GetInt(), 1);
    EXPECT_EQ(Result(Min, DataType::Integer, {null, 1, null}).GetInt(), 1);
}

TEST(Aggregate, OfNothingButNullsIsANullOfItsType)
{
    for (AggregateKind const kind : {Sum, Mean, Min, Max}) {
        DataValue const result = Result(kind, DataType::Integer, {NullOf(DataType::Integer)});
        EXPECT_TRUE(result.IsNull()) << NameOf(kind);
        EXPECT_EQ(result.GetDataType(), ResultType(kind, DataType::Integer)) << NameOf(kind);
    }
}

TEST(Aggregate, FindsExtremesOfBooleansAndOfTextsUnderTheirCollation)
{
    EXPECT_FALSE(Result(Min, DataType::Boolean, {true, false}).GetBool());
    EXPECT_TRUE(Result(Max, DataType::Boolean, {true, false}).GetBool());
    Collation const english(u"LEN_RUS_S2", 0);
    auto const text = [](Collation const & collation, char16_t const * word) { return DataValue(collation, word); };
    EXPECT_EQ(Result(Min, DataType::String, {text(english, u"Zebra"), text(english, u"apple")}).GetString(), u"apple");
    Collation const & binary = GetBinaryCollation();
    EXPECT_EQ(Result(Min, DataType::String, {text(binary, u"Zebra"), text(binary, u"apple")}).GetString(), u"Zebra");
}

TEST(Aggregate, TakesTheFirstOfEqualExtremes)
{
    Collation const english(u"LEN_RUS_S2", 0);
    DataValue const upper(english, u"A");
    DataValue const lower(english, u"a");
    EXPECT_EQ(Result(Min, DataType::String, {upper, lower}).GetString(), u"A");
    EXPECT_EQ(Result(Max, DataType::String, {lower, upper}).GetString(), u"a");
}

TEST(Aggregate, SpreadsNullsThroughEverythingButACount)
{
    for (DataType const type : {DataType::Integer, DataType::Real}) {
        DataValue const number = type == DataType::Integer ? DataValue(1) : DataValue(0.5);
        for (AggregateKind const kind : {Count, Sum, Mean, Min, Max}) {
            for (int const place : {0, 1, 2}) {
                Aggregate aggregate(kind, type, Nulls::Spread);
                for (int i = 0; i < 3; ++i)
                    aggregate.Add(i == place ? NullOf(type) : number);
                DataValue const result = aggregate.GetResult();
                EXPECT_EQ(result.IsNull(), kind != Count) << NameOf(kind) << ' ' << place;
                EXPECT_EQ(result.GetDataType(), ResultType(kind, type)) << NameOf(kind);
            }
            Aggregate aggregate(kind, type, Nulls::Spread);
            aggregate.Add(number);
            EXPECT_FALSE(aggregate.GetResult().IsNull()) << NameOf(kind);
        }
    }
}

TEST(CanAggregate, SumsNumbersAndOrdersEverything)
{
    using enum DataType;
    for (DataType const type : {Integer, Real, Boolean, Date, DataType::DateTime, String}) {
        EXPECT_EQ(CanAggregate(Sum, type), type == Integer || type == Real);
        EXPECT_EQ(CanAggregate(Mean, type), type == Integer || type == Real);
        for (AggregateKind const kind : {Count, Min, Max})
            EXPECT_TRUE(CanAggregate(kind, type));
    }
}

}  // namespace
}  // namespace typedtable
