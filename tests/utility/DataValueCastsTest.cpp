// Explicit casts and numbers in text.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "tests/support/AllocationCounter.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/RandomText.h"
#include "tests/support/ThrowCounter.h"
#include "tests/support/ValuePrinters.h"
#include "tests/support/ValueSamples.h"
#include "velcoredata/core/LocalStrings.h"
#include "velcoredata/utility/DataValueOperatorException.h"
#include "velcoredata/utility/DataValueOperators.h"
#include "velgeo/Spatial.h"

using namespace test_support;

namespace {

DataValue Cast(DataValue const & value, DataType target)
{
    return DataValueOperators().ExplicitCast(value, target);
}

DataValue Text(char16_t const * text)
{
    return DataValue(GetBinaryCollation(), text);
}

DataValue Error(DataType type)
{
    return DataValue(DataValueTypes::Error, type);
}

DataValue UnknownText(char16_t const * text)
{
    return DataValue::FromString(TString(text));
}

void ExpectSame(DataValue const & actual, DataValue const & expected)
{
    EXPECT_TRUE(actual == expected && actual.GetPrecision() == expected.GetPrecision() &&
                actual.GetScale() == expected.GetScale() && actual.GetCollation() == expected.GetCollation())
        << testing::PrintToString(actual) << " in place of " << testing::PrintToString(expected);
}

}  // namespace

TEST(ExplicitCast, TheSameTypeIsACopyFieldForField)
{
    for (DataValue const & value : AllSamples()) {
        DataValue const copy = Cast(value, value.GetDataType());
        EXPECT_TRUE(SameFields(copy, value)) << testing::PrintToString(value);
    }
    DataValue text = Text(u"x");
    text.SetOrdinal(7);
    EXPECT_EQ(Cast(text, DataType::String).GetOrdinal(), 7);
}

TEST(ExplicitCast, AMarkerStaysUnderEveryCast)
{
    for (DataValue const & value : AllMarkers()) {
        if (!value.IsSpecial())
            continue;
        for (int target = 0; target < kTypes; ++target) {
            if (TypeOf(target) == value.GetDataType())
                continue;
            if (TypeOf(target) == DataType::Tuple)
                EXPECT_THAT([&] { Cast(value, DataType::Tuple); },
                            ThrowsError("VeltriaException_AutoGen_0x230EF8C1", "DataValue::MakeSpecial: bad argument"));
            else
                ExpectSame(Cast(value, TypeOf(target)), DataValue(value.GetSpecial(), TypeOf(target)));
        }
    }
    // Semantics and the throw switch have no part in it.
    DataValueOperators operators;
    operators.SetSQLNullSemantics(true);
    operators.SetThrow(false);
    ExpectSame(operators.ExplicitCast(Null(DataType::Integer), DataType::String), Null(DataType::String));
    ExpectSame(operators.ExplicitCast(Text(u"abc"), DataType::Integer), Error(DataType::Integer));
}

