#include "velcoredata/data/DataValueHelpers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValuePrinters.h"
#include "tests/support/ValueSamples.h"

using namespace test_support;

namespace {

std::vector<TString> Texts(std::initializer_list<char16_t const *> texts)
{
    return std::vector<TString>(texts.begin(), texts.end());
}

std::vector<DataValue> Strings(std::initializer_list<char16_t const *> texts)
{
    std::vector<DataValue> values;
    for (char16_t const * const text : texts)
        values.push_back(DataValue(GetBinaryCollation(), text));
    return values;
}

}  // namespace

TEST(ConvertToType, TheNumbersOfTheModesAreFixed)
{
    static_assert(static_cast<int>(RoundingMode::Up) == 0 && static_cast<int>(RoundingMode::Down) == 1 &&
                  static_cast<int>(RoundingMode::Unnecessary) == 2);
    SUCCEED();
}

TEST(ConvertToType, TheSameTypeIsACopyInEveryMode)
{
    for (DataValue const & value : AllSamples())
        for (auto const mode : {RoundingMode::Up, RoundingMode::Down, RoundingMode::Unnecessary})
            EXPECT_TRUE(SameFields(ConvertToType(value, value.GetDataType(), mode), value))
                << testing::PrintToString(value);
}

TEST(ConvertToType, NumbersRoundInTheAskedDirection)
{
    struct Row
    {
        double value;
        long long up, down;
    };
    Row const rows[] = {
        {1.2, 2, 1},
        {-1.2, -1, -2},
        {3.0, 3, 3},
        {-0.5, 0, -1},
        {2147483647.0, 2147483647, 2147483647},
        {2147483646.5, 2147483647, 2147483646},
        {-2147483648.0, -2147483648, -2147483648},
        {-2147483648.5, -2147483648, -2147483648},
        // Beyond 32 bits the processor's conversion gives the lowest.
        {2147483647.5, -2147483648, 2147483647},
        {3000000000.0, -2147483648, -2147483648},
        {-3000000000.0, -2147483648, -2147483648},
        {1e300, -2147483648, -2147483648},
        {std::numeric_limits<double>::quiet_NaN(), -2147483648, -2147483648},
    };
    for (Row const & row : rows) {
        EXPECT_EQ(ConvertToType(DataValue(row.value), DataType::Integer, RoundingMode::Up), DataValue(row.up))
            << row.value;
        EXPECT_EQ(ConvertToType(DataValue(row.value), DataType::Integer, RoundingMode::Down), DataValue(row.down))
            << row.value;
    }
    for (auto const mode : {RoundingMode::Up, RoundingMode::Down, RoundingMode::Unnecessary}) {
        EXPECT_EQ(ConvertToType(DataValue(3), DataType::Real, mode), DataValue(3.0));
        EXPECT_EQ(ConvertToType(DataValue((1LL << 53) + 1), DataType::Real, mode), DataValue(9007199254740992.0));
    }
}

TEST(ConvertToType, AModeOutsideTheEnumerationRoundsDown)
{
    EXPECT_EQ(ConvertToType(DataValue(1.2), DataType::Integer, static_cast<RoundingMode>(3)), DataValue(1));
}

TEST(ConvertToType, DaysAreRoundedUpFromTheFirstTick)
{
    auto const up = [](DataValue const & value) { return ConvertToType(value, DataType::Date, RoundingMode::Up); };
    auto const down = [](DataValue const & value) { return ConvertToType(value, DataType::Date, RoundingMode::Down); };
    EXPECT_EQ(up(DatetimeOf(2020, 1, 31, 0, 0, 0)), DateOf(2020, 1, 31));
    EXPECT_EQ(down(DatetimeOf(2020, 1, 31, 0, 0, 0)), DateOf(2020, 1, 31));
    EXPECT_EQ(up(DatetimeOf(2020, 1, 31, 0, 0, 1)), DateOf(2020, 2, 1));
    EXPECT_EQ(down(DatetimeOf(2020, 1, 31, 23, 59, 59)), DateOf(2020, 1, 31));
    EXPECT_EQ(up(DatetimeOf(2020, 1, 31, 0, 0, 0, 0.0001)), DateOf(2020, 2, 1));
    EXPECT_EQ(up(DatetimeOf(9999, 12, 31, 12, 0, 0)), Null(DataType::Date));
    EXPECT_EQ(ConvertToType(DateOf(2020, 1, 31), DataType::DateTime, RoundingMode::Unnecessary),
              DatetimeOf(2020, 1, 31, 0, 0, 0));
    EXPECT_THAT([&] { up(DataValue(DateTime::FromValue(DateTime::minGregorianDate), DataType::DateTime)); },
                ThrowsError("VeltriaException_AutoGen_0xDD90F63D"));
}

