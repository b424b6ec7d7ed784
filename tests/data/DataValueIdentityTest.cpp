// Order, equality, hash, negation, literal form and stream output of values.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <unordered_set>
#include <vector>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValueSamples.h"
#include "velcoredata/data/DataValue.h"
#include "velsys/Hash.h"

namespace {

using namespace test_support;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr long long kLowest = std::numeric_limits<long long>::min();

DataValue All(DataType type)
{
    return DataValue(DataValueTypes::All, type);
}
DataValue Text(char16_t const * text)
{
    return DataValue(GetBinaryCollation(), text);
}
DataValue Russian(char16_t const * text)
{
    return DataValue(Collation(u"LEN_RUS_S2", 0), text);
}

struct PairRow
{
    DataValue a;
    DataValue b;
    bool equal;
    bool aLess;
    bool bLess;
};

TEST(DataValueIdentity, EqualityAndOrderOfPairs)
{
    DataValue const nullInt = Null(DataType::Integer);
    PairRow const rows[] = {
        {1, 1.0, false, false, false},
        {2, 2.5, false, true, false},
        {2.5, 3, false, true, false},
        {nullInt, 0, false, true, false},
        {nullInt, -1.0, false, false, true},  // the null counts as 0
        {nullInt, 0.0, false, false, false},
        {All(DataType::Integer), Null(DataType::Real), false, false, false},
        {All(DataType::Real), 1, false, true, false},
        {Null(DataType::Date), All(DataType::Date), false, true, false},
        {All(DataType::Date), DateOf(2000, 1, 1), false, false, true},
        {Null(DataType::Date), DateOf(100 + 300, 1, 1), false, true, false},
        {1.0, 1.0, true, false, false},
        {kNaN, kNaN, true, false, false},
        {kNaN, 1.0, false, false, false},
        {kNaN, -kNaN, false, false, false},
        {0.0, -0.0, false, false, false},
        {DataValue(1.5, 3, 1), DataValue(1.5, 9, 2), true, false, false},
        {false, true, false, true, false},
        {Text(u"a"), Text(u"a"), true, false, false},
        {Text(u"a"), Text(u"b"), false, true, false},
        {Russian(u"a"), Russian(u"A"), true, false, false},
        {Text(u""), DataValue(DataValueTypes::Normal, DataType::String), false, false, true},
        {DataValue(DataValueTypes::Normal, DataType::String), DataValue(DataValueTypes::Normal, DataType::String), true,
         false, false},
        {BinaryOf({'x'}), BinaryOf({'x'}), false, false, false},
        {DataValue(Time(1ull), DataType::Time), DataValue(Time(2ull), DataType::Time), false, true, false},
        {TupleOf({9}), TupleOf({1, 1}), false, true, false},
        {TupleOf({1, 2}), TupleOf({1, 2}), true, false, false},
        {TupleOf({1}), TupleOf({1.0}), false, false, false},
        {DataValue(MakeSpatial(1, 10)), DataValue(MakeSpatial(1, 10)), true, false, false},
        {DataValue(MakeSpatial(1, 10)), DataValue(MakeSpatial(2, 10)), false, false, false},
        {DataValue(MakeSpatial(1, 10)), DataValue(MakeSpatial(2, 0xFFFFFFFFFFFFFFFF)), false, true, false},
        {DataValue(MakeSpatial(1, 10)), DataValue(DataValueTypes::Normal, DataType::Spatial), false, false, false},
        {DataValue(), DataValue(), true, false, false},
        {DataValue(), DataValue(DataValueTypes::Normal, DataType::Unknown), false, true, false},
    };
    for (PairRow const & row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.a) + " and " + testing::PrintToString(row.b));
        EXPECT_EQ(row.a == row.b, row.equal);
        EXPECT_EQ(row.b == row.a, row.equal);
        EXPECT_EQ(row.a != row.b, !row.equal);
        EXPECT_EQ(row.a < row.b, row.aLess);
        EXPECT_EQ(row.b < row.a, row.bLess);
        EXPECT_EQ(row.a > row.b, row.bLess);
        EXPECT_EQ(row.a <= row.b, row.equal || row.aLess);
        EXPECT_EQ(row.a >= row.b, row.equal || row.bLess);
    }
}

