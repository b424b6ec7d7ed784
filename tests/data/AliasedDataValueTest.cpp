#include "velcoredata/data/AliasedDataValue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/ValueSamples.h"

namespace {

using namespace test_support;

AliasedDataValue Aliased(DataValue const & value, char16_t const * alias)
{
    return AliasedDataValue(value, TString(alias));
}

TEST(AliasedDataValue, HoldsAValueAndAnAlias)
{
    AliasedDataValue value;
    EXPECT_EQ(value.GetValue(), DataValue());
    EXPECT_FALSE(value.HasAlias());
    value.SetValue(DataValue(5));
    value.SetAlias(u"five");
    EXPECT_TRUE(value.HasAlias());
    EXPECT_EQ(value.GetAlias(), TString(u"five"));
    AliasedDataValue const copy(value);
    EXPECT_EQ(copy, Aliased(5, u"five"));
    value = AliasedDataValue(DataValue(6));
    EXPECT_FALSE(value.HasAlias());
    EXPECT_NE(copy, value);
}

TEST(AliasedDataValue, EqualityIsOfValueAndAlias)
{
    EXPECT_NE(Aliased(1, u"a"), Aliased(1, u"b"));
    EXPECT_NE(Aliased(1, u"a"), Aliased(2, u"a"));
    EXPECT_NE(Aliased(1, u"a"), Aliased(1.0, u"a"));
}

TEST(AliasedDataValue, TheAliasSeparatesButDoesNotOrder)
{
    EXPECT_EQ(AliasedDataValue::Compare(Aliased(1, u"a"), Aliased(1, u"b"), false), -1);
    EXPECT_EQ(AliasedDataValue::Compare(Aliased(1, u"b"), Aliased(1, u"a"), false), -1);
    EXPECT_EQ(AliasedDataValue::Compare(Aliased(1, u"a"), Aliased(1, u"a"), false), 0);
    EXPECT_EQ(AliasedDataValue::Compare(Aliased(1, u"a"), Aliased(1.0, u"a"), false), 0);
    EXPECT_EQ(AliasedDataValue::Compare(Aliased(2, u"a"), Aliased(1, u"b"), false), 1);
    EXPECT_EQ(AliasedDataValue::Compare(Aliased(1, u"b"), Aliased(2, u"a"), false), -1);
    DataValue const next(std::nextafter(1.0, 2.0));
    EXPECT_EQ(AliasedDataValue::Compare(Aliased(next, u"a"), Aliased(1.0, u"a"), true), 0);
    EXPECT_EQ(AliasedDataValue::Compare(Aliased(next, u"a"), Aliased(1.0, u"a"), false), 1);
    EXPECT_THAT([] { AliasedDataValue::Compare(Aliased(1, u""), Aliased(true, u""), false); },
                ThrowsError("DataValueOperatorException_AutoGen_0x5EA10C37", "type exception"));
}

TEST(AliasedDataValue, AliasesCompareByCodeUnits)
{
    EXPECT_LT(AliasedDataValue::CompareAliases(Aliased(9, u"B"), Aliased(1, u"a")), 0);
    EXPECT_GT(AliasedDataValue::CompareAliases(Aliased(1, u"a"), Aliased(9, u"B")), 0);
    EXPECT_EQ(AliasedDataValue::CompareAliases(Aliased(1, u"a"), Aliased(9, u"a")), 0);
}

}  // namespace
