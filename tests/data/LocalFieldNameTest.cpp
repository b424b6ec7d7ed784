#include "velcoredata/data/LocalFieldName.h"

#include <gtest/gtest.h>

#include <set>
#include <type_traits>
#include <unordered_set>

#include "tests/data/NameSamples.h"
#include "tests/support/ErrorMatchers.h"

namespace {

using test_support::NameOf;

static_assert(sizeof(LocalFieldName) == sizeof(FieldName), "the field name is its only member");
static_assert(!std::is_polymorphic_v<LocalFieldName>);

}  // namespace

TEST(LocalFieldName, HoldsAFieldNameOrOneComponent)
{
    FieldName const name = NameOf({u"a", u"b"});
    LocalFieldName const local(name);
    EXPECT_EQ(&local.AsFieldName().GetComponents(), &name.GetComponents());
    EXPECT_EQ(&local.AsFieldName(), &local.AsFieldName());
    EXPECT_EQ(local.GetFullValue(), u"[a].[b]");
    LocalFieldName const copy(local);
    EXPECT_EQ(&copy.AsFieldName().GetComponents(), &name.GetComponents());

    // As it stands, unlike ParseLocal.
    EXPECT_EQ(LocalFieldName(u"a.b").AsFieldName(), NameOf({u"a.b"}));
    EXPECT_EQ(LocalFieldName(TString(u"[a]")).GetFullValue(), u"[[a]]]");
    EXPECT_THAT([] { FieldName::ParseLocal(u"a.b"); },
                ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F5407"));
}

TEST(LocalFieldName, ComparesAndHashesAsItsName)
{
    LocalFieldName const a(u"a");
    LocalFieldName const b(u"b");
    EXPECT_TRUE(a == LocalFieldName(NameOf({u"a"})));
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    EXPECT_FALSE(a != a);
    EXPECT_TRUE(a < b);
    EXPECT_FALSE(b < a);
    EXPECT_FALSE(a < a);
    EXPECT_TRUE(LocalFieldName(u"aZ") < a) << "by full values";
    EXPECT_EQ(std::hash<LocalFieldName>()(a), std::hash<FieldName>()(a.AsFieldName()));
    EXPECT_EQ((std::unordered_set<LocalFieldName>{a, b, LocalFieldName(u"a")}).size(), 2u);
    EXPECT_EQ((std::hash<std::set<LocalFieldName>>()({a, b})),
              (std::hash<std::set<FieldName>>()({a.AsFieldName(), b.AsFieldName()})));
    EXPECT_EQ((std::hash<std::set<LocalFieldName>>()({})), 0u);
}

TEST(LocalFieldName, HasLiterals)
{
    EXPECT_TRUE(u"[a].[b]"_lnm == LocalFieldName(NameOf({u"a", u"b"})));
    EXPECT_TRUE(L"[a.b]"_lnm == LocalFieldName(u"a.b"));
    EXPECT_THAT([] { L"a.b"_lnm; }, ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F5407"));
    EXPECT_THAT([] { u"a.b"_lnm; }, ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F5407"));
}