TEST(DataValueIdentity, ABinaryIsEqualToAValueOfTheSameObject)
{
    DataValue const a = BinaryOf({'x'});
    DataValue const copy(a);
    EXPECT_TRUE(a == copy);
    EXPECT_EQ(a.Hash(), copy.Hash());
}

TEST(DataValueIdentity, OrdinalsTakeNoPartInEquality)
{
    DataValue a = Text(u"a");
    a.SetOrdinal(4);
    EXPECT_TRUE(a == Text(u"a"));
    EXPECT_EQ(a.Hash(), Text(u"a").Hash());
}

// One value of each type in the stated order; every pair of different types follows it but Integer with Real.
TEST(DataValueIdentity, TypesOrderByTheirNumbers)
{
    std::vector<DataValue> const ascending = {1000,
                                              Text(u"a"),
                                              DatetimeOf(1900, 1, 1, 0, 0, 0),
                                              false,
                                              DateOf(1900, 1, 1),
                                              TupleOf({}),
                                              DataValue(MakeSpatial(1, 1)),
                                              DataValue(),
                                              BinaryOf({}),
                                              DataValue(Time(0ull), DataType::Time),
                                              DataValue(DataValueTypes::Normal, DataType::Table)};
    for (std::size_t i = 0; i < ascending.size(); ++i)
        for (std::size_t j = 0; j < ascending.size(); ++j) {
            EXPECT_EQ(ascending[i] < ascending[j], i < j) << i << ' ' << j;
            EXPECT_EQ(ascending[i] == ascending[j], i == j) << i << ' ' << j;
        }
    for (std::size_t i = 1; i < ascending.size(); ++i) {
        EXPECT_LT(DataValue(1e300), ascending[i]);
        EXPECT_FALSE(ascending[i] < DataValue(1e300));
    }
}

TEST(DataValueIdentity, MarkersOrderNullThenNormalThenByNumber)
{
    int const order[] = {1, 0, 2, 3, 4, 5, 6, 7, 8, 9};
    for (int type = 0; type < kTypes; ++type) {
        if (TypeOf(type) == DataType::Tuple)
            continue;
        for (int i = 0; i < kSpecials; ++i)
            for (int j = 0; j < kSpecials; ++j) {
                DataValue const a(SpecialOf(order[i]), TypeOf(type));
                DataValue const b(SpecialOf(order[j]), TypeOf(type));
                EXPECT_EQ(a < b, i < j) << testing::PrintToString(a) << ' ' << testing::PrintToString(b);
                EXPECT_EQ(a == b, i == j);
            }
    }
}

TEST(DataValueIdentity, MarkersAboveTheSignedRangeSortFirstAmongMarkers)
{
    DataValue const high(static_cast<DataValueTypes::Special>(200), DataType::Integer);
    EXPECT_LT(high, DataValue(0));
    EXPECT_LT(Null(DataType::Integer), high);
}

TEST(DataValueIdentity, HashOfARealCountsTypeAndBitsAlone)
{
    double const payload = 1.5;
    unsigned char const type = 1;
    unsigned const expected = THash32(&payload, 8, THash32(&type, 1, 0xdeadbeef));
    EXPECT_EQ(DataValue(1.5).Hash(), expected);
    EXPECT_EQ(DataValue(1.5, 3, 1).Hash(), expected);
    EXPECT_EQ(Null(DataType::Real).Hash(), DataValue(0.0).Hash());
    EXPECT_NE(DataValue(0.0).Hash(), DataValue(-0.0).Hash());
}

