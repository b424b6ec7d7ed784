#include "velcoredata/data/QualifiedName.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <sstream>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

#include "tests/data/NameSamples.h"
#include "tests/support/ErrorMatchers.h"
#include "velsys/Hash.h"

namespace {

using test_support::ComponentsOf;
using test_support::NameOf;
using testing::ElementsAre;
using testing::IsEmpty;

using Components = boost::container::small_vector<TString, 2>;

constexpr char const * kNotEmpty = "!m_data->m_components.empty()";

static_assert(std::has_virtual_destructor_v<QualifiedName>);
static_assert(sizeof(QualifiedName) == sizeof(void *) + sizeof(std::shared_ptr<int>), "one data member");
static_assert(std::is_nothrow_copy_constructible_v<QualifiedName>);
static_assert(std::is_nothrow_move_constructible_v<QualifiedName>);
static_assert(std::is_same_v<decltype(QualifiedName().GetComponents()), Components const &>);
static_assert(std::is_same_v<decltype(QualifiedName().GetFullValue()), TString const &>);
static_assert(std::is_same_v<decltype(QualifiedName().Hash()), unsigned>);

// Names are made and dropped while the process ends, too.
struct AtExit
{
    QualifiedName name{u"a", u"b"};
    ~AtExit()
    {
        QualifiedName none;
        if (name.PopLeafValue().PopLeafValue() != none || !none.GetFullValue().isEmpty() ||
            !none.TryGetRootValue().isEmpty() || name.GetFullValue() != u"[a].[b]")
            std::abort();
    }
} const s_atExit;

// Runs a changing operation on a name that has a copy: the copy stays as it was.
template <class Change>
QualifiedName Changed(QualifiedName const & name, Change change)
{
    QualifiedName changed(name);
    QualifiedName const copy(changed);
    change(changed);
    EXPECT_EQ(copy, name);
    EXPECT_EQ(copy.GetFullValue(), name.GetFullValue());
    return changed;
}

}  // namespace

TEST(QualifiedName, IsMadeOfComponentsAsTheyStand)
{
    EXPECT_THAT(ComponentsOf(QualifiedName()), IsEmpty());
    EXPECT_THAT(ComponentsOf(QualifiedName(TString(u" [a] "))), ElementsAre(TString(u" [a] ")));
    EXPECT_THAT(ComponentsOf(QualifiedName(TString())), ElementsAre(TString()));
    EXPECT_THAT(ComponentsOf(QualifiedName(u"a.b", u" ]")), ElementsAre(TString(u"a.b"), TString(u" ]")));
    EXPECT_THAT(ComponentsOf(QualifiedName::ParseUnquoted(u"[a].[b]")), ElementsAre(TString(u"[a].[b]")));
    Components list;
    for (char16_t const * text : {u"a", u"", u"c"})
        list.push_back(text);
    EXPECT_THAT(ComponentsOf(QualifiedName(std::move(list))), ElementsAre(TString(u"a"), TString(), TString(u"c")));
    EXPECT_THAT(ComponentsOf(QualifiedName(Components())), IsEmpty());
}

TEST(QualifiedName, HasTheFullValueOfTheGrammar)
{
    EXPECT_EQ(QualifiedName().GetFullValue(), u"");
    EXPECT_EQ(QualifiedName(TString()).GetFullValue(), u"[]");
    EXPECT_EQ(QualifiedName(TString(u"a")).GetFullValue(), u"[a]");
    EXPECT_EQ(QualifiedName(u"sales", u"Order Date").GetFullValue(), u"[sales].[Order Date]");
    EXPECT_EQ(QualifiedName(TString(u"a]")).GetFullValue(), u"[a]]]");
    EXPECT_EQ(QualifiedName(TString(u"]]a]b")).GetFullValue(), u"[]]]]a]]b]");
    EXPECT_EQ(QualifiedName::ParseUnquoted(u"[a]").GetFullValue(), u"[[a]]]");
    EXPECT_EQ(NameOf({u"", u"", u""}).GetFullValue(), u"[].[].[]");
    TString const withZero(u"a\0]b", 4);
    EXPECT_EQ(QualifiedName(withZero).GetFullValue(), TString(u"[a\0]]b]", 7));
}

