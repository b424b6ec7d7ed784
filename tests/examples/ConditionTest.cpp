#include "typedtable/Condition.h"

#include <gtest/gtest.h>

#include "typedtable/UserError.h"
#include "typedtable/ValueText.h"

namespace typedtable {
namespace {

struct GoodCase
{
    char const * text;
    char const * column;
    Comparison comparison;
    DataType type;
    char const * literal;  // as ValueText has it
};

TEST(ReadCondition, TakesAColumnAComparisonAndALiteral)
{
    using enum Comparison;
    for (GoodCase const & good : {
             GoodCase{"temp_max > 20", "temp_max", Greater, DataType::Integer, "20"},
             GoodCase{"a=-7", "a", Equal, DataType::Integer, "-7"},
             GoodCase{"a!=.5", "a", NotEqual, DataType::Real, "0.5"},
             GoodCase{"a<1e3", "a", Less, DataType::Real, "1000"},
             GoodCase{" two words <=\t9223372036854775808 ", "two words", LessOrEqual, DataType::Real,
                      "9.22337203685478e+18"},
             GoodCase{"a>=TRUE", "a", GreaterOrEqual, DataType::Boolean, "true"},
             GoodCase{"a = false", "a", Equal, DataType::Boolean, "false"},
             GoodCase{"a = 2012-01-31", "a", Equal, DataType::Date, "2012-01-31"},
             GoodCase{"a = #2012-01-31#", "a", Equal, DataType::Date, "2012-01-31"},
             GoodCase{"a = #2012-01-31 06:30#", "a", Equal, DataType::DateTime, "2012-01-31 06:30:00"},
             GoodCase{"a = 2012-01-31T06:30:00.25", "a", Equal, DataType::DateTime, "2012-01-31 06:30:00.2500"},
             GoodCase{"a = \"rain\"", "a", Equal, DataType::String, "rain"},
             GoodCase{"a = 'o''hare \"x\"'", "a", Equal, DataType::String, "o'hare \"x\""},
             GoodCase{"a = \"\"\"\"", "a", Equal, DataType::String, "\""},
             GoodCase{"a = ''", "a", Equal, DataType::String, ""},
             GoodCase{"a = ' 20 > 3 '", "a", Equal, DataType::String, " 20 > 3 "},
             GoodCase{"a = null", "a", Equal, DataType::Unknown, "%null%"},
             GoodCase{"\"a<b\" > 3", "a<b", Greater, DataType::Integer, "3"},
             GoodCase{"\"a \"\"b\"\"\"=3", "a \"b\"", Equal, DataType::Integer, "3"},
         })
    {
        SCOPED_TRACE(good.text);
        Condition const condition = ReadCondition(good.text);
        EXPECT_EQ(condition.column.name, good.column);
        EXPECT_FALSE(condition.column.source);
        EXPECT_EQ(condition.comparison, good.comparison);
        EXPECT_EQ(condition.literal.GetDataType(), good.type);
        EXPECT_EQ(ValueText(condition.literal), good.literal);
    }
}

TEST(ReadCondition, TakesAQualifiedName)
{
    struct Case
    {
        char const * text;
        char const * source;  // null without one
        char const * column;
    };
    for (Case const & good :
         {Case{"[temp max] > 20", nullptr, "temp max"}, Case{"  [weather].[temp max]>20", "weather", "temp max"},
          Case{"[a<b] > 20", nullptr, "a<b"}, Case{"[a]]=].[\"!\"] > 20", "a]=", "\"!\""},
          Case{"[[a]]] > 20", nullptr, "[a]"}})
    {
        SCOPED_TRACE(good.text);
        Condition const condition = ReadCondition(good.text);
        EXPECT_EQ(condition.column.name, good.column);
        EXPECT_EQ(condition.column.source.has_value(), good.source != nullptr);
        EXPECT_EQ(condition.column.source.value_or(""), good.source == nullptr ? "" : good.source);
        EXPECT_EQ(condition.comparison, Comparison::Greater);
        EXPECT_EQ(ValueText(condition.literal), "20");
    }
    // In double quotes brackets are part of the name.
    EXPECT_EQ(ReadCondition("\"[a]\" > 20").column.name, "[a]");
    for (char const * const text : {"[a", "[a > 20", "[a] b > 20", "[a]. > 20", "[a].b > 20", "[a].[b].[c] > 20",
                                    "[] > 20", "[a]", "[a] 20", "[a] >"})
        EXPECT_THROW(ReadCondition(text), UserError) << text;
}

TEST(ReadCondition, RefusesEverythingElse)
{
    for (char const * const text : {"",
                                    " ",
                                    "a",
                                    "a 3",
                                    "> 3",
                                    "\"\" > 3",
                                    "a >",
                                    "a > ",
                                    "a == 3",
                                    "a <> 3",
                                    "a ! 3",
                                    "a =! 3",
                                    "a > rain",
                                    "a > 'rain",
                                    "a > 'rain' b",
                                    "a > 'ra'in'",
                                    "a > \"rain'",
                                    "a > #2012-01-31",
                                    "a > ##",
                                    "a > # #",
                                    "a > #",
                                    "a > #20#",
                                    "a > 2012-02-30",
                                    "a > 007",
                                    "a > 1 2",
                                    "a > nan",
                                    "a > NULL",
                                    "\"a > 3",
                                    "\"a\" b > 3"})
    {
        EXPECT_THROW(ReadCondition(text), UserError) << text;
    }
}

TEST(Holds, AsksForTheOrderThatTheComparisonNames)
{
    struct Row
    {
        Comparison comparison;
        bool less, equal, greater;
    };
    using enum Comparison;
    for (Row const & row : {Row{Equal, false, true, false}, Row{NotEqual, true, false, true},
                            Row{Less, true, false, false}, Row{LessOrEqual, true, true, false},
                            Row{Greater, false, false, true}, Row{GreaterOrEqual, false, true, true}})
    {
        EXPECT_EQ(Holds(row.comparison, -1), row.less);
        EXPECT_EQ(Holds(row.comparison, 0), row.equal);
        EXPECT_EQ(Holds(row.comparison, 1), row.greater);
    }
}

}  // namespace
}  // namespace typedtable