// The matrix with one value of each type; "same" where a copy is due.
TEST(ExplicitCast, EveryCellOfTheMatrix)
{
    DataValue const error;
    struct Row
    {
        DataValue value;
        DataValue integer, real, text, dateTime, date, spatial;
    };
    auto const e = [](DataType type) { return Error(type); };
    DateTime const second(1900, 1, 2, 12, 0, 0, 0.0);
    Row const rows[] = {
        {DataValue(1), DataValue(1), DataValue(1.0), UnknownText(u"1"), DatetimeOf(1900, 1, 2, 0, 0, 0),
         DateOf(1900, 1, 2), e(DataType::Spatial)},
        {DataValue(1.5, 3, 1), DataValue(1), DataValue(1.5, 3, 1), UnknownText(u"1.5"),
         DatetimeOf(1900, 1, 2, 12, 0, 0), DateOf(1900, 1, 2), e(DataType::Spatial)},
        {Text(u"12.7"), DataValue(12), DataValue(12.7), Text(u"12.7"), e(DataType::DateTime), e(DataType::Date),
         Null(DataType::Spatial)},
        {Text(u"2015-10-15"), e(DataType::Integer), e(DataType::Real), Text(u"2015-10-15"),
         DatetimeOf(2015, 10, 15, 0, 0, 0), DateOf(2015, 10, 15), Null(DataType::Spatial)},
        {DatetimeOf(1900, 1, 2, 12, 0, 0), DataValue(1), DataValue(1.5), UnknownText(u"January 02 1900 12:00PM"),
         DatetimeOf(1900, 1, 2, 12, 0, 0), DateOf(1900, 1, 2), e(DataType::Spatial)},
        {DateOf(1900, 1, 2), DataValue(1), DataValue(1.0), UnknownText(u"January 02 1900 12:00AM"),
         DatetimeOf(1900, 1, 2, 0, 0, 0), DateOf(1900, 1, 2), e(DataType::Spatial)},
        {DataValue(true), DataValue(1), DataValue(1.0), UnknownText(u"1"), e(DataType::DateTime), e(DataType::Date),
         e(DataType::Spatial)},
        {DataValue(false), DataValue(0), DataValue(0.0), UnknownText(u"0"), e(DataType::DateTime), e(DataType::Date),
         e(DataType::Spatial)},
        {TupleOf({DataValue(1)}), e(DataType::Integer), e(DataType::Real), e(DataType::String), e(DataType::DateTime),
         e(DataType::Date), e(DataType::Spatial)},
        {BinaryOf({'1'}), e(DataType::Integer), e(DataType::Real), e(DataType::String), e(DataType::DateTime),
         e(DataType::Date), e(DataType::Spatial)},
        {DataValue(Time(1ull), DataType::Time), e(DataType::Integer), e(DataType::Real), e(DataType::String),
         e(DataType::DateTime), e(DataType::Date), e(DataType::Spatial)},
        {DataValue(DataValueTypes::Normal, DataType::Unknown), e(DataType::Integer), e(DataType::Real),
         e(DataType::String), e(DataType::DateTime), e(DataType::Date), e(DataType::Spatial)},
        {DataValue(MakeSpatial(1, 10)), e(DataType::Integer), e(DataType::Real), e(DataType::String),
         e(DataType::DateTime), e(DataType::Date), DataValue(MakeSpatial(1, 10))},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.value));
        ExpectSame(Cast(row.value, DataType::Integer), row.integer);
        ExpectSame(Cast(row.value, DataType::Real), row.real);
        ExpectSame(Cast(row.value, DataType::String), row.text);
        ExpectSame(Cast(row.value, DataType::DateTime), row.dateTime);
        ExpectSame(Cast(row.value, DataType::Date), row.date);
        ExpectSame(Cast(row.value, DataType::Spatial), row.spatial);
        for (DataType const target :
             {DataType::Boolean, DataType::Unknown, DataType::Binary, DataType::Time, DataType::Table})
            if (row.value.GetDataType() != target)
                ExpectSame(Cast(row.value, target), Error(target));
        if (row.value.GetDataType() != DataType::Tuple) {
            EXPECT_THAT([&] { Cast(row.value, DataType::Tuple); },
                        ThrowsError("VeltriaException_AutoGen_0xC3E581B1", "DataValue::MakeSpecial: bad argument"));
        }
    }
}

TEST(ExplicitCast, NumbersCountDaysFrom1900)
{
    ExpectSame(Cast(DataValue(0), DataType::Date), DateOf(1900, 1, 1));
    ExpectSame(Cast(DataValue(-2), DataType::Date), DateOf(1899, 12, 30));
    ExpectSame(Cast(DataValue(1.5), DataType::DateTime), DatetimeOf(1900, 1, 2, 12, 0, 0));
    ExpectSame(Cast(DateOf(1900, 1, 2), DataType::Integer), DataValue(1));
    // The integer is cut to 32 bits first.
    ExpectSame(Cast(DataValue((1LL << 32) + 5), DataType::Date), Cast(DataValue(5), DataType::Date));
    ExpectSame(Cast(DataValue(std::numeric_limits<long long>::max()), DataType::Date), DateOf(1899, 12, 31));
    for (long long const far : {2147483647LL, -2147483648LL, 2958464LL, -657437LL})
        ExpectSame(Cast(DataValue(far), DataType::DateTime), Null(DataType::DateTime));
    ExpectSame(Cast(DataValue(2958463), DataType::DateTime), DatetimeOf(9999, 12, 31, 0, 0, 0));
    for (double const far : {3e6, -7e5, 1e9, std::numeric_limits<double>::quiet_NaN()}) {
        ExpectSame(Cast(DataValue(far), DataType::DateTime), Null(DataType::DateTime));
        ExpectSame(Cast(DataValue(far), DataType::Date), Null(DataType::Date));
    }
    // Too many ticks for 64 bits.
    for (double const far : {1e300, -1e300, std::numeric_limits<double>::infinity()})
        ExpectSame(Cast(DataValue(far), DataType::DateTime), DatetimeOf(1899, 12, 30, 0, 0, 0));
    // A date-time before the year 400 is one, but has no date.
    EXPECT_FALSE(Cast(DataValue(-600000), DataType::DateTime).IsNull());
    EXPECT_THAT([] { Cast(DataValue(-600000), DataType::Date); }, ThrowsError("VeltriaException_AutoGen_0xDD90F63D"));
    EXPECT_THAT([] { Cast(DataValue(-600000.5), DataType::Date); }, ThrowsError("VeltriaException_AutoGen_0xDD90F63D"));
}

