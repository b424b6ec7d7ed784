#include "typedtable/ColumnTyping.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "typedtable/ValueText.h"
#include "velcoredata/utility/DataValueOperators.h"
#include "velcoreplatform/TString.h"

namespace typedtable {
namespace {

struct CellCase
{
    std::string cell;
    DataType type;     // that the cell alone gives to a column
    std::string text;  // of the value
};

TEST(ColumnTyping, TypesACellByWhatItReadsAs)
{
    using enum DataType;
    std::vector<CellCase> const cases = {
        {"0", Integer, "0"},
        {"42", Integer, "42"},
        {"-7", Integer, "-7"},
        {"+7", Integer, "7"},
        {"-0", Integer, "0"},
        {" 42\t", Integer, "42"},
        {"9223372036854775807", Integer, "9223372036854775807"},
        {"-9223372036854775808", Integer, "-9223372036854775808"},
        {"9223372036854775808", Real, "9.22337203685478e+18"},
        {"007", String, "007"},
        {"-01", String, "-01"},
        {"00", String, "00"},
        {"1,000", String, "1,000"},
        {"1 000", String, "1 000"},
        {"+", String, "+"},
        {"-", String, "-"},
        {"+-1", String, "+-1"},
        {"--1", String, "--1"},
        {"0x10", String, "0x10"},
        {"12a", String, "12a"},
        {"\xD9\xA1", String, "\xD9\xA1"},  // a digit, but not of ASCII
        {"0.5", Real, "0.5"},
        {".5", Real, "0.5"},
        {"5.", Real, "5"},
        {"-0.25", Real, "-0.25"},
        {"+1.5", Real, "1.5"},
        {"1e3", Real, "1000"},
        {"1E-3", Real, "0.001"},
        {"1.5e+2", Real, "150"},
        {"0e0", Real, "0"},
        {"00.5", String, "00.5"},
        {".", String, "."},
        {"e5", String, "e5"},
        {"1e", String, "1e"},
        {"1e+", String, "1e+"},
        {"1.2.3", String, "1.2.3"},
        {"1e999", String, "1e999"},
        {"inf", String, "inf"},
        {"nan", String, "nan"},
        {"true", Boolean, "true"},
        {"FALSE", Boolean, "false"},
        {"True", Boolean, "true"},
        {"yes", String, "yes"},
        {"tru", String, "tru"},
        {"truth", String, "truth"},
        {"2012-01-31", Date, "2012-01-31"},
        {"0400-01-01", Date, "0400-01-01"},
        {"9999-12-31", Date, "9999-12-31"},
        {"2012-02-29", Date, "2012-02-29"},
        {"1600-02-29", Date, "1600-02-29"},
        {"1900-02-29", String, "1900-02-29"},
        {"2013-02-29", String, "2013-02-29"},
        {"0399-12-31", String, "0399-12-31"},
        {"2012-00-01", String, "2012-00-01"},
        {"2012-13-01", String, "2012-13-01"},
        {"2012-04-31", String, "2012-04-31"},
        {"2012-04-00", String, "2012-04-00"},
        {"2012-1-31", String, "2012-1-31"},
        {"12-01-31", String, "12-01-31"},
        {"20120131", Integer, "20120131"},
        {"2012/01/31", String, "2012/01/31"},
        {"2012-01-31x", String, "2012-01-31x"},
        {"-2012-01-31", String, "-2012-01-31"},
        {"2012-01-31 06:30", DateTime, "2012-01-31 06:30:00"},
        {"2012-01-31T06:30", DateTime, "2012-01-31 06:30:00"},
        {"2012-01-31T00:00", DateTime, "2012-01-31 00:00:00"},
        {"2012-01-31T23:59:59", DateTime, "2012-01-31 23:59:59"},
        {"2012-01-31T06:30:15.5", DateTime, "2012-01-31 06:30:15.5000"},
        {"2012-01-31T06:30:15.123", DateTime, "2012-01-31 06:30:15.1230"},
        {"2012-01-31T06:30:15.123456789", DateTime, "2012-01-31 06:30:15.1230"},
        {"2012-12-31T23:59:59.99999", DateTime, "2012-12-31 23:59:59.9990"},
        {"9999-12-31T23:59:59", DateTime, "9999-12-31 23:59:59"},
        {"9999-12-31T23:59:59.5", String, "9999-12-31T23:59:59.5"},
        {"2012-01-31t06:30", String, "2012-01-31t06:30"},
        {"2012-01-31T", String, "2012-01-31T"},
        {"2012-01-31  06:30", String, "2012-01-31  06:30"},
        {"2012-01-31T6:30", String, "2012-01-31T6:30"},
        {"2012-01-31T24:00", String, "2012-01-31T24:00"},
        {"2012-01-31T06:60", String, "2012-01-31T06:60"},
        {"2012-01-31T06:30:60", String, "2012-01-31T06:30:60"},
        {"2012-01-31T06", String, "2012-01-31T06"},
        {"2012-01-31T06:30:", String, "2012-01-31T06:30:"},
        {"2012-01-31T06:30:15.", String, "2012-01-31T06:30:15."},
        {"2012-01-31T06:30:15.1234567890", String, "2012-01-31T06:30:15.1234567890"},
        {"2012-01-31T06:30.5", String, "2012-01-31T06:30.5"},
        {"2012-01-31T06:30Z", String, "2012-01-31T06:30Z"},
        {"2012-01-31T06:30+01:00", String, "2012-01-31T06:30+01:00"},
        {"rain", String, "rain"},
        {" rain ", String, " rain "},
        {"caf\xC3\xA9", String, "caf\xC3\xA9"},
    };
    for (CellCase const & row : cases) {
        ColumnTyping typing;
        typing.Add(row.cell);
        EXPECT_EQ(typing.GetType(), row.type) << row.cell;
        EXPECT_EQ(typing.GetNulls(), 0) << row.cell;
        auto const value = ReadCell(row.cell, typing.GetType());
        ASSERT_TRUE(value.has_value()) << row.cell;
        EXPECT_EQ(value->GetDataType(), row.type) << row.cell;
        EXPECT_FALSE(value->IsNull()) << row.cell;
        EXPECT_EQ(ValueText(*value), row.text) << row.cell;
    }
}

DataType TypeOf(std::initializer_list<char const *> cells)
{
    ColumnTyping typing;
    for (char const * cell : cells)
        typing.Add(cell);
    return typing.GetType();
}

TEST(ColumnTyping, TakesTheNarrowestTypeThatReadsEveryCell)
{
    EXPECT_EQ(TypeOf({"1", "2", "3"}), DataType::Integer);
    EXPECT_EQ(TypeOf({"1", "2.5"}), DataType::Real);
    EXPECT_EQ(TypeOf({"2.5", "1"}), DataType::Real);
    EXPECT_EQ(TypeOf({"1", "9223372036854775808"}), DataType::Real);
    EXPECT_EQ(TypeOf({"1", "007"}), DataType::String);
    EXPECT_EQ(TypeOf({"true", "FALSE"}), DataType::Boolean);
    EXPECT_EQ(TypeOf({"true", "1"}), DataType::String);
    EXPECT_EQ(TypeOf({"1", "true"}), DataType::String);
    EXPECT_EQ(TypeOf({"2012-01-31", "2012-02-01"}), DataType::Date);
    EXPECT_EQ(TypeOf({"2012-01-31", "2012-02-01 00:00"}), DataType::DateTime);
    EXPECT_EQ(TypeOf({"2012-02-01 00:00", "2012-01-31"}), DataType::DateTime);
    EXPECT_EQ(TypeOf({"2012-01-31", "31.1.2012"}), DataType::String);
    EXPECT_EQ(TypeOf({"2012-01-31", "2012"}), DataType::String);
    EXPECT_EQ(TypeOf({"2012-01-31 00:00", "1.5"}), DataType::String);
    EXPECT_EQ(TypeOf({"1.5", "x", "1.5"}), DataType::String);
}

TEST(ColumnTyping, KeepsTheCellThatMadeItText)
{
    ColumnTyping typing;
    long long line = 1;
    for (char const * cell : {"1", "", "2.5", "007", "x", "3"})
        typing.Add(cell, ++line);
    ASSERT_TRUE(typing.GetBreaker().has_value());
    EXPECT_EQ(typing.GetBreaker()->line, 5);
    EXPECT_EQ(typing.GetBreaker()->cell, "007");

    ColumnTyping texts;
    for (char const * cell : {"x", "1"})
        texts.Add(cell, ++line);
    EXPECT_FALSE(texts.GetBreaker().has_value());
    ColumnTyping numbers;
    for (char const * cell : {"1", "2.5"})
        numbers.Add(cell, ++line);
    EXPECT_FALSE(numbers.GetBreaker().has_value());
}

TEST(ColumnTyping, CountsNullsWithoutTypingByThem)
{
    ColumnTyping typing;
    for (char const * cell : {"", "1", " ", "2", "\t"})
        typing.Add(cell);
    EXPECT_EQ(typing.GetType(), DataType::Integer);
    EXPECT_EQ(typing.GetNulls(), 3);
    EXPECT_EQ(TypeOf({}), DataType::String);
    EXPECT_EQ(TypeOf({"", ""}), DataType::String);
}

TEST(ReadCell, GivesANullOfTheTypeForAnEmptyCell)
{
    using enum DataType;
    for (DataType const type : {Integer, Real, Boolean, Date, DateTime, String}) {
        for (char const * cell : {"", "  ", " \t"}) {
            auto const value = ReadCell(cell, type);
            ASSERT_TRUE(value.has_value());
            EXPECT_TRUE(value->IsNull());
            EXPECT_EQ(value->GetDataType(), type);
            EXPECT_EQ(ValueText(*value), "%null%");
        }
    }
}

TEST(ReadCell, GivesTheValueOfTheCast)
{
    using enum DataType;
    DataValueOperators const operators;
    for (auto const & [cell, type] :
         {std::pair("42", Integer), std::pair("-9223372036854775808", Integer), std::pair("1e-3", Real),
          std::pair("9223372036854775808", Real), std::pair("2012-02-29", Date), std::pair("2012-02-29", DateTime),
          std::pair("2012-01-31T06:30:15.123456789", DateTime)})
    {
        auto const value = ReadCell(cell, type);
        ASSERT_TRUE(value.has_value()) << cell;
        EXPECT_EQ(*value, operators.ExplicitCast(DataValue::FromString(TString::fromStdString(cell)), type)) << cell;
    }
}

TEST(CastCell, TakesWhatTheCastTakesAndMarksTheRest)
{
    using enum DataType;
    EXPECT_EQ(CastCell(" 007 ", Integer), DataValue(7));
    EXPECT_EQ(CastCell("1.9", Integer), DataValue(1));
    EXPECT_EQ(CastCell(" 007 ", String).GetString(), TString(u" 007 "));
    for (DataType const type : {Integer, Real, Date, DateTime, Spatial, String}) {
        DataValue const null = CastCell(" \t", type);
        EXPECT_TRUE(null.IsNull());
        EXPECT_EQ(null.GetDataType(), type);
    }
    for (DataType const type : {Integer, Real, Date, DateTime}) {
        DataValue const error = CastCell("x", type);
        EXPECT_TRUE(error.IsSpecial(DataValueTypes::Error));
        EXPECT_EQ(error.GetDataType(), type);
        EXPECT_EQ(ValueText(error), "%error%");
    }
    EXPECT_TRUE(CastCell("x", Spatial).IsNull());
}

TEST(ReadCell, GivesNothingForACellOfAnotherType)
{
    EXPECT_FALSE(ReadCell("1.5", DataType::Integer));
    EXPECT_FALSE(ReadCell("x", DataType::Real));
    EXPECT_FALSE(ReadCell("1", DataType::Boolean));
    EXPECT_FALSE(ReadCell("2012-01-31 00:00", DataType::Date));
    EXPECT_FALSE(ReadCell("2012-01", DataType::DateTime));
}

TEST(ReadCell, ReadsNarrowerCellsAsTheWiderType)
{
    EXPECT_EQ(ReadCell("3", DataType::Real)->GetReal(), 3.0);
    EXPECT_EQ(ReadCell("2012-01-31", DataType::DateTime)->GetDatetime(), ::DateTime(2012, 1, 31, 0, 0, 0, 0.0));
    EXPECT_EQ(ReadCell(" 1 ", DataType::String)->GetString(), TString(u" 1 "));
}

}  // namespace
}  // namespace typedtable
