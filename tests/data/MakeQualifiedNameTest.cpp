// Most tests run for QualifiedName and for FieldName: the functions come in twins.

#include "velcoredata/data/MakeQualifiedName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/data/NameSamples.h"
#include "tests/support/ErrorMatchers.h"

namespace {

using test_support::NameOf;
using testing::ElementsAre;
using testing::IsEmpty;

template <class X>
class MakeQualifiedName : public testing::Test
{};
using Twins = testing::Types<QualifiedName, FieldName>;
TYPED_TEST_SUITE(MakeQualifiedName, Twins);

// The rvalue form leaves its argument empty.
template <class X>
X TakenLocalName(X name)
{
    X local = MakeLocalName(std::move(name));
    EXPECT_EQ(name.GetNumberOfComponents(), 0u);
    return local;
}

template <class X>
X TakenGlobalName(TString const & source, X name)
{
    X global = MakeGlobalName(source, std::move(name));
    EXPECT_EQ(name.GetNumberOfComponents(), 0u);
    return global;
}

}  // namespace

TYPED_TEST(MakeQualifiedName, PutsTheDataSourceInFront)
{
    TypeParam const local = NameOf({u"a", u"b"});
    static_assert(std::is_same_v<decltype(MakeGlobalName(u"s", local)), TypeParam>);
    static_assert(std::is_same_v<decltype(MakeGlobalName(u"s", TypeParam())), TypeParam>);
    EXPECT_EQ(MakeGlobalName(u"s", local), NameOf({u"s", u"a", u"b"}));
    EXPECT_EQ(local, NameOf({u"a", u"b"}));
    EXPECT_EQ(TakenGlobalName<TypeParam>(u"s", local), NameOf({u"s", u"a", u"b"}));
    EXPECT_EQ(local, NameOf({u"a", u"b"}));
    TypeParam const none;
    EXPECT_EQ(MakeGlobalName(u"s", none), NameOf({u"s"}));
    EXPECT_EQ(TakenGlobalName<TypeParam>(u"s", none), NameOf({u"s"}));
    EXPECT_EQ(MakeGlobalName(u"", local), NameOf({u"", u"a", u"b"}));
    // Its own root as the source.
    TypeParam own = NameOf({u"a"});
    TString const & root = own.GetRootValue();
    EXPECT_EQ(MakeGlobalName(TString(root), std::move(own)), NameOf({u"a", u"a"}));
}

TEST(MakeGlobalName, OfTwoTextsTakesThemAsTheyStand)
{
    FieldName const name = MakeGlobalName(TString(u"[s]"), TString(u"a.b"));
    EXPECT_EQ(name, NameOf({u"[s]", u"a.b"}));
    EXPECT_EQ(MakeGlobalName(u"s", u"f"), NameOf({u"s", u"f"}));
    static_assert(std::is_same_v<decltype(MakeGlobalName(u"s", u"f")), FieldName>);
}

TYPED_TEST(MakeQualifiedName, LocalNamesDifferByValueCategoryAtOneComponent)
{
    TypeParam const three = NameOf({u"s", u"f", u"g"});
    TypeParam const two = NameOf({u"s", u"f"});
    TypeParam const one = NameOf({u"a"});
    TypeParam const none;
    static_assert(std::is_same_v<decltype(MakeLocalName(two)), TypeParam>);
    static_assert(std::is_same_v<decltype(MakeLocalName(TypeParam())), TypeParam>);
    EXPECT_EQ(MakeLocalName(three), NameOf({u"f", u"g"}));
    EXPECT_EQ(MakeLocalName(two), NameOf({u"f"}));
    EXPECT_EQ(MakeLocalName(one), NameOf({u"a"}));
    EXPECT_EQ(&MakeLocalName(one).GetComponents(), &one.GetComponents());
    EXPECT_EQ(MakeLocalName(none), QualifiedName());
    EXPECT_EQ(TakenLocalName(three), NameOf({u"f", u"g"}));
    EXPECT_EQ(TakenLocalName(two), NameOf({u"f"}));
    EXPECT_EQ(TakenLocalName(one), QualifiedName());
    EXPECT_EQ(TakenLocalName(none), QualifiedName());
    EXPECT_EQ(one, NameOf({u"a"}));
    // An lvalue that is not const is copied too.
    TypeParam changeable = NameOf({u"a"});
    EXPECT_EQ(MakeLocalName(changeable), NameOf({u"a"}));
    EXPECT_EQ(changeable, NameOf({u"a"}));
}

TYPED_TEST(MakeQualifiedName, LocalNamesHandTheDataSourceBack)
{
    TString source(u"before");
    TypeParam const two = NameOf({u"s", u"f"});
    static_assert(std::is_same_v<decltype(MakeLocalName(two, source)), TypeParam>);
    EXPECT_EQ(MakeLocalName(two, source), NameOf({u"f"}));
    EXPECT_EQ(source, u"s");
    EXPECT_EQ(MakeLocalName(TypeParam(NameOf({u"a"})), source), QualifiedName());
    EXPECT_EQ(source, u"a");
    EXPECT_EQ(MakeLocalName(TypeParam(), source), QualifiedName());
    EXPECT_EQ(source, u"");
}