TEST(DataValueIdentity, HashOfSharedPayloadsIsTheirs)
{
    EXPECT_EQ(Text(u"abc").Hash(), StringWithCollation(TString(u"abc"), GetBinaryCollation()).GetHash());
    DataValue const tuple = TupleOf({1, 2});
    EXPECT_EQ(tuple.Hash(), tuple.GetTuple()->Hash());
    EXPECT_EQ(DataValue(MakeSpatial(1, 0x123456789)).Hash(), 0x23456789u);
}

TEST(DataValueIdentity, HashOfEverythingElseCountsTheWholeRecord)
{
    struct Record
    {
        unsigned char type, special, precision, scale;
        int ordinal;
        long long payload;
    };
    auto const expect = [](DataValue const & value, Record const & record) {
        EXPECT_EQ(value.Hash(), THash32(&record, sizeof record, 0xdeadbeef)) << testing::PrintToString(value);
        EXPECT_EQ(std::hash<DataValue>()(value), value.Hash());
    };
    expect(5, {0, 0, 255, 255, 0, 5});
    expect(true, {4, 0, 255, 255, 0, 1});
    expect(DataValue(), {8, 1, 255, 255, 0, 0});
    expect(Null(DataType::String), {2, 1, 255, 255, 0, 0});
    expect(Null(DataType::Spatial), {7, 1, 255, 255, 0, 0});
    expect(DataValue(Time(7ull), DataType::Time), {10, 0, 255, 255, 0, 7});
    EXPECT_NE(DataValue(1).Hash(), DataValue(true).Hash());
}

TEST(DataValueIdentity, ValuesAreKeysOfHashedContainers)
{
    std::unordered_set<DataValue> const set = {1, 1, 1.0, true, Text(u"a"), Text(u"a"), Null(DataType::Integer)};
    EXPECT_EQ(set.size(), 5u);
}

TEST(DataValueIdentity, NegationLooksAtTheTypeAlone)
{
    auto const expect = [](DataValue const & actual, DataValue const & expected) {
        EXPECT_TRUE(SameFields(actual, expected))
            << testing::PrintToString(actual) << ", not " << testing::PrintToString(expected);
    };
    expect(-DataValue(5), -5);
    expect(-DataValue(kLowest), kLowest);
    expect(-DataValue(1.5, 3, 1), -1.5);
    expect(-DataValue(0.0), -0.0);
    expect(-Null(DataType::Integer), 0);
    expect(-All(DataType::Real), -0.0);
    EXPECT_TRUE(std::signbit((-DataValue(kNaN)).GetReal()));
    for (int type = 2; type < kTypes; ++type)
        if (TypeOf(type) != DataType::Tuple) {
            EXPECT_THAT([&] { -Null(TypeOf(type)); }, ThrowsAssert("Unary operator- is unsupported for this data type.",
                                                                   "LogicException_LogicAssert_0xED6A87E9"));
        }
    EXPECT_THAT([] { -TupleOf({1}); }, ThrowsAssert("Unary operator- is unsupported for this data type."));
}

struct LiteralRow
{
    DataValue value;
    std::u16string literal;
};

TEST(DataValueIdentity, LiteralForm)
{
    LiteralRow const rows[] = {
        {5, u"5"},
        {-5, u"-5"},
        {kLowest, u"-9223372036854775808"},
        {3.0, u"3."},
        {-2.0, u"-2."},
        {-0.0, u"-0."},
        {0.1, u"0.10000000000000001"},
        {2.5, u"2.5"},
        {1e300, u"1.0000000000000001e+300"},
        {1e16, u"10000000000000000."},
        {1e17, u"1e+17"},
        {kNaN, u"nan"},
        {-std::numeric_limits<double>::infinity(), u"-inf"},
        {DataValue(1.5, 3, 1), u"1.5"},
        {Text(u"ab\"c"), u"\"ab\"\"c\""},
        {Text(u""), u"\"\""},
        {DataValue(DataValueTypes::Normal, DataType::String), u"\"\""},
        {true, u"true"},
        {false, u"false"},
        {DateOf(2020, 1, 2), u"#2020-01-02#"},
        {DateOf(400, 1, 2), u"#0400-01-02#"},
        {DatetimeOf(2020, 1, 2, 12, 0, 0), u"#2020-01-02 12:00:00#"},
        {DatetimeOf(2020, 1, 2, 12, 0, 0, 0.005), u"#2020-01-02 12:00:00.005#"},
        {DatetimeOf(2020, 1, 2, 12, 0, 0, 0.0009), u"#2020-01-02 12:00:00#"},
        {DataValue(MakeSpatial(1, 1)), u"'Point'"},
        {TupleOf({1}), u""},
        {BinaryOf({'x'}), u""},
        {DataValue(Time(1ull), DataType::Time), u""},
        {DataValue(DataValueTypes::Normal, DataType::Unknown), u""},
        {DataValue(DataValueTypes::Normal, DataType::Table), u""},
    };
    for (LiteralRow const & row : rows)
        EXPECT_EQ(row.value.FormatAsLiteral(), TString::fromStdU16String(row.literal))
            << testing::PrintToString(row.value);
}