TEST(QualifiedName, FullValueIsTerminatedAndSharedByCopies)
{
    QualifiedName const name(u"a", u"b");
    QualifiedName const copy(name);
    TString const & text = copy.GetFullValue();
    EXPECT_EQ(&name.GetFullValue(), &text);
    EXPECT_EQ(text.GetString()[text.length()], u'\0');
    QualifiedName assigned;
    assigned = name;
    EXPECT_EQ(&assigned.GetFullValue(), &text);
}

TEST(QualifiedName, GivesItsComponents)
{
    QualifiedName const name = NameOf({u"a", u"b", u"c"});
    EXPECT_EQ(name.GetNumberOfComponents(), 3u);
    EXPECT_EQ(name.GetComponents().size(), 3u);
    EXPECT_EQ(name.GetComponent(0), u"a");
    EXPECT_EQ(name.GetComponent(2), u"c");
    EXPECT_EQ(name.GetRootValue(), u"a");
    EXPECT_EQ(name.GetLeafValue(), u"c");
    EXPECT_EQ(name.TryGetRootValue(), u"a");
    EXPECT_EQ(name.TryGetLeafValue(), u"c");
    QualifiedName const single(TString(u"x"));
    EXPECT_EQ(&single.GetRootValue(), &single.GetLeafValue());
}

TEST(QualifiedName, RefusesAnIndexAboveTheNumberOfComponents)
{
    char const * const text = "i <= m_data->m_components.size()";
    char const * const error = "LogicException_LogicAssert_0x71586053";
    QualifiedName const name(u"a", u"b");
    EXPECT_THAT([&] { name.GetComponent(3); }, ThrowsAssert(text, error));
    EXPECT_THAT([&] { name.GetComponent(static_cast<std::size_t>(-1)); }, ThrowsAssert(text, error));
    EXPECT_THAT([] { QualifiedName().GetComponent(1); }, ThrowsAssert(text, error));
    // The number of components itself passes; only the address is taken here.
    EXPECT_EQ(&name.GetComponent(2), &name.GetComponent(1) + 1);
}