TEST(ConvertToType, MarkersAreNotLookedAt)
{
    EXPECT_EQ(ConvertToType(Null(DataType::Integer), DataType::Real, RoundingMode::Up), DataValue(0.0));
    EXPECT_EQ(ConvertToType(Null(DataType::Real), DataType::Integer, RoundingMode::Up), DataValue(0));
    EXPECT_EQ(ConvertToType(Null(DataType::DateTime), DataType::Date, RoundingMode::Up), DateOf(1899, 12, 30));
    EXPECT_EQ(ConvertToType(Null(DataType::Date), DataType::DateTime, RoundingMode::Up),
              DatetimeOf(1899, 12, 30, 0, 0, 0));
}

TEST(ConvertToType, AssertsOnWrongTargetsAndModes)
{
    struct Row
    {
        DataValue value;
        DataType neighbour;
        char const * text;
        char const * error;
    };
    Row const rows[] = {
        {DataValue(1), DataType::Real, "targetType == DataType::Real", "LogicException_LogicAssert_0x007398D2"},
        {DataValue(1.0), DataType::Integer, "targetType == DataType::Integer", "LogicException_LogicAssert_0xF95ACAF3"},
        {DatetimeOf(2020, 1, 1, 0, 0, 0), DataType::Date, "targetType == DataType::Date",
         "LogicException_LogicAssert_0x342B3714"},
        {DateOf(2020, 1, 1), DataType::DateTime, "targetType == DataType::DateTime",
         "LogicException_LogicAssert_0xB6ECE404"},
    };
    for (Row const & row : rows)
        for (int target = 0; target < kTypes; ++target)
            for (auto const mode : {RoundingMode::Up, RoundingMode::Down, RoundingMode::Unnecessary}) {
                if (TypeOf(target) == row.neighbour || TypeOf(target) == row.value.GetDataType())
                    continue;
                EXPECT_THAT([&] { ConvertToType(row.value, TypeOf(target), mode); }, ThrowsAssert(row.text, row.error));
            }

    std::string const lossless = "roundingMode != RoundingMode::Unnecessary";
    EXPECT_THAT([] { ConvertToType(DataValue(1.0), DataType::Integer, RoundingMode::Unnecessary); },
                ThrowsAssert(lossless, "LogicException_LogicAssert_0xD8D349BD"));
    EXPECT_THAT([] { ConvertToType(DatetimeOf(2020, 1, 1, 0, 0, 0), DataType::Date, RoundingMode::Unnecessary); },
                ThrowsAssert(lossless, "LogicException_LogicAssert_0xE5004855"));

    for (DataValue const & value : OtherSamples())
        EXPECT_THAT([&] { ConvertToType(value, DataType::Integer, RoundingMode::Up); },
                    ThrowsAssert("DataValueHelper ConvertToType reached unsupported conversion case.",
                                 "LogicException_LogicAssert_0x54AEFE46"));
}

