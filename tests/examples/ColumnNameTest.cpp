#include "typedtable/ColumnName.h"

#include <gtest/gtest.h>

#include "typedtable/UserError.h"

namespace typedtable {
namespace {

std::string Refusal(std::string const & text)
{
    try {
        ReadColumnName("--sum", text);
        return {};
    } catch (UserError const & error) {
        return error.what();
    }
}

TEST(ReadColumnName, TakesATextWithoutABracketAsItStands)
{
    for (char const * const text : {"", "a", " [a]", "a].[b]", "a.b", "column [3]"}) {
        ColumnName const column = ReadColumnName("--sum", text);
        EXPECT_EQ(column.name, text);
        EXPECT_FALSE(column.source);
    }
}

TEST(ReadColumnName, TakesAQualifiedNameApart)
{
    EXPECT_EQ(ReadColumnName("--sum", "[temp max]").name, "temp max");
    EXPECT_FALSE(ReadColumnName("--sum", "[temp max]").source);
    EXPECT_EQ(ReadColumnName("--sum", "[weather].[temp max] ").name, "temp max");
    EXPECT_EQ(ReadColumnName("--sum", "[weather].[temp max] ").source, "weather");
    EXPECT_EQ(ReadColumnName("--sum", "[].[a]]b\u00E9]").name, "a]b\u00E9");
    EXPECT_EQ(ReadColumnName("--sum", "[].[a]").source, "");
    EXPECT_EQ(ReadColumnName("--sum", "[[name]]]").name, "[name]");
}

TEST(ReadColumnName, ShowsTheErrorAndTheInput)
{
    std::string const error = "--sum: Qualified Name Parse Error --- Invalid input: ";
    EXPECT_EQ(Refusal("["), error + "dangling '[' --- Input: [");
    EXPECT_EQ(Refusal("[a"), error + "mismatched brackets --- Input: [a");
    EXPECT_EQ(Refusal("[a] b "), error + "expected '.' --- Input: [a] b");
    EXPECT_EQ(Refusal("[weather].temp"), error + "expected '[' --- Input: [weather].temp");
    EXPECT_EQ(Refusal("[weather]."), error + "dangling '.' --- Input: [weather].");
    EXPECT_EQ(Refusal("[a].[b].[c]"), "--sum: \"[a].[b].[c]\" has 3 parts; a column is [COLUMN] or [SOURCE].[COLUMN]");
}

TEST(LengthOfQualifiedName, EndsOutsideBrackets)
{
    EXPECT_EQ(LengthOfQualifiedName("[a:b]:year", ":"), 5u);
    EXPECT_EQ(LengthOfQualifiedName("[a]]:b]:year", ":"), 7u);
    EXPECT_EQ(LengthOfQualifiedName("[a].[b:]:year", ":"), 8u);
    EXPECT_EQ(LengthOfQualifiedName("[a:b]", ":"), 5u);
    EXPECT_EQ(LengthOfQualifiedName("[a:b", ":"), 4u);
    EXPECT_EQ(LengthOfQualifiedName("[a] > 3", "=<>"), 4u);
    EXPECT_EQ(LengthOfQualifiedName("", ":"), 0u);
}

}  // namespace
}  // namespace typedtable