// Date to number and back, and numbers to dates and back, over the whole range.
TEST(ExplicitCast, DaysComeBack)
{
    for (int day = -547000; day <= 2958463; day += 97) {
        DataValue const date = Cast(DataValue(day), DataType::Date);
        ASSERT_EQ(date.GetSpecial(), DataValueTypes::Normal) << day;
        ExpectSame(Cast(date, DataType::Integer), DataValue(day));
        ExpectSame(Cast(date, DataType::Real), DataValue(static_cast<double>(day)));
        ExpectSame(Cast(Cast(DataValue(day + 0.75), DataType::DateTime), DataType::Real), DataValue(day + 0.75));
    }
}

TEST(ExplicitCast, TextToDateTriesEveryPattern)
{
    ExpectSame(Cast(Text(u"10/15/2015"), DataType::Date), DateOf(2015, 10, 15));
    ExpectSame(Cast(Text(u"2015-10-15T10:11:12"), DataType::DateTime), DatetimeOf(2015, 10, 15, 10, 11, 12));
    ExpectSame(Cast(Text(u"2015-10-15T10:11:12"), DataType::Date), DateOf(2015, 10, 15));
    for (char16_t const * const text : {u"", u" ", u"Paris", u"2024-02-30", u"20151015"}) {
        ExpectSame(Cast(Text(text), DataType::Date), Error(DataType::Date));
        ExpectSame(Cast(Text(text), DataType::DateTime), Error(DataType::DateTime));
    }
}

TEST(ExplicitCast, TextToSpatialIsNullWhereItFails)
{
    DataValue const point = Cast(Text(u"POINT (1 2)"), DataType::Spatial);
    EXPECT_EQ(point.GetSpecial(), DataValueTypes::Normal);
    EXPECT_EQ(point.GetSpatial()->GetShapeType(), velgeo::ShapeType::Point);
    EXPECT_TRUE(
        Cast(Text(u"{\"type\": \"Point\", \"coordinates\": [1, 2]}"), DataType::Spatial).GetSpatial()->IsGeography());
    ExpectSame(Cast(Text(u"Paris"), DataType::Spatial), Null(DataType::Spatial));
}

TEST(ExplicitCast, RealsAreWrittenAsTheFormatterWritesThem)
{
    ExpectSame(Cast(DataValue(3.0), DataType::String), UnknownText(u"3."));
    ExpectSame(Cast(DataValue(0.1), DataType::String), UnknownText(u"0.10000000000000001"));
    // Precision and scale round.
    ExpectSame(Cast(DataValue(1.25, 3, 1), DataType::String), UnknownText(u"1.3"));
    ExpectSame(Cast(DataValue(std::numeric_limits<long long>::min()), DataType::String),
               UnknownText(u"-9223372036854775808"));
}

TEST(StringToNumber, SaturatesAndTruncates)
{
    struct Row
    {
        char16_t const * text;
        long long value;
    };
    using Limits = std::numeric_limits<long long>;
    Row const rows[] = {
        {u"12.7", 12},
        {u"-12.7", -12},
        {u"1e30", Limits::max()},
        {u"-1e30", Limits::min()},
        {u"99999999999999999999", Limits::max()},
        {u"9223372036854775807", Limits::max()},
        // 2^63 passes neither bound.
        {u"9223372036854775808", Limits::min()},
        {u"9223372036854775807.0", Limits::min()},
        {u"9223372036854776833", Limits::max()},
        {u"-9223372036854775809", Limits::min()},
        {u"0.9999999999999999", 0},
        {u"00000000000000000000000000000000000000000000000000000000000000000000000000007", 7},
        // Blanks and a plus sign are the platform's to answer.
        {u" 5 ", 5},
        {u"+5", 5},
        {u"\t5.5\n", 5},
        {u"inf", Limits::max()},
        {u"-inf", Limits::min()},
        {u"nan", Limits::min()},
    };
    DataValueOperators const operators;
    for (Row const & row : rows) {
        EXPECT_EQ(operators.StringToInt(TString(row.text)), row.value) << TString(row.text).toStdString();
        ExpectSame(Cast(Text(row.text), DataType::Integer), DataValue(row.value));
    }
}