TEST(BuildValueList, MakesACaption)
{
    EXPECT_EQ(BuildValueList({}, 3, false), TString(u"None"));
    EXPECT_EQ(BuildValueList({}, 3, true), TString(u"None"));
    EXPECT_EQ(BuildValueList(Texts({u"a"}), 0, false), TString(u"a"));
    EXPECT_EQ(BuildValueList(Texts({u"a", u"b", u"c"}), 3, true), TString(u"a"));
    EXPECT_EQ(BuildValueList(Texts({u"a", u"b"}), 1, false), TString(u"a & b"));
    EXPECT_EQ(BuildValueList(Texts({u"a", u"b"}), -1, false), TString(u"a & b"));
    EXPECT_EQ(BuildValueList(Texts({u"a", u"b", u"c"}), 2, false), TString(u"a, b and 1 more"));
    EXPECT_EQ(BuildValueList(Texts({u"a", u"b", u"c"}), 3, false), TString(u"a, b, c"));
    EXPECT_EQ(BuildValueList(Texts({u"a", u"b", u"c"}), 0, false), TString(u" and 3 more"));
    EXPECT_EQ(BuildValueList(Texts({u"a", u"b", u"c"}), -5, false), TString(u" and 3 more"));
    EXPECT_EQ(BuildValueList(Texts({u"a", u"b", u"c"}), std::numeric_limits<int>::max(), false), TString(u"a, b, c"));
    // Places in the values stay as they are.
    EXPECT_EQ(BuildValueList(Texts({u"%2", u"%1"}), 2, false), TString(u"%2 & %1"));
    EXPECT_EQ(BuildValueList(Texts({u"%2", u"b", u"c"}), 1, false), TString(u"%2 and 2 more"));
}

TEST(BuildFromValueList, TakesNoMoreThanTheLimit)
{
    auto const text = [](char16_t const * expected) { return DataValue::FromString(TString(expected)); };
    EXPECT_EQ(BuildFromValueList({}, 2, false), text(u"None"));
    EXPECT_EQ(BuildFromValueList({DataValue(1), DataValue(2)}, 2, false), DataValue(1));
    EXPECT_EQ(BuildFromValueList({DataValue(1), DataValue(GetBinaryCollation(), u"a")}, 0, false), DataValue(1));
    EXPECT_EQ(BuildFromValueList(Strings({u"a", u"b", u"c"}), 2, false), text(u"a & b"));
    EXPECT_EQ(BuildFromValueList(Strings({u"a", u"b", u"c"}), 3, false), text(u"a, b, c"));
    EXPECT_EQ(BuildFromValueList(Strings({u"a", u"b", u"c"}), 1, false), text(u"a"));
    EXPECT_EQ(BuildFromValueList(Strings({u"a", u"b", u"c"}), 0, false), text(u"None"));
    EXPECT_EQ(BuildFromValueList(Strings({u"a", u"b", u"c"}), -1, false), text(u"None"));
    EXPECT_EQ(BuildFromValueList({Null(DataType::String), DataValue(GetBinaryCollation(), u"b")}, 2, false),
              text(u" & b"));

    // A copy keeps its collation, a caption has the unknown one.
    DataValue const one = BuildFromValueList(Strings({u"a"}), 0, false);
    EXPECT_EQ(one.GetCollation(), GetBinaryCollation());
    EXPECT_EQ(BuildFromValueList(Strings({u"a", u"b"}), 1, true).GetCollation(), GetBinaryCollation());
    EXPECT_EQ(BuildFromValueList(Strings({u"a", u"b"}), 2, false).GetCollation(), GetUnknownCollation());
    EXPECT_EQ(BuildFromValueList({}, 2, false).GetCollation(), GetUnknownCollation());
}

TEST(BuildFromValueList, ALaterValueOfAnotherTypeRaisesIfItIsTaken)
{
    std::vector<DataValue> values = Strings({u"a"});
    values.push_back(DataValue(1));
    EXPECT_THAT([&] { BuildFromValueList(values, 2, false); },
                ThrowsError("VeltriaException_IncorrectDatatypeException_0xCA8336D0",
                            "Incorrect data type integer, getting expected string type."));
    EXPECT_EQ(BuildFromValueList(values, 1, false), DataValue::FromString(TString(u"a")));
    EXPECT_EQ(BuildFromValueList(values, 2, true), values.front());
}