TYPED_TEST(MakeQualifiedName, PushesAndReplacesIntoNewNames)
{
    TypeParam const name = NameOf({u"a", u"b"});
    static_assert(std::is_same_v<decltype(PushValue(name, u"c")), TypeParam>);
    static_assert(std::is_same_v<decltype(ReplaceRoot(name, u"c")), TypeParam>);
    static_assert(std::is_same_v<decltype(ReplaceValue(name, u"c")), TypeParam>);
    EXPECT_EQ(PushValue(name, u"c"), NameOf({u"a", u"b", u"c"}));
    EXPECT_EQ(PushValue(TypeParam(), u"c"), NameOf({u"c"}));
    EXPECT_EQ(ReplaceRoot(name, u"c"), NameOf({u"c", u"b"}));
    EXPECT_EQ(ReplaceValue(name, u"c"), NameOf({u"a", u"c"}));
    EXPECT_EQ(name, NameOf({u"a", u"b"}));
    char const * const text = "name.GetNumberOfComponents() > 0";
    EXPECT_THAT([] { ReplaceRoot(TypeParam(), u"c"); }, ThrowsAssert(text, "LogicException_LogicAssert_0xA754925D"));
    EXPECT_THAT([] { ReplaceValue(TypeParam(), u"c"); }, ThrowsAssert(text, "LogicException_LogicAssert_0x2EC106E1"));
}

TEST(MakeLocalNames, OfASetCollapsesAndOfAVectorKeepsTheOrder)
{
    FieldName const xf = NameOf({u"x", u"f"});
    FieldName const yf = NameOf({u"y", u"f"});
    FieldName const a = NameOf({u"a"});
    std::set<FieldName> const set = MakeLocalNames(std::set<FieldName>{xf, yf});
    EXPECT_THAT(set, ElementsAre(FieldName(NameOf({u"f"}))));
    std::vector<FieldName> const vector = MakeLocalNames(std::vector<FieldName>{yf, a, FieldName(), xf});
    EXPECT_THAT(vector, ElementsAre(FieldName(NameOf({u"f"})), a, FieldName(), FieldName(NameOf({u"f"}))));
    EXPECT_THAT(MakeLocalNames(std::set<FieldName>()), IsEmpty());
    EXPECT_THAT(MakeLocalNames(std::vector<FieldName>()), IsEmpty());
}

TEST(MakeLocalFieldNameSet, TakesTheLocalFormsOfOneDataSource)
{
    FieldName const f = NameOf({u"s", u"f"});
    FieldName const g = NameOf({u"s", u"g", u"h"});
    std::set<LocalFieldName> const locals = MakeLocalFieldNameSetFromGlobalVec(u"s", {g, f, f});
    EXPECT_THAT(locals, ElementsAre(LocalFieldName(u"f"), LocalFieldName(NameOf({u"g", u"h"}))));
    // A single component is its own source and local already.
    EXPECT_THAT(MakeLocalFieldNameSetFromGlobalVec(u"s", {NameOf({u"s"})}), ElementsAre(LocalFieldName(u"s")));
    EXPECT_THAT(MakeLocalFieldNameSetFromGlobalVec(u"s", {}), IsEmpty());
    EXPECT_THAT(
        [&] {
            MakeLocalFieldNameSetFromGlobalVec(u"s", {f, NameOf({u"t", u"f"})});
        },
        ThrowsAssert("dataSourceName == field.GetDataSourceName()", "LogicException_LogicAssert_0xBAE9C013"));
    EXPECT_THAT([&] { MakeLocalFieldNameSetFromGlobalVec(u"S", {f}); },
                ThrowsAssert("dataSourceName == field.GetDataSourceName()", "LogicException_LogicAssert_0xBAE9C013"));
    EXPECT_THAT([] { MakeLocalFieldNameSetFromGlobalVec(u"", {FieldName()}); },
                ThrowsAssert("!m_data->m_components.empty()", "LogicException_LogicAssert_0x018B7D29"));
}

TEST(MakeLocalFieldNameSet, TakesLocalNamesAsTheyAre)
{
    FieldName const ab = NameOf({u"a", u"b"});
    FieldName const c = NameOf({u"c"});
    EXPECT_THAT(MakeLocalFieldNameSetFromLocalSet({c, ab, FieldName()}),
                ElementsAre(LocalFieldName(FieldName()), LocalFieldName(ab), LocalFieldName(c)));
    EXPECT_THAT(MakeLocalFieldNameSetFromLocalSet({}), IsEmpty());
}

// MakeLocalName(MakeGlobalName(s, n)) == n
TYPED_TEST(MakeQualifiedName, LawLocalUndoesGlobal)
{
    test_support::RandomNames random(24);
    for (int i = 0; i < 10000; ++i) {
        TypeParam const name = random.NonEmptyName();
        TString const source = random.Text();
        TypeParam const global = MakeGlobalName(source, name);
        ASSERT_EQ(TakenGlobalName<TypeParam>(source, name), global);
        ASSERT_EQ(MakeLocalName(global), name) << global;
        ASSERT_EQ(TakenLocalName(global), name) << global;
        TString out(u"before");
        ASSERT_EQ(MakeLocalName(global, out), name) << global;
        ASSERT_EQ(out, source);
    }
}

// MakeLocalName(n) from an lvalue != that from an rvalue  <=>  n has exactly one component
TYPED_TEST(MakeQualifiedName, LawTheValueCategoriesDifferExactlyAtOneComponent)
{
    test_support::RandomNames random(25);
    for (int i = 0; i < 10000; ++i) {
        TypeParam const name = random.Name(3);
        ASSERT_EQ(MakeLocalName(name) != TakenLocalName(name), name.GetNumberOfComponents() == 1) << name;
    }
}