TEST(DataValueIdentity, EveryNullReadsNullAndEveryOtherMarkerHasNoLiteral)
{
    for (DataValue const & value : AllMarkers()) {
        if (value.IsNull()) {
            EXPECT_EQ(value.FormatAsLiteral(), TString(u"NULL"));
        } else if (value.IsSpecial()) {
            EXPECT_THAT([&] { value.FormatAsLiteral(); },
                        ThrowsAssert("GetSpecial() == DataValueTypes::Null", "LogicException_LogicAssert_0x21164B74"));
        }
    }
}

TEST(DataValueIdentity, StreamOutputIsThePrintableLiteralInTheWidthAndFillOfTheStream)
{
    std::ostringstream out;
    out << Text(u"ab") << '|' << std::setw(8) << std::setfill('*') << DataValue(5) << '|' << std::left << std::setw(8)
        << Null(DataType::Integer) << '|' << std::setw(2) << Text(u"\t\u00E9");
    EXPECT_EQ(out.str(), "\"\\\"ab\\\"\"|*****\"5\"|\"NULL\"**|\"\\\"\\t\\x00E9\\\"\"");
    EXPECT_EQ(out.width(), 0);
    EXPECT_THAT([&] { out << All(DataType::Integer); }, ThrowsAssert("GetSpecial() == DataValueTypes::Null"));
}

TEST(DataValuePrinters, PrintEveryValueWithoutRaising)
{
    for (DataValue const & value : AllSamples())
        EXPECT_FALSE(testing::PrintToString(value).empty());
    EXPECT_EQ(testing::PrintToString(DataValue(5)), "Integer 5");
    EXPECT_EQ(testing::PrintToString(All(DataType::Real)), "%all% Real");
    EXPECT_EQ(testing::PrintToString(DataValue(1.5, 5, 2)), "Real 1.5 (5, 2)");
    EXPECT_EQ(testing::PrintToString(Russian(u"a\"")), "String \"a\\\"\" [LEN_RUS_S2]");
    EXPECT_EQ(testing::PrintToString(DatetimeOf(2000, 1, 1, 12, 0, 0, 0.5)),
              "DateTime 2000-01-01 12:00:00.5000 (2118134448005000)");
    EXPECT_EQ(testing::PrintToString(TupleOf({1, TupleOf({true})})), "Tuple (Integer 1, Tuple (Boolean true))");
    EXPECT_EQ(testing::PrintToString(*TupleOf({1, 2}).GetTuple()), "(Integer 1, Integer 2)");
    EXPECT_EQ(testing::PrintToString(BinaryOf({3, 0, 'a'})), "Binary 03 00 61");
    EXPECT_EQ(testing::PrintToString(Bucket(DataValue())), "%null% Unknown");
    EXPECT_EQ(testing::PrintToString(DateTime(2000, 1, 1, 12, 0, 0, 0.5)),
              "2000-01-01 12:00:00.5000 (2118134448005000)");
    EXPECT_EQ(testing::PrintToString(AliasedDataValue(DataValue(1), u"one")), "Integer 1 as \"one\"");
}

}  // namespace