TEST(StringToNumber, BadTextRaisesAndTheCastDoesNot)
{
    char16_t const * const texts[] = {u"",       u" ",      u"abc", u"12abc", u"1 2",   u"1,5",
                                      u"--5",    u"1e",     u"e5",  u"0x10",  u"1e400", u"1e-400",
                                      u"\u4E2D", u"\xD800", u"5%",  u"$5",    u"1.2.3", u"infinity"};
    DataValueOperators operators;
    for (bool const throws : {true, false}) {
        operators.SetThrow(throws);  // has no say: no crash hook is called
        for (char16_t const * const text : texts) {
            auto const error = [] {
                return ThrowsErrorOf<DataValueOperatorException>("DataValueOperatorException_AutoGen_0x5EA10C38",
                                                                 "Error parsing number");
            };
            EXPECT_THAT([&] { operators.StringToReal(TString(text)); }, error()) << TString(text).toStdString();
            EXPECT_THAT([&] { operators.StringToInt(TString(text)); }, error()) << TString(text).toStdString();
            ExpectSame(operators.ExplicitCast(Text(text), DataType::Integer), Error(DataType::Integer));
            ExpectSame(operators.ExplicitCast(Text(text), DataType::Real), Error(DataType::Real));
        }
    }
    EXPECT_EQ(CoreData::LookupTStrExported(CoreData::StringId::IDS_ERR_PARSING_NUMBER),
              TString(u"Error parsing number"));
}

TEST(StringToNumber, AFailingCastOfTextThrowsNothingOnTheInside)
{
    DataValueOperators const operators;
    ThrowCounter const all;
    EXPECT_THROW(operators.StringToReal(TString(u"abc")), DataValueOperatorException);
    ASSERT_EQ(all.Count(), 1u);  // the counter counts

    DataValue const values[] = {
        Text(u"abc"),      Text(u"12abc"),      Text(u"Paris, France"), Text(u"half past ten"), Text(u""),
        Text(u"5 apples"), Text(u"12,50"),      Text(u"2024-02-30"),    Text(u" 1 2 "),         Text(u"--1"),
        Text(u"1e400"),    Text(u"infinite"),   Text(u"1e-400"),        Text(u"\u6771\u4EAC"),  Text(u"\xD800"),
        Text(u"POINT (1"), Text(u"{\"a\": 1}"), Text(u"99/99/9999")};
    for (DataValue const & value : values)
        for (DataType const target : {DataType::Integer, DataType::Real, DataType::Date, DataType::DateTime,
                                      DataType::Spatial, DataType::Boolean})
        {
            ThrowCounter const throws;
            DataValue const result = operators.ExplicitCast(value, target);
            EXPECT_EQ(throws.Count(), 0u) << testing::PrintToString(value);
            ExpectSame(result, target == DataType::Spatial ? Null(target) : Error(target));
        }
    // Numbers allocate nothing either.
    for (DataValue const & value : {values[0], values[1], values[5], values[6], values[9], values[13]}) {
        AllocationCounter const allocations;
        operators.ExplicitCast(value, DataType::Integer);
        operators.ExplicitCast(value, DataType::Real);
        EXPECT_EQ(allocations.Count(), 0u) << testing::PrintToString(value);
    }
}

TEST(ImplicitPrecisionAndScale, CountsDigits)
{
    auto const of = [](char16_t const * text) {
        auto const [precision, scale] =
            DataValueOperators::GetImplicitPrecisionAndScaleFromDecimalFormattedAsString(TString(text));
        return std::pair<int, int>(precision, scale);
    };
    using Pair = std::pair<int, int>;
    EXPECT_EQ(of(u"-12.345"), Pair(5, 3));
    EXPECT_EQ(of(u"1.2.3"), Pair(-1, -1));
    EXPECT_EQ(of(u"12345678901234567"), Pair(-1, -1));
    EXPECT_EQ(of(u"1234567890123456"), Pair(16, 0));
    EXPECT_EQ(of(u""), Pair(0, 0));
    EXPECT_EQ(of(u"-"), Pair(0, 0));
    EXPECT_EQ(of(u".-5"), Pair(1, 1));  // a sign may follow the point, as long as no digit has come
    EXPECT_EQ(of(u"--5"), Pair(-1, -1));
    EXPECT_EQ(of(u"5-"), Pair(-1, -1));
    EXPECT_EQ(of(u"+5"), Pair(-1, -1));
    EXPECT_EQ(of(u"1e3"), Pair(-1, -1));
    EXPECT_EQ(of(u"007.50"), Pair(5, 2));
    EXPECT_EQ(of(u"\u0661"), Pair(-1, -1));
}

