#include "velcoredata/utility/DataValueOperators.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <csignal>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "tests/support/AllocationCounter.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValueSamples.h"
#include "velcoredata/utility/DataValueOperatorException.h"
#include "velcoreplatform/ICrashNow.h"

namespace {

using namespace test_support;
using Operators = DataValueOperators;
using Value = DataValue const &;

constexpr char const * kOneType = "DataValueOperatorException_AutoGen_0x5EA10C36";
constexpr char const * kTwoTypes = "DataValueOperatorException_AutoGen_0x5EA10C37";
constexpr long long kLowest = std::numeric_limits<long long>::min();
constexpr long long kHighest = std::numeric_limits<long long>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

DataValue All(DataType type)
{
    return DataValue(DataValueTypes::All, type);
}
DataValue Text(char16_t const * text)
{
    return DataValue(GetBinaryCollation(), text);
}
Operators WithSqlNulls()
{
    Operators operators;
    operators.SetSQLNullSemantics(true);
    return operators;
}

void ExpectSame(Value actual, Value expected)
{
    EXPECT_TRUE(SameFields(actual, expected))
        << testing::PrintToString(actual) << ", not " << testing::PrintToString(expected);
}

TEST(DataValueOperators, PromotesInTheStatedOrder)
{
    Operators const o;
    EXPECT_EQ(o.Promote(DataType::Integer, DataType::Real), DataType::Real);
    EXPECT_EQ(o.Promote(DataType::DateTime, DataType::Date), DataType::DateTime);
    EXPECT_EQ(o.Promote(DataType::Unknown, DataType::Tuple), DataType::Tuple);
    EXPECT_EQ(o.Promote(DataType::Table, DataType::Unknown), DataType::Table);
    EXPECT_EQ(o.Promote(DataType::Unknown, DataType::Unknown), DataType::Unknown);
    EXPECT_THAT([&] { o.Promote(DataType::Integer, DataType::Boolean); },
                ThrowsErrorOf<DataValueOperatorException>(kTwoTypes, "type exception"));
    EXPECT_THAT([&] { o.PromoteWithoutLoss(DataType::Real, DataType::Integer); },
                ThrowsErrorOf<DataValueOperatorException>(kTwoTypes, "type exception"));
    EXPECT_THAT([&] { o.PromoteWithoutLoss(DataType::Unknown, DataType::Integer); }, ThrowsError(kTwoTypes));
}

// Both null semantics side by side on the same operands.
struct NullRow
{
    char const * name;
    DataValue (*run)(Operators &, Value, Value);
    DataValue a;
    DataValue b;
    DataValue plain;
    DataValue sql;
};

TEST(DataValueOperators, BothNullSemanticsSideBySide)
{
    auto const add = [](Operators & o, Value a, Value b) { return o.Add(a, b); };
    auto const multiply = [](Operators & o, Value a, Value b) { return o.Multiply(a, b); };
    auto const divide = [](Operators & o, Value a, Value b) { return o.Divide(a, b); };
    auto const modulo = [](Operators & o, Value a, Value b) { return o.Modulo(a, b); };
    auto const power = [](Operators & o, Value a, Value b) { return o.Power(a, b); };
    auto const max = [](Operators & o, Value a, Value b) { return o.Max(a, b); };
    auto const negate = [](Operators & o, Value a, Value) { return o.Negate(a); };
    auto const abs = [](Operators & o, Value a, Value) { return o.Abs(a); };
    auto const ceil = [](Operators & o, Value a, Value) { return o.Ceil(a); };
    auto const ln = [](Operators & o, Value a, Value) { return o.Ln(a); };
    DataValue const nullInt = Null(DataType::Integer);
    DataValue const nullReal = Null(DataType::Real);
    DataValue const none;
    NullRow const rows[] = {
        {"null + 5", add, nullInt, 5, 5, nullInt},
        {"5 + null", add, 5, nullInt, 5, nullInt},
        {"%all% + null Real", add, All(DataType::Integer), nullReal, 0.0, All(DataType::Real)},
        {"null Real + %all%", add, nullReal, All(DataType::Integer), 0.0, nullReal},
        {"null * 2.5", multiply, nullInt, 2.5, 0.0, nullReal},
        {"typeless null + 2", add, none, 2, 2, nullInt},
        {"null / 2", divide, nullInt, 2, 0, nullInt},
        {"2.0 / null Real", divide, 2.0, nullReal, kInfinity, nullReal},
        {"null % 3", modulo, nullReal, 3, 0, nullInt},
        {"null ^ 0", power, nullInt, 0, 1.0, nullReal},
        {"max(null, -1)", max, nullInt, -1, -1, nullInt},
        {"-null", negate, nullInt, none, 0, nullInt},
        {"-null Real", negate, nullReal, none, -0.0, nullReal},
        {"abs(null)", abs, nullInt, none, nullInt, nullInt},
        {"ceil(null)", ceil, nullInt, none, 0.0, nullReal},
        {"ln(null Integer)", ln, nullInt, none, 0.0, nullInt},
    };
    for (NullRow const & row : rows) {
        SCOPED_TRACE(row.name);
        Operators plain;
        Operators sql = WithSqlNulls();
        ExpectSame(row.run(plain, row.a, row.b), row.plain);
        ExpectSame(row.run(sql, row.a, row.b), row.sql);
    }
}

TEST(DataValueOperators, SqlNullsOfTwoStringsNeedNoArithmeticButTwoTextsDo)
{
    Operators o = WithSqlNulls();
    ExpectSame(o.Add(Null(DataType::String), Text(u"a")), Null(DataType::String));
    EXPECT_THAT([&] { o.Add(Text(u"a"), Text(u"b")); }, ThrowsError(kOneType));
    EXPECT_THAT([&] { o.Add(Null(DataType::String), DataValue(1)); }, ThrowsError(kTwoTypes));
}

TEST(DataValueOperators, ATupleHasNoMarker)
{
    DataValue const tuple = TupleOf({DataValue(1)});
    Operators o;
    EXPECT_THAT([&] { o.Add(DataValue(), tuple); },
                ThrowsError("VeltriaException_AutoGen_0x230EF8C1", "DataValue::MakeSpecial: bad argument"));
    Operators sql = WithSqlNulls();
    EXPECT_THAT([&] { sql.Add(DataValue(), tuple); },
                ThrowsError("VeltriaException_AutoGen_0xC3E581B1", "DataValue::MakeSpecial: bad argument"));
    EXPECT_THAT([&] { o.Cast(Null(DataType::Integer), DataType::Tuple); },
                ThrowsError("VeltriaException_AutoGen_0x230EF8C1", "DataValue::MakeSpecial: bad argument"));
}

TEST(DataValueOperators, AddsSubtractsAndMultipliesWithPromotion)
{
    Operators o;
    ExpectSame(o.Add(1, 2.5), 3.5);
    ExpectSame(o.Subtract(2.5, 1), 1.5);
    ExpectSame(o.Multiply(3, 4), 12);
    ExpectSame(o.Add(DataValue(1.5, 5, 2), DataValue(1.0, 5, 2)), 2.5);  // no precision
    EXPECT_THAT([&] { o.Add(1, true); }, ThrowsErrorOf<DataValueOperatorException>(kTwoTypes, "type exception"));
    EXPECT_THAT([&] { o.Add(true, true); }, ThrowsErrorOf<DataValueOperatorException>(kOneType, "type exception"));
    EXPECT_THAT([&] { o.Add(DataValue(), DataValue()); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.Multiply(Text(u"a"), Text(u"b")); }, ThrowsError(kOneType));
}

TEST(DataValueOperators, IntegersWrap)
{
    Operators o;
    ExpectSame(o.Add(kHighest, 1), kLowest);
    ExpectSame(o.Subtract(kLowest, 1), kHighest);
    ExpectSame(o.Multiply(kHighest, kHighest), 1);
    ExpectSame(o.Negate(kLowest), kLowest);
    ExpectSame(o.Abs(kLowest), kLowest);
}

TEST(DataValueOperators, DivisionTruncatesIntegersAndFollowsIeeeOnReals)
{
    Operators o;
    ExpectSame(o.Divide(7, 2), 3);
    ExpectSame(o.Divide(-7, 2), -3);
    ExpectSame(o.Divide(7.0, 0), kInfinity);
    ExpectSame(o.Divide(7, -0.0), -kInfinity);
    ExpectSame(o.Divide(0.0, 0), kNaN);
    ExpectSame(o.Modulo(-7, 2), -1);
    ExpectSame(o.Modulo(7, -2), 1);
    ExpectSame(o.Modulo(7.9, 2.9), 1);
    ExpectSame(o.Modulo(1e300, 3), kLowest % 3);
    EXPECT_THAT([&] { o.Modulo(true, 2); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.Modulo(2, Text(u"2")); }, ThrowsError(kOneType, "type exception"));
}

TEST(DataValueOperators, PowerIsAlwaysReal)
{
    Operators const o;
    ExpectSame(o.Power(2, 3), 8.0);
    ExpectSame(o.Power(-8.0, 1.0 / 3.0), Null(DataType::Real));
    ExpectSame(o.Power(-8.0, 3), -512.0);
    ExpectSame(o.Power(-8.0, 3.0), -512.0);
    ExpectSame(o.Power(0, 0), 1.0);
    ExpectSame(o.Power(-2, kNaN), Null(DataType::Real));
    ExpectSame(o.Power(-2, kInfinity), kInfinity);
    ExpectSame(o.Power(-0.0, 0.5), 0.0);
    ExpectSame(o.Power(Null(DataType::Integer), 0), 1.0);
    EXPECT_THAT([&] { o.Power(true, 2); }, ThrowsError(kOneType));
    EXPECT_THAT([&] { o.Power(2, Text(u"2")); }, ThrowsError(kOneType));
}

TEST(DataValueOperators, NegateKeepsPrecisionAndAbsLosesItWhereItChangesTheSign)
{
    Operators o;
    ExpectSame(o.Negate(DataValue(1.5, 3, 1)), DataValue(-1.5, 3, 1));
    ExpectSame(o.Negate(DataValue(1.5, 3, -1)), DataValue(-1.5, 3, -1));
    ExpectSame(o.Negate(0.0), -0.0);
    ExpectSame(o.Abs(DataValue(-1.5, 3, 1)), 1.5);
    ExpectSame(o.Abs(DataValue(1.5, 3, 1)), DataValue(1.5, 3, 1));
    ExpectSame(o.Abs(-0.0), -0.0);
    EXPECT_TRUE(std::signbit(o.Abs(-kNaN).GetReal()));
    ExpectSame(o.Abs(-5), 5);
    ExpectSame(o.Abs(All(DataType::String)), All(DataType::String));
    EXPECT_THAT([&] { o.Abs(true); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.Negate(true); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.Negate(DateOf(2020, 1, 1)); }, ThrowsError(kOneType, "type exception"));
}

TEST(DataValueOperators, CeilAndFloorAreAlwaysReal)
{
    Operators const o;
    ExpectSame(o.Ceil(5), 5.0);
    ExpectSame(o.Ceil(1.2), 2.0);
    ExpectSame(o.Ceil(-0.5), -0.0);
    ExpectSame(o.Floor(-1.2), -2.0);
    ExpectSame(o.Floor(DataValue(1.7, 3, 1)), 1.0);
    EXPECT_THAT([&] { o.Ceil(true); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.Floor(Text(u"1")); }, ThrowsError(kOneType, "type exception"));
    ExpectSame(WithSqlNulls().Ceil(All(DataType::Boolean)), All(DataType::Real));
}

TEST(DataValueOperators, TheLogarithmOfANonPositiveNumberIsZero)
{
    Operators const o;
    ExpectSame(o.Ln(0), 0.0);
    ExpectSame(o.Ln(-1.0), 0.0);
    ExpectSame(o.Ln(kNaN), 0.0);
    ExpectSame(o.Ln(kInfinity), kInfinity);
    ExpectSame(o.Ln(1), 0.0);
    ExpectSame(o.ASinh(0), 0.0);
    ExpectSame(o.ASinh(-kInfinity), -kInfinity);
    ExpectSame(WithSqlNulls().ASinh(All(DataType::Boolean)), All(DataType::Boolean));
    EXPECT_THAT([&] { o.Ln(true); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.ASinh(DateOf(2020, 1, 1)); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.Ln(Null(DataType::String)); }, ThrowsError(kOneType));
}

TEST(DataValueOperators, CastKeepsTheSameTypeFieldForField)
{
    Operators const o;
    ExpectSame(o.Cast(DataValue(1.5, 3, 1), DataType::Real), DataValue(1.5, 3, 1));
    DataValue text = Text(u"a");
    text.SetOrdinal(7);
    ExpectSame(o.Cast(text, DataType::String), text);
    ExpectSame(o.Cast(DataValue(1.9, 3, 1), DataType::Integer), 1);
    ExpectSame(o.Cast(-1.9, DataType::Integer), -1);
    ExpectSame(o.Cast(kNaN, DataType::Integer), kLowest);
    ExpectSame(o.Cast(kInfinity, DataType::Integer), kLowest);
    ExpectSame(o.Cast(All(DataType::Integer), DataType::Spatial), All(DataType::Spatial));
    ExpectSame(o.Cast(DatetimeOf(2020, 1, 2, 3, 4, 5), DataType::Date), DateOf(2020, 1, 2));
    ExpectSame(o.Cast(DateOf(2020, 1, 2), DataType::DateTime), DatetimeOf(2020, 1, 2, 0, 0, 0));
    EXPECT_THAT([&] { o.Cast(5, DataType::String); }, ThrowsError(kTwoTypes, "type exception"));
    EXPECT_THAT([&] { o.Cast(5, DataType::Boolean); }, ThrowsError(kTwoTypes));
    EXPECT_THAT([&] { o.Cast(true, DataType::Integer); }, ThrowsError(kOneType));
    EXPECT_THAT([&] { o.Cast(5, DataType::Date); }, ThrowsError(kOneType));
}

TEST(DataValueOperators, ReadersTestTheTypeAlone)
{
    Operators const o;
    EXPECT_EQ(o.AsInt(Null(DataType::Integer)), 0);
    EXPECT_EQ(o.AsReal(Null(DataType::Real)), 0.0);
    EXPECT_EQ(o.AsDate(Null(DataType::Date)), DateTime());
    EXPECT_EQ(o.AsDatetime(Null(DataType::Date)), DateTime());
    EXPECT_EQ(o.AsInt(-9.9), -9);
    EXPECT_EQ(o.AsInt(9.3e18), kLowest);
    EXPECT_EQ(o.AsReal(kHighest), 9223372036854775808.0);
    EXPECT_EQ(o.AsDate(DatetimeOf(2020, 1, 2, 3, 4, 5)), DateTime(2020, 1, 2, 0, 0, 0, 0.0));
    EXPECT_THAT([&] { o.AsInt(Text(u"5")); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.AsReal(true); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.AsDate(5); }, ThrowsError(kOneType, "type exception"));
    EXPECT_THAT([&] { o.AsDatetime(DataValue(Time(1ull), DataType::Time)); }, ThrowsError(kOneType, "type exception"));
}

TEST(DataValueOperators, MakersMakeNormalValues)
{
    Operators const o;
    DateTime const noon(2020, 1, 2, 12, 0, 0, 0.0);
    ExpectSame(o.MakeInt(5), 5);
    ExpectSame(o.MakeReal(5.0), 5.0);
    ExpectSame(o.MakeDate(noon), DatetimeOf(2020, 1, 2, 12, 0, 0));  // a DateTime, not a Date
    ExpectSame(o.MakeDatetime(noon), DatetimeOf(2020, 1, 2, 12, 0, 0));
}

class CrashHook
{
public:
    explicit CrashHook(std::function<void()> hook) : m_before(ICrashNow) { ICrashNow = std::move(hook); }
    ~CrashHook() { ICrashNow = m_before; }

private:
    std::function<void()> m_before;
};

struct Crashed
{};

TEST(DataValueOperators, WithoutThrowTheCrashHookRunsFirstAndTheErrorIsRaisedIfItReturns)
{
    int calls = 0;
    CrashHook const hook([&] { ++calls; });
    Operators o;
    EXPECT_THAT([&] { o.Add(true, true); }, ThrowsError(kOneType, "type exception"));
    EXPECT_EQ(calls, 0);
    o.SetThrow(false);
    EXPECT_THAT([&] { o.Add(true, true); }, ThrowsErrorOf<DataValueOperatorException>(kOneType, "type exception"));
    EXPECT_EQ(calls, 1);
    EXPECT_THAT([&] { o.Compare(DataValue(1), DataValue(true), false); },
                ThrowsErrorOf<DataValueOperatorException>(kTwoTypes));
    EXPECT_EQ(calls, 2);
    ExpectSame(o.Add(1, 2), 3);
    EXPECT_EQ(calls, 2);
    o.SetThrow(true);
    EXPECT_THAT([&] { o.Compare(DataValue(1), DataValue(true), false); }, ThrowsError(kTwoTypes));
    EXPECT_EQ(calls, 2);
}

TEST(DataValueOperators, NothingIsRaisedIfTheCrashHookDoesNotReturn)
{
    CrashHook const hook([] { throw Crashed(); });
    Operators o;
    o.SetThrow(false);
    EXPECT_THROW(o.Negate(true), Crashed);
}

TEST(DataValueOperators, TheFlagsCopyWithTheObject)
{
    Operators sql = WithSqlNulls();
    Operators copy(sql);
    ExpectSame(copy.Add(Null(DataType::Integer), 5), Null(DataType::Integer));
    copy = Operators();
    ExpectSame(copy.Add(Null(DataType::Integer), 5), 5);
}

TEST(DataValueOperatorsDeathTest, AnIntegerDivisionWithoutAResultEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    Operators o;
    struct Row
    {
        DataValue dividend;
        DataValue divisor;
    };
    Row const rows[] = {
        {7, 0}, {0, 0}, {kLowest, -1}, {7, Null(DataType::Integer)}, {7, DataValue()}, {All(DataType::Integer), 0}};
    for (Row const & row : rows) {
        EXPECT_EXIT(o.Divide(row.dividend, row.divisor), testing::KilledBySignal(SIGABRT), "");
        EXPECT_EXIT(o.Modulo(row.dividend, row.divisor.GetDataType() == DataType::Unknown ? DataValue(0) : row.divisor),
                    testing::KilledBySignal(SIGABRT), "");
    }
    EXPECT_EXIT(o.Modulo(7.9, 0.9), testing::KilledBySignal(SIGABRT), "");  // truncated first
    EXPECT_EXIT(o.Modulo(kNaN, -1), testing::KilledBySignal(SIGABRT), "");  // the lowest integer
    EXPECT_EXIT(o.Modulo(7.9, Null(DataType::Real)), testing::KilledBySignal(SIGABRT), "");
}

TEST(DataValueOperators, SqlNullsGuardTheNullDivisor)
{
    Operators o = WithSqlNulls();
    ExpectSame(o.Divide(7, Null(DataType::Integer)), Null(DataType::Integer));
    ExpectSame(o.Modulo(7.9, Null(DataType::Real)), Null(DataType::Integer));
}

TEST(DataValueOperators, NumbersCombineWithoutAllocating)
{
    Operators o;
    DataValue const a(5);
    DataValue const b(2.5);
    AllocationCounter const allocations;
    DataValue const sum = o.Add(a, b);
    DataValue const product = o.Multiply(a, a);
    int const order = o.Compare(a, b, false);
    EXPECT_EQ(allocations.Count(), 0u);
    EXPECT_EQ(sum.GetReal() + static_cast<double>(product.GetInt() + order), 33.5);
}

}  // namespace
