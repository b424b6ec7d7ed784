// The attributes that go with the text of a value, and the count of digits.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <unordered_map>
#include <vector>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValueSamples.h"
#include "velcoredata/data/XMLEnumException.h"
#include "velcoredata/parser/DataValueFormatter.h"

namespace {

using namespace test_support;
using Attributes = std::unordered_map<TString, TString>;

constexpr char const * kDifferent = "VeltriaException_DataValueFormatter_0x89515929";

Attributes Of(DataValue const & value)
{
    return DataValueFormatter::GetDataValueTypeAttributes(value);
}

DataValue StringOf(Collation const & collation)
{
    return DataValue(collation, TString(u"text"));
}

}  // namespace

TEST(DataValueAttributes, TellTheTypeOfEveryValueButATuple)
{
    for (int type = 0; type < kTypes; ++type) {
        if (TypeOf(type) == DataType::Tuple || TypeOf(type) == DataType::String)
            continue;
        static char16_t const * const names[] = {u"integer", u"real",    u"string",  u"datetime", u"boolean", u"date",
                                                 u"tuple",   u"spatial", u"unknown", u"binary",   u"time",    u"table"};
        EXPECT_EQ(Of(Null(TypeOf(type))), (Attributes{{u"datatype", names[type]}}));
    }
    EXPECT_EQ(Of(DataValue()), (Attributes{{u"datatype", u"unknown"}}));
    EXPECT_THAT([] { Of(DataValue(DataValueTypes::Null, TypeOf(12))); },
                ThrowsErrorOf<Implementation::XMLEnumEncodingException>("XMLEnumEncodingException_AutoGen_0x5D1E6A01",
                                                                        "XML enumerated value cannot be encoded."));
}

TEST(DataValueAttributes, TellPrecisionAndScaleOfAReal)
{
    EXPECT_EQ(Of(DataValue(1.5)), (Attributes{{u"datatype", u"real"}}));
    EXPECT_EQ(Of(DataValue(1.5, 5, 2)), (Attributes{{u"datatype", u"real"}, {u"precision", u"5"}, {u"scale", u"2"}}));
    EXPECT_EQ(Of(DataValue(1.5, -1, -3)), (Attributes{{u"datatype", u"real"}, {u"scale", u"-3"}}));
}

TEST(DataValueAttributes, TellTheCollationOfAString)
{
    EXPECT_EQ(Of(StringOf(Collation(u"LEN_RUS_S2", 65535))),
              (Attributes{{u"datatype", u"string"}, {u"collation", u"LEN_RUS_S2"}, {u"charset", u"65535"}}));
    EXPECT_EQ(Of(Null(DataType::String)),
              (Attributes{{u"datatype", u"string"}, {u"collation", u"LROOT"}, {u"charset", u"0"}}));
}

TEST(DataValueAttributes, OfATupleAreThoseOfItsMembers)
{
    EXPECT_EQ(Of(TupleOf({})), (Attributes{{u"tuple-datatypes", u"()"}, {u"tuple-size", u"0"}}));
    EXPECT_EQ(Of(TupleOf({DataValue(1), DataValue(2)})),
              (Attributes{{u"tuple-datatypes", u"(integer,integer)"}, {u"tuple-size", u"2"}}));
    EXPECT_EQ(Of(TupleOf({DataValue(1), StringOf(GetBinaryCollation()), DataValue(1.5, 5, 2), DataValue(1.5)})),
              (Attributes{{u"tuple-datatypes", u"(integer,string,real,real)"},
                          {u"tuple-size", u"4"},
                          {u"collation", u"binary"},
                          {u"charset", u"0"},
                          {u"precision", u"5"},
                          {u"scale", u"2"}}));
    // Those of members of members do not count.
    EXPECT_EQ(
        Of(TupleOf({TupleOf({DataValue(1.5, 5, 2)}), DataValue(1.5, 4, 2)})),
        (Attributes{
            {u"tuple-datatypes", u"(tuple,real)"}, {u"tuple-size", u"2"}, {u"precision", u"4"}, {u"scale", u"2"}}));
}

TEST(DataValueAttributes, MembersHaveToAgree)
{
    Collation const binary = GetBinaryCollation();
    for (DataValue const & value : {
             TupleOf({DataValue(1.5, 5, 2), DataValue(1.5, 4, 2)}),
             TupleOf({DataValue(1.5, 5, 2), DataValue(1.5, 5, 3)}),
             TupleOf({DataValue(1.5, 5, 2), DataValue(1), DataValue(1.5), DataValue(1.5, 4, -1)}),
             TupleOf({StringOf(binary), StringOf(GetUnknownCollation())}),
             TupleOf({StringOf(Collation(u"LDE", 1)), StringOf(Collation(u"LDE", 2))}),
             TupleOf({StringOf(binary), Null(DataType::String)}),
         })
        EXPECT_THAT([&] { Of(value); },
                    ThrowsError(kDifferent,
                                "Member values of Tuple-type DataValues must all have the same type attributes.", 1,
                                3));
}

TEST(DataValueAttributes, DigitsOfTheIntegerPart)
{
    struct Case
    {
        double value;
        unsigned digits;
    };
    for (auto const & [value, digits] : {
             Case{0.0, 1},
             Case{0.5, 1},
             Case{-0.999, 1},
             Case{9.99, 1},
             Case{10.0, 2},
             Case{999.9, 3},
             Case{1000.0, 4},
             Case{-1000.0, 4},
             Case{1e18, 19},
             Case{9.9e18, 19},
             Case{1e19, 20},
             Case{18446744073709549568.0, 20},
             Case{18446744073709551616.0, 20},
             Case{1e20, 20},
             Case{1e300, 20},
             Case{std::numeric_limits<double>::infinity(), 20},
             Case{std::numeric_limits<double>::quiet_NaN(), 20},
             Case{std::numeric_limits<double>::denorm_min(), 1},
         })
        EXPECT_EQ(DataValueFormatter::intDigits(value), digits) << value;
    for (int power = 0; power < 19; ++power)
        EXPECT_EQ(DataValueFormatter::intDigits(std::pow(10.0, power)), static_cast<unsigned>(power + 1));
}