// ExplicitCast never raises but for the target Tuple, and the target Date of a day before the year 400; and the same
// type is a copy.
TEST(CastLaws, ExplicitCastNeverRaises)
{
    std::vector<DataValue> values = AllSamples();
    RandomValue random(55, GetBinaryCollation());
    RandomText text(56);
    std::mt19937_64 bits(57);
    constexpr std::u16string_view numbers = u"0123456789.-+eE /:T";
    for (int i = 0; i < 10'000; ++i) {
        switch (i % 5) {
        case 0: values.push_back(random.Any()); break;
        case 1: values.push_back(DataValue(std::bit_cast<double>(bits()))); break;
        case 2: values.push_back(DataValue(static_cast<long long>(bits() >> (bits() % 64)))); break;
        case 3: values.push_back(DataValue(GetBinaryCollation(), TString::fromStdU16String(text.Any(12)))); break;
        default: {
            std::u16string digits;
            for (auto n = bits() % 12; n > 0; --n)
                digits += numbers[bits() % numbers.size()];
            values.push_back(DataValue(GetBinaryCollation(), TString::fromStdU16String(digits)));
        }
        }
    }
    DataValueOperators const operators;
    DateTime const first(400, 1, 1, 0, 0, 0, 0.0);
    for (DataValue const & value : values)
        for (int type = 0; type < kTypes; ++type) {
            DataType const target = TypeOf(type);
            if (target == DataType::Tuple && value.GetDataType() != DataType::Tuple)
                continue;
            // The search for a date is slow where it fails: a part of the texts will do.
            if (IsTemporal(target) && value.GetDataType() == DataType::String && bits() % 8 != 0)
                continue;
            if (target == DataType::Date && !value.IsSpecial()) {
                DataValue const moment = operators.ExplicitCast(value, DataType::DateTime);
                if (moment.GetSpecial() == DataValueTypes::Normal && moment.GetDatetime() < first)
                    continue;
            }
            DataValue result;
            ASSERT_NO_THROW(result = operators.ExplicitCast(value, target)) << testing::PrintToString(value);
            ASSERT_EQ(result.GetDataType(), target) << testing::PrintToString(value);
            ASSERT_TRUE(target != value.GetDataType() || SameFields(result, value)) << testing::PrintToString(value);
            ASSERT_TRUE(!value.IsSpecial() || result.GetSpecial() == value.GetSpecial());
        }
}

// Text to value to text: StringToReal(FormatAsLiteral(x)) == x, bit for bit; integers and the text casts too.
TEST(CastLaws, NumbersReadBackFromTheirTexts)
{
    DataValueOperators const operators;
    std::mt19937_64 random(58);
    for (int i = 0; i < 20'000; ++i) {
        double const real = std::bit_cast<double>(random());
        if (std::isfinite(real)) {
            DataValue const value(real);
            auto const bits = std::bit_cast<std::uint64_t>(real);
            ASSERT_EQ(std::bit_cast<std::uint64_t>(operators.StringToReal(value.FormatAsLiteral())), bits) << real;
            ASSERT_TRUE(SameFields(Cast(Cast(value, DataType::String), DataType::Real), value)) << real;
        }
        auto const integer = static_cast<long long>(random() >> (random() % 64));
        ASSERT_EQ(operators.StringToInt(DataValue(integer).FormatAsLiteral()), integer);
        ASSERT_TRUE(
            SameFields(Cast(Cast(DataValue(integer), DataType::String), DataType::Integer), DataValue(integer)));
    }
    for (double const real : {0.0, -0.0, std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::max()})
        ASSERT_EQ(std::bit_cast<std::uint64_t>(operators.StringToReal(DataValue(real).FormatAsLiteral())),
                  std::bit_cast<std::uint64_t>(real));
}