TEST(QualifiedName, WithoutComponentsHasNoRootAndNoLeaf)
{
    QualifiedName const none;
    EXPECT_THAT([&] { none.GetRootValue(); }, ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0x018B7D29"));
    EXPECT_THAT([&] { none.GetLeafValue(); }, ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0x995B56B5"));
    EXPECT_EQ(none.TryGetRootValue(), u"");
    EXPECT_EQ(none.TryGetLeafValue(), u"");
    // One object for all roots, another for all leaves.
    QualifiedName const other;
    EXPECT_EQ(&none.TryGetRootValue(), &other.TryGetRootValue());
    EXPECT_EQ(&none.TryGetLeafValue(), &other.TryGetLeafValue());
    EXPECT_NE(&none.TryGetRootValue(), &none.TryGetLeafValue());
}

TEST(QualifiedName, IsEmptyWithoutComponentsAndWithOneEmptyComponent)
{
    EXPECT_TRUE(QualifiedName().IsEmpty());
    EXPECT_TRUE(QualifiedName(TString()).IsEmpty());
    EXPECT_FALSE(QualifiedName(TString(u" ")).IsEmpty());
    EXPECT_FALSE(QualifiedName(u"", u"").IsEmpty());
    EXPECT_FALSE(QualifiedName(TString(u"a")).IsEmpty());
    EXPECT_NE(QualifiedName(), QualifiedName(TString()));
}

TEST(QualifiedName, PopsAndPushesIntoNewNames)
{
    QualifiedName const abc = NameOf({u"a", u"b", u"c"});
    EXPECT_EQ(abc.PopLeafValue(), NameOf({u"a", u"b"}));
    EXPECT_EQ(abc.PopRootValue(), NameOf({u"b", u"c"}));
    EXPECT_EQ(abc.PushLeafValue(u"d"), NameOf({u"a", u"b", u"c", u"d"}));
    EXPECT_EQ(abc.PushRootValue(u"d"), NameOf({u"d", u"a", u"b", u"c"}));
    EXPECT_EQ(abc.ReplaceLeafValue(u"d"), NameOf({u"a", u"b", u"d"}));
    EXPECT_EQ(abc.ReplaceRootValue(u"d"), NameOf({u"d", u"b", u"c"}));
    EXPECT_EQ(abc, NameOf({u"a", u"b", u"c"}));

    EXPECT_EQ(QualifiedName().PushLeafValue(u"a"), NameOf({u"a"}));
    EXPECT_EQ(QualifiedName().PushRootValue(u"a"), NameOf({u"a"}));
    EXPECT_EQ(QualifiedName(TString(u"a")).ReplaceLeafValue(u"b"), NameOf({u"b"}));
    EXPECT_EQ(QualifiedName(TString(u"a")).ReplaceRootValue(u"b"), NameOf({u"b"}));
    for (QualifiedName const & name : {QualifiedName(), QualifiedName(TString(u"a"))}) {
        EXPECT_EQ(name.PopLeafValue().GetNumberOfComponents(), 0u);
        EXPECT_EQ(name.PopRootValue().GetNumberOfComponents(), 0u);
        EXPECT_TRUE(name.PopLeafValue().IsEmpty());
        EXPECT_TRUE(name.PopRootValue().IsEmpty());
    }
}

TEST(QualifiedName, PopsStoreWhatTheyTookOff)
{
    TString text(u"before");
    EXPECT_EQ(NameOf({u"a", u"b", u"c"}).PopLeafValue(text), NameOf({u"a", u"b"}));
    EXPECT_EQ(text, u"c");
    EXPECT_EQ(NameOf({u"a", u"b", u"c"}).PopRootValue(text), NameOf({u"b", u"c"}));
    EXPECT_EQ(text, u"a");
    EXPECT_EQ(NameOf({u"x"}).PopLeafValue(text), QualifiedName());
    EXPECT_EQ(text, u"x");
    EXPECT_EQ(NameOf({u"y"}).PopRootValue(text), QualifiedName());
    EXPECT_EQ(text, u"y");
    EXPECT_EQ(QualifiedName().PopLeafValue(text), QualifiedName());
    EXPECT_EQ(text, u"");
    text = u"before";
    EXPECT_EQ(QualifiedName().PopRootValue(text), QualifiedName());
    EXPECT_EQ(text, u"");
}

TEST(QualifiedName, ReplacesRefuseANameWithoutComponents)
{
    QualifiedName none;
    EXPECT_THAT([&] { none.ReplaceLeafValue(u"a"); }, ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0x1A407BE2"));
    EXPECT_THAT([&] { none.ReplaceRootValue(u"a"); }, ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0xE7D6FD7C"));
    EXPECT_THAT([&] { none.ReplaceValue(u"a"); }, ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0xA8C5A1E9"));
    EXPECT_THAT([&] { none.ReplaceRoot(u"a"); }, ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0x4181ADF3"));
    EXPECT_THAT([&] { none.SetRootValue(u"a"); }, ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0x4181ADF3"));
    EXPECT_EQ(none.GetNumberOfComponents(), 0u);
}

TEST(QualifiedName, ChangesThisObjectAlone)
{
    QualifiedName const abc = NameOf({u"a", u"b", u"c"});
    TString taken;
    EXPECT_EQ(Changed(abc, [&](QualifiedName & name) { taken = name.PopValue(); }), NameOf({u"a", u"b"}));
    EXPECT_EQ(taken, u"c");
    EXPECT_EQ(Changed(abc, [&](QualifiedName & name) { taken = name.PopRoot(); }), NameOf({u"b", u"c"}));
    EXPECT_EQ(taken, u"a");
    EXPECT_EQ(Changed(abc, [](QualifiedName & name) { name.PushValue(u"d"); }), NameOf({u"a", u"b", u"c", u"d"}));
    EXPECT_EQ(Changed(abc, [](QualifiedName & name) { name.PushRoot(u"d"); }), NameOf({u"d", u"a", u"b", u"c"}));
    EXPECT_EQ(Changed(abc, [](QualifiedName & name) { name.ReplaceValue(u"d"); }), NameOf({u"a", u"b", u"d"}));
    EXPECT_EQ(Changed(abc, [](QualifiedName & name) { name.ReplaceRoot(u"d"); }), NameOf({u"d", u"b", u"c"}));
    EXPECT_EQ(Changed(abc, [](QualifiedName & name) { name.SetRootValue(u"d"); }), NameOf({u"d", u"b", u"c"}));
    EXPECT_EQ(Changed(abc, [](QualifiedName & name) { name.Clear(); }), QualifiedName());
    // Its own component as the argument.
    EXPECT_EQ(Changed(abc, [](QualifiedName & name) { name.PushValue(name.GetRootValue()); }),
              NameOf({u"a", u"b", u"c", u"a"}));
    EXPECT_EQ(Changed(abc, [](QualifiedName & name) { name.ReplaceRoot(name.GetLeafValue()); }),
              NameOf({u"c", u"b", u"c"}));
}

TEST(QualifiedName, PopsOfTheEmptyNameAreQuiet)
{
    QualifiedName name;
    EXPECT_EQ(name.PopValue(), u"");
    EXPECT_EQ(name.PopRoot(), u"");
    EXPECT_EQ(name, QualifiedName());
    name.PushValue(u"a");
    EXPECT_EQ(name.PopRoot(), u"a");
    EXPECT_EQ(name, QualifiedName());
    EXPECT_EQ(name.GetNumberOfComponents(), 0u);
}

TEST(QualifiedName, SwapsAndMoves)
{
    QualifiedName a = NameOf({u"a"});
    QualifiedName b = NameOf({u"b", u"c", u"d"});
    a.Swap(b);
    EXPECT_EQ(a, NameOf({u"b", u"c", u"d"}));
    EXPECT_EQ(b, NameOf({u"a"}));

    QualifiedName const moved(std::move(a));
    EXPECT_EQ(moved, NameOf({u"b", u"c", u"d"}));
    EXPECT_EQ(a, QualifiedName());
    EXPECT_EQ(a.GetFullValue(), u"");
    a.PushValue(u"again");
    EXPECT_EQ(a, NameOf({u"again"}));

    b = std::move(a);
    EXPECT_EQ(b, NameOf({u"again"}));
    EXPECT_EQ(a.GetNumberOfComponents(), 0u);
    QualifiedName & same = b;
    b = std::move(same);
    EXPECT_EQ(b, NameOf({u"again"}));
    b = same;
    EXPECT_EQ(b, NameOf({u"again"}));
}

TEST(QualifiedName, EqualityIsThatOfComponents)
{
    EXPECT_EQ(NameOf({u"a", u"b"}), NameOf({u"a", u"b"}));
    EXPECT_NE(NameOf({u"a", u"b"}), NameOf({u"a", u"B"}));
    EXPECT_NE(NameOf({u"a", u"b"}), NameOf({u"a"}));
    EXPECT_NE(NameOf({u"a", u"b"}), NameOf({u"a.b"}));
    EXPECT_NE(NameOf({u"a", u"b"}), NameOf({u"ab"}));
    EXPECT_NE(NameOf({u"a", u"b"}), NameOf({u"a].[b"}));
    EXPECT_NE(NameOf({u"\u00E9"}), NameOf({u"e\u0301"}));
}

TEST(QualifiedName, OrderIsThatOfFullValues)
{
    // The brackets take part: "]" stands above capitals and blanks, below small letters.
    EXPECT_LT(NameOf({u"a b"}), NameOf({u"a", u"b"}));
    EXPECT_LT(NameOf({u"aZ"}), NameOf({u"a"}));
    EXPECT_LT(NameOf({u"a"}), NameOf({u"aa"}));
    EXPECT_LT(NameOf({u"a"}), NameOf({u"a", u"b"}));
    EXPECT_LT(QualifiedName(), NameOf({u""}));
    // By code units: a surrogate pair is below U+FF21.
    EXPECT_LT(NameOf({u"\U0001F600"}), NameOf({u"\uFF21"}));
    EXPECT_FALSE(NameOf({u"a"}) < NameOf({u"a"}));
    EXPECT_FALSE(NameOf({u"b"}) < NameOf({u"a"}));

    EXPECT_LT(NameOf({u"a"}).Compare(NameOf({u"b"})), 0);
    EXPECT_GT(NameOf({u"a"}).Compare(NameOf({u"B"})), 0);
    EXPECT_EQ(NameOf({u"a"}).Compare(NameOf({u"a"})), 0);
    EXPECT_LT(NameOf({u"a"}).CompareNoCase(NameOf({u"B"})), 0);
    EXPECT_EQ(NameOf({u"sales", u"Order Date"}).CompareNoCase(NameOf({u"SALES", u"order date"})), 0);
    EXPECT_EQ(NameOf({u"\u00C9"}).CompareNoCase(NameOf({u"\u00E9"})), 0);
    EXPECT_GT(NameOf({u"b"}).CompareNoCase(NameOf({u"A"})), 0);

    std::set<QualifiedName> const names{NameOf({u"b"}), NameOf({u"a"}), NameOf({u"b"})};
    EXPECT_THAT(names, ElementsAre(NameOf({u"a"}), NameOf({u"b"})));
}

TEST(QualifiedName, LeafValuesOrderWithoutCase)
{
    QualifiedNameCompareLeafValueNoCase const less;
    static_assert(std::has_virtual_destructor_v<QualifiedNameCompareLeafValueNoCase>);
    EXPECT_TRUE(less(NameOf({u"z", u"A"}), NameOf({u"a", u"b"})));
    EXPECT_TRUE(less(NameOf({u"z", u"a"}), NameOf({u"a", u"B"})));
    EXPECT_FALSE(less(NameOf({u"a", u"B"}), NameOf({u"z", u"a"})));
    EXPECT_FALSE(less(NameOf({u"a"}), NameOf({u"A"})));
    EXPECT_FALSE(less(NameOf({u"A"}), NameOf({u"a"})));
    // "_" stands between the capitals and the small letters: it is compared with the latter.
    EXPECT_TRUE(less(NameOf({u"_"}), NameOf({u"B"})));
    EXPECT_THAT([&] { less(QualifiedName(), NameOf({u"a"})); },
                ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0x995B56B5"));
    EXPECT_THAT([&] { less(NameOf({u"a"}), QualifiedName()); },
                ThrowsAssert(kNotEmpty, "LogicException_LogicAssert_0x995B56B5"));

    std::vector<QualifiedName> names{NameOf({u"s", u"b"}), NameOf({u"s", u"C"}), NameOf({u"s", u"A"})};
    std::sort(names.begin(), names.end(), less);
    EXPECT_THAT(names, ElementsAre(NameOf({u"s", u"A"}), NameOf({u"s", u"b"}), NameOf({u"s", u"C"})));
}

TEST(QualifiedName, HashChainsTheComponents)
{
    EXPECT_EQ(QualifiedName().Hash(), 0xDEADBEEFu);
    EXPECT_EQ(NameOf({u"ab"}).Hash(), THash32(u"ab", 4, 0xDEADBEEFu));
    EXPECT_EQ(NameOf({u"ab", u"c"}).Hash(), THash32(u"c", 2, THash32(u"ab", 4, 0xDEADBEEFu)));
    EXPECT_EQ(NameOf({u"", u"c", u""}).Hash(), THash32(u"", 0, THash32(u"c", 2, THash32(u"", 0, 0xDEADBEEFu))));
    EXPECT_EQ(std::hash<QualifiedName>()(NameOf({u"ab"})), THash32(u"ab", 4, 0xDEADBEEFu));
    QualifiedName const name(u"a", u"b");
    EXPECT_EQ(name.Hash(), name.Hash());
    EXPECT_EQ(QualifiedName(u"a", u"b").Hash(), name.Hash());

    std::unordered_set<QualifiedName> const names{NameOf({u"a"}), NameOf({u"a"}), NameOf({u"b"})};
    EXPECT_EQ(names.size(), 2u);
}

TEST(QualifiedName, GoesToAStreamAsUtf8)
{
    std::ostringstream out;
    out << NameOf({u"\u00E9t\u00E9", u"a]"}) << QualifiedName();
    EXPECT_EQ(out.str(), "[\u00E9t\u00E9].[a]]]");
    std::ostringstream lone;
    lone << QualifiedName(TString(u"\xD800", 1));
    EXPECT_EQ(lone.str(), "[?]");
}

TEST(QualifiedName, HasLiterals)
{
    EXPECT_EQ(u"[a].[b]"_qn, NameOf({u"a", u"b"}));
    EXPECT_EQ(L"[a].[\u00E9]"_qn, NameOf({u"a", u"\u00E9"}));
    EXPECT_EQ(u"[a\0b]"_qn, NameOf({TString(u"a\0b", 3)}));
    EXPECT_EQ(L"[a\0b]"_qn, NameOf({TString(u"a\0b", 3)}));
    EXPECT_EQ(u" "_qn, QualifiedName());
    using namespace K_qn;
    EXPECT_THAT([] { u"a"_qn; }, ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F5407"));
    EXPECT_THAT([] { L"a"_qn; }, ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F5407"));
}
