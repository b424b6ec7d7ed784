#include "velcoredata/string/NumberFormatOptions.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

static_assert(sizeof(UnitsFormatEnum) == 4 && sizeof(NegativeFormatEnum) == 4);
static_assert(static_cast<int>(UnitsFormatEnum::None) == 0 && static_cast<int>(UnitsFormatEnum::K) == 1 &&
              static_cast<int>(UnitsFormatEnum::M) == 2 && static_cast<int>(UnitsFormatEnum::B) == 3 &&
              static_cast<int>(UnitsFormatEnum::G) == 4);
static_assert(static_cast<int>(NegativeFormatEnum::Automatic) == 0 &&
              static_cast<int>(NegativeFormatEnum::Parentheses) == 1 &&
              static_cast<int>(NegativeFormatEnum::MinusFirst) == 2 &&
              static_cast<int>(NegativeFormatEnum::MinusLast) == 3 &&
              static_cast<int>(NegativeFormatEnum::MinusAfterPrefix) == 4 &&
              static_cast<int>(NegativeFormatEnum::MinusAfterNumber) == 5);
static_assert(std::is_nothrow_move_constructible_v<NumberFormatOptions> &&
              std::is_nothrow_move_assignable_v<NumberFormatOptions>);

namespace {

void ExpectAllFields(NumberFormatOptions const & options)
{
    EXPECT_EQ(options.decimals, 3);
    EXPECT_EQ(options.decimalSeparator, TString(u","));
    EXPECT_FALSE(options.useGrouping);
    EXPECT_EQ(options.grouping, TString(u"3;2;0"));
    EXPECT_EQ(options.thousandSeparator, TString(u"."));
    EXPECT_EQ(options.prefix, TString(u"p"));
    EXPECT_EQ(options.suffix, TString(u"s"));
    EXPECT_EQ(options.units, UnitsFormatEnum::B);
    EXPECT_EQ(options.negative, NegativeFormatEnum::MinusLast);
}

}  // namespace

TEST(NumberFormatOptions, DefaultsGroupByThreeAndNothingElse)
{
    NumberFormatOptions const options;
    EXPECT_EQ(options.decimals, 0);
    EXPECT_TRUE(options.decimalSeparator.isEmpty());
    EXPECT_TRUE(options.useGrouping);
    EXPECT_EQ(options.grouping, TString(u"3;0"));
    EXPECT_TRUE(options.thousandSeparator.isEmpty());
    EXPECT_TRUE(options.prefix.isEmpty());
    EXPECT_TRUE(options.suffix.isEmpty());
    EXPECT_EQ(options.units, UnitsFormatEnum::None);
    EXPECT_EQ(options.negative, NegativeFormatEnum::Automatic);
}

TEST(NumberFormatOptions, AllFieldsAreMadeCopiedAndMoved)
{
    NumberFormatOptions options(3, u",", false, u"3;2;0", u".", u"p", u"s", UnitsFormatEnum::B,
                                NegativeFormatEnum::MinusLast);
    ExpectAllFields(options);
    NumberFormatOptions copy(options);
    ExpectAllFields(copy);
    ExpectAllFields(NumberFormatOptions(std::move(copy)));
    NumberFormatOptions assigned;
    assigned = options;
    ExpectAllFields(assigned);
    NumberFormatOptions moved;
    moved = std::move(options);
    ExpectAllFields(moved);
}
