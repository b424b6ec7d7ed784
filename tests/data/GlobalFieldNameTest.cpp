#include "velcoredata/data/GlobalFieldName.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <unordered_set>

#include "tests/data/NameSamples.h"
#include "tests/support/ErrorMatchers.h"

namespace {

using test_support::NameOf;

static_assert(sizeof(GlobalFieldName) == sizeof(FieldName), "the field name is its only member");
static_assert(!std::is_polymorphic_v<GlobalFieldName>);
static_assert(!std::is_reference_v<decltype(GlobalFieldName(FieldName()).AsFieldName())>, "a copy");

}  // namespace

TEST(GlobalFieldName, HoldsAFieldNameOrASourceAndALocalName)
{
    FieldName const name = NameOf({u"sales", u"Order Date"});
    GlobalFieldName const global(name);
    EXPECT_EQ(&global.AsFieldName().GetComponents(), &name.GetComponents());
    GlobalFieldName const copy(global);
    EXPECT_EQ(&copy.AsFieldName().GetComponents(), &name.GetComponents());
    EXPECT_EQ(GlobalFieldName(u"sales", LocalFieldName(NameOf({u"a", u"b"}))).AsFieldName(),
              NameOf({u"sales", u"a", u"b"}));
    EXPECT_EQ(GlobalFieldName(u"", LocalFieldName(FieldName())).AsFieldName(), NameOf({u""}));
    EXPECT_EQ(global.GetDataSourceName(), u"sales");
    EXPECT_EQ(global.GetFullValue(), u"[sales].[Order Date]");
    EXPECT_THAT([] { GlobalFieldName(FieldName()).GetDataSourceName(); },
                ThrowsAssert("!m_data->m_components.empty()", "LogicException_LogicAssert_0x018B7D29"));
}

TEST(GlobalFieldName, GivesTheLocalNameInTheCopyingForm)
{
    EXPECT_TRUE(GlobalFieldName(NameOf({u"s", u"a", u"b"})).GetLocalFieldName() ==
                LocalFieldName(NameOf({u"a", u"b"})));
    EXPECT_TRUE(GlobalFieldName(NameOf({u"a"})).GetLocalFieldName() == LocalFieldName(u"a"));
    EXPECT_TRUE(GlobalFieldName(FieldName()).GetLocalFieldName() == LocalFieldName(FieldName()));
}

TEST(GlobalFieldName, ComparesAndHashesAsItsName)
{
    GlobalFieldName const a(NameOf({u"s", u"a"}));
    GlobalFieldName const b(NameOf({u"s", u"b"}));
    EXPECT_TRUE(a == GlobalFieldName(u"s", LocalFieldName(u"a")));
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a < b);
    EXPECT_FALSE(b < a);
    EXPECT_FALSE(a < a);
    EXPECT_EQ(std::hash<GlobalFieldName>()(a), std::hash<FieldName>()(a.AsFieldName()));
    EXPECT_EQ((std::unordered_set<GlobalFieldName>{a, b, a}).size(), 2u);
}

TEST(GlobalFieldName, HasLiterals)
{
    EXPECT_TRUE(u"[s].[a]"_gnm == GlobalFieldName(NameOf({u"s", u"a"})));
    EXPECT_TRUE(L"[s].[a]"_gnm == GlobalFieldName(NameOf({u"s", u"a"})));
    EXPECT_THAT([] { L"[s]a"_gnm; }, ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F540B"));
    EXPECT_THAT([] { u"[s]a"_gnm; }, ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F540B"));
}
