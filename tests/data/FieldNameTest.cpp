#include "velcoredata/data/FieldName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "tests/data/NameSamples.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/QualifiedNameException.h"
#include "velsys/Hash.h"

namespace {

using test_support::NameOf;

static_assert(std::is_base_of_v<QualifiedName, FieldName>);
static_assert(sizeof(FieldName) == sizeof(QualifiedName), "no data of its own");
static_assert(std::has_virtual_destructor_v<FieldName>);

constexpr char const * kNotEmpty = "!m_data->m_components.empty()";

}  // namespace

TEST(FieldName, SharesOrTakesTheBlock)
{
    EXPECT_EQ(FieldName().GetNumberOfComponents(), 0u);
    QualifiedName name(u"a", u"b");
    auto const * const block = &name.GetComponents();
    FieldName const shared(name);
    EXPECT_EQ(&shared.GetComponents(), block);
    FieldName taken(std::move(name));
    EXPECT_EQ(&taken.GetComponents(), block);
    EXPECT_EQ(name, QualifiedName());
    FieldName copy(taken);
    EXPECT_EQ(&copy.GetComponents(), block);
    FieldName moved(std::move(copy));
    EXPECT_EQ(&moved.GetComponents(), block);
    EXPECT_EQ(copy.GetNumberOfComponents(), 0u);
    FieldName assigned;
    assigned = moved;
    EXPECT_EQ(&assigned.GetComponents(), block);
    FieldName moveAssigned;
    moveAssigned = std::move(assigned);
    EXPECT_EQ(&moveAssigned.GetComponents(), block);
    EXPECT_EQ(assigned.GetNumberOfComponents(), 0u);
}

TEST(FieldName, ParsesAsQualifiedNames)
{
    FieldName const name = FieldName::ParseGlobal(u" [sales].[Order Date] ");
    EXPECT_EQ(name, NameOf({u"sales", u"Order Date"}));
    EXPECT_EQ(FieldName::ParseLocal(u"[a].[b]"), NameOf({u"a", u"b"}));
    EXPECT_EQ(FieldName::ParseUnquoted(u"[a]"), NameOf({u"[a]"}));
    EXPECT_THAT([] { FieldName::ParseGlobal(u"a"); },
                ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F5407"));
    EXPECT_THAT([] { FieldName::ParseLocal(u"[a"); },
                ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F540A"));

    std::unordered_map<TString, QualifiedName> cache;
    FieldName const first = FieldName::ParseGlobal(u"[a]", cache);
    EXPECT_EQ(&FieldName::ParseLocal(u"[a]", cache).GetComponents(), &first.GetComponents());
    // One map serves both classes.
    EXPECT_EQ(&QualifiedName::ParseGlobal(u"[a]", cache).GetComponents(), &first.GetComponents());
    EXPECT_EQ(cache.size(), 1u);
    EXPECT_THAT([&] { FieldName::ParseLocal(u"[a].", cache); },
                ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F540C"));
    EXPECT_EQ(cache.size(), 1u);
}

TEST(FieldName, TriesToParseWithoutRaising)
{
    auto const name = FieldName::TryParseFieldName(u"[a].[b]");
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(*name, NameOf({u"a", u"b"}));
    auto const none = FieldName::TryParseFieldName(u" ");
    ASSERT_NE(none, nullptr);
    EXPECT_EQ(none->GetNumberOfComponents(), 0u);
    for (char16_t const * text : {u"a", u"[a].b", u"[", u"[a", u"[a]b", u"[a]."})
        EXPECT_EQ(FieldName::TryParseFieldName(text), nullptr);
}

TEST(FieldName, TellsDataSourceAndLeaf)
{
    FieldName const name = NameOf({u"sales", u"Order Date", u"a]"});
    EXPECT_EQ(name.GetDataSourceName(), u"sales");
    EXPECT_EQ(name.GetLeafValue(), u"a]");
    EXPECT_EQ(name.FormatDisplay(), u"a]");
    EXPECT_EQ(&name.FormatDisplay(), &name.GetLeafValue());
    FieldName const none;
    EXPECT_THAT([&] { none.GetDataSourceName(); }, ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0x018B7D29"));
    EXPECT_THAT([&] { none.GetLeafValue(); }, ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0x995B56B5"));
    EXPECT_THAT([&] { none.FormatDisplay(); }, ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0x995B56B5"));
}

TEST(FieldName, HashesAsItsNameDoes)
{
    FieldName const name = NameOf({u"a", u"b"});
    EXPECT_EQ(std::hash<FieldName>()(name), static_cast<std::size_t>(name.Hash()));
    std::unordered_set<FieldName> const names{name, FieldName(name), NameOf({u"c"})};
    EXPECT_EQ(names.size(), 2u);
}

TEST(FieldName, HashesOfSetsAndVectorsFoldTheNames)
{
    FieldName const a = NameOf({u"a"});
    FieldName const b = NameOf({u"b"});
    unsigned long long const expected = THashCombine(THashCombine(0, a.Hash()), b.Hash());
    EXPECT_EQ(std::hash<std::vector<FieldName>>()({a, b}), expected);
    EXPECT_EQ((std::hash<std::set<FieldName>>()({b, a})), expected);
    EXPECT_NE(std::hash<std::vector<FieldName>>()({b, a}), expected);
    EXPECT_EQ(std::hash<std::vector<FieldName>>()({}), 0u);
    EXPECT_EQ((std::hash<std::set<FieldName>>()({})), 0u);
    EXPECT_NE(std::hash<std::vector<FieldName>>()({FieldName()}), 0u);
}

// hash(set) == hash(vector with the names of the set in its order)
TEST(FieldNameLaws, ASetAndAVectorInTheSameOrderHashAlike)
{
    test_support::RandomNames random(27);
    for (int i = 0; i < 10000; ++i) {
        std::set<FieldName> names;
        for (std::size_t n = random.Texts().Below(6); n > 0; --n)
            names.insert(random.Name(3));
        std::vector<FieldName> const inOrder(names.begin(), names.end());
        std::size_t const hash = std::hash<std::set<FieldName>>()(names);
        ASSERT_EQ(hash, std::hash<std::vector<FieldName>>()(inOrder));
        ASSERT_EQ(hash == 0, names.empty());
    }
}

TEST(FieldName, HasLiterals)
{
    FieldName const narrow = u"[a].[b]"_fn;
    EXPECT_EQ(narrow, NameOf({u"a", u"b"}));
    EXPECT_EQ(L"[a].[b\0c]"_fn, NameOf({u"a", TString(u"b\0c", 3)}));
    static_assert(std::is_same_v<decltype(L"[a]"_fn), FieldName>);
    EXPECT_THAT([] { K_fn::operator""_fn(u"a", 1); },
                ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F5407"));
}
