#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <boost/any.hpp>

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "tests/data/NameSamples.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/QualifiedName.h"
#include "velcoredata/data/QualifiedNameException.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace {

using test_support::ComponentsOf;
using test_support::NameOf;

struct Good
{
    TString text;
    std::vector<TString> components;
};

struct Bad
{
    TString text;
    char const * code;
    char const * message;
};

std::vector<Good> GoodTexts()
{
    return {
        {u"", {}},
        {u"   ", {}},
        {u"\t\r\n\u00A0\u3000\u2028", {}},
        {u"[]", {u""}},
        {u"[a]", {u"a"}},
        {u"[a].[b]", {u"a", u"b"}},
        {u"  [a]  ", {u"a"}},
        {u"\u3000[a]\n", {u"a"}},
        {u"[ a ]", {u" a "}},
        {u"[a.b]", {u"a.b"}},
        {u"[a[b]", {u"a[b"}},
        {u"[[]", {u"["}},
        {u"[a]]b]", {u"a]b"}},
        {u"[]]]", {u"]"}},
        {u"[]]]]]", {u"]]"}},
        {u"[]].[]]]", {u"].[]"}},
        {u"[a\nb\"'\\\t]", {u"a\nb\"'\\\t"}},
        {u"[].[].[]", {u"", u"", u""}},
        {u"[a].[b].[c].[d]", {u"a", u"b", u"c", u"d"}},
        {u"[[a]]]", {u"[a]"}},
        {TString(u"[\0]", 3), {TString(u"\0", 1)}},
        {TString(u"[\xD800]]]", 5), {TString(u"\xD800]", 2)}},
        {u"[a:7]", {u"a:7"}},
    };
}

std::vector<Bad> BadTexts()
{
    char const * const bracket = "Invalid input: expected '['";
    char const * const danglingBracket = "Invalid input: dangling '['";
    char const * const mismatch = "Invalid input: mismatched brackets";
    char const * const dot = "Invalid input: expected '.'";
    char const * const danglingDot = "Invalid input: dangling '.'";
    return {
        {u"a", "5F1F5407", bracket},           {u".", "5F1F5407", bracket},
        {u"]", "5F1F5407", bracket},           {u"a.[b]", "5F1F5407", bracket},
        {u".[a]", "5F1F5407", bracket},        {TString(u"\0[a]", 4), "5F1F5407", bracket},
        {u"[a]..[b]", "5F1F5408", bracket},    {u"[a].b", "5F1F5408", bracket},
        {u"[a]. [b]", "5F1F5408", bracket},    {u"[a].]", "5F1F5408", bracket},
        {u"[", "5F1F5409", danglingBracket},   {u"[a].[", "5F1F5409", danglingBracket},
        {u" [ ", "5F1F5409", danglingBracket}, {u"[a", "5F1F540A", mismatch},
        {u"[[", "5F1F540A", mismatch},         {u"[]]", "5F1F540A", mismatch},
        {u"[a]]", "5F1F540A", mismatch},       {u"[a].[b", "5F1F540A", mismatch},
        {u"[a]].[b]]", "5F1F540A", mismatch},  {u"[a]b", "5F1F540B", dot},
        {u"[a] .[b]", "5F1F540B", dot},        {u"[a][b]", "5F1F540B", dot},
        {u"[a]\n.[b]", "5F1F540B", dot},       {u"[a]]]]]b", "5F1F540B", dot},
        {u"[a].", "5F1F540C", danglingDot},    {u"[a].[b]. ", "5F1F540C", danglingDot},
    };
}

// The parsing operations that raise, with a name for messages.
using Parse = std::function<QualifiedName(TString const &)>;
std::vector<std::pair<char const *, Parse>> Parsers()
{
    return {
        {"ParseGlobal", [](TString const & text) { return QualifiedName::ParseGlobal(text); }},
        {"ParseLocal", [](TString const & text) { return QualifiedName::ParseLocal(text); }},
        {"ParseGlobal with a cache",
         [](TString const & text) {
             std::unordered_map<TString, QualifiedName> cache;
             return QualifiedName::ParseGlobal(text, cache);
         }},
        {"ParseLocal with a cache",
         [](TString const & text) {
             std::unordered_map<TString, QualifiedName> cache;
             return QualifiedName::ParseLocal(text, cache);
         }},
        {"TryParseQualifiedName, throwing",
         [](TString const & text) { return *QualifiedName::TryParseQualifiedName(text, true); }},
    };
}

}  // namespace

TEST(QualifiedNameParse, ReadsTheGrammar)
{
    for (Good const & good : GoodTexts()) {
        SCOPED_TRACE(good.text.toStdString());
        for (auto const & [name, parse] : Parsers())
            EXPECT_EQ(ComponentsOf(parse(good.text)), good.components) << name;
        EXPECT_TRUE(QualifiedName::CanParseQualifiedName(good.text));
        auto const parsed = QualifiedName::TryParseQualifiedName(good.text, false);
        ASSERT_NE(parsed, nullptr);
        EXPECT_EQ(ComponentsOf(*parsed), good.components);
        EXPECT_EQ(QualifiedName::ParseGlobal(parsed->GetFullValue()), *parsed);
    }
}

TEST(QualifiedNameParse, RefusesEachFaultWithItsErrorAndKeepsTheInput)
{
    for (Bad const & bad : BadTexts()) {
        SCOPED_TRACE(bad.text.toStdString());
        TString const input = TString(bad.text).trim();
        std::string const error = std::string("VeltriaException_QualifiedNameParseException_0x") + bad.code;
        std::string const message =
            std::string("Qualified Name Parse Error --- ") + bad.message + " --- Input: " + input.toStdString();
        for (auto const & [name, parse] : Parsers()) {
            auto const call = [&, &parse = parse] { parse(bad.text); };
            EXPECT_THAT(call, ThrowsError(error, message)) << name;
            try {
                parse(bad.text);
            } catch (QualifiedNameException const & e) {
                EXPECT_EQ(e.GetInput(), input) << name;
            }
        }
        EXPECT_FALSE(QualifiedName::CanParseQualifiedName(bad.text));
        EXPECT_EQ(QualifiedName::TryParseQualifiedName(bad.text, false), nullptr);
    }
}

TEST(QualifiedNameParse, DoesNotFillPlacesInTheInput)
{
    EXPECT_THAT([] { QualifiedName::ParseGlobal(u"%1 %2 %3"); },
                ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F5407",
                            "Qualified Name Parse Error --- Invalid input: expected '[' --- Input: %1 %2 %3"));
}

TEST(QualifiedNameParse, SaysTheErrorInTheLanguageOfTheSession)
{
    ScopedSession const session;
    CoreThreadContext::SetGenericObject(TString(u"locale"),
                                        std::make_shared<boost::any>(std::make_shared<TLocale>(TString(u"de_DE"))));
    Bad const texts[] = {
        {u"a", "5F1F5407", "Ungültige Eingabe: „[“ erwartet"},
        {u"[a].b", "5F1F5408", "Ungültige Eingabe: „[“ erwartet"},
        {u"[", "5F1F5409", "Ungültige Eingabe: „[“ ohne Abschluss"},
        {u"[a", "5F1F540A", "Ungültige Eingabe: nicht zusammenpassende Klammern"},
        {u"[a]b", "5F1F540B", "Ungültige Eingabe: „.“ erwartet"},
        {u"[a].", "5F1F540C", "Ungültige Eingabe: „.“ ohne Fortsetzung"},
    };
    for (Bad const & bad : texts)
        EXPECT_THAT([&] { QualifiedName::ParseGlobal(bad.text); },
                    ThrowsError(std::string("VeltriaException_QualifiedNameParseException_0x") + bad.code,
                                std::string("Qualified Name Parse Error --- ") + bad.message +
                                    " --- Input: " + bad.text.toStdString()));
}

TEST(QualifiedNameParse, AnExceptionKeepsItsClassThroughCloneAndThrow)
{
    try {
        QualifiedName::ParseGlobal(u" [a] b ");
        FAIL();
    } catch (QualifiedNameException const & e) {
        EXPECT_NE(typeid(e), typeid(QualifiedNameException)) << "a class of its own";
        std::unique_ptr<QualifiedNameException> const owner(e.Clone());
        QualifiedNameException const & clone = *owner;
        EXPECT_EQ(typeid(clone), typeid(e));
        EXPECT_EQ(clone.GetInput(), u"[a] b");
        try {
            clone.Throw();
        } catch (QualifiedNameException const & again) {
            EXPECT_EQ(typeid(again), typeid(e));
            EXPECT_EQ(again.GetInput(), u"[a] b");
            EXPECT_EQ(TString(again.GetConcatenatedMessages()), TString(e.GetConcatenatedMessages()));
        }
    }
}

TEST(QualifiedNameParse, RemembersTextsAsTheyStandInTheCallersMap)
{
    std::unordered_map<TString, QualifiedName> cache;
    QualifiedName const first = QualifiedName::ParseGlobal(u" [a].[b]", cache);
    EXPECT_EQ(first, NameOf({u"a", u"b"}));
    ASSERT_EQ(cache.size(), 1u);
    EXPECT_EQ(cache.count(u" [a].[b]"), 1u);
    // The same text gives the same block; the text without its blank is another one.
    EXPECT_EQ(&QualifiedName::ParseLocal(u" [a].[b]", cache).GetComponents(), &first.GetComponents());
    EXPECT_EQ(cache.size(), 1u);
    EXPECT_NE(&QualifiedName::ParseGlobal(u"[a].[b]", cache).GetComponents(), &first.GetComponents());
    EXPECT_EQ(cache.size(), 2u);
    // What stands in the map is not parsed.
    cache.emplace(u"no name", NameOf({u"x"}));
    EXPECT_EQ(QualifiedName::ParseGlobal(u"no name", cache), NameOf({u"x"}));
    EXPECT_EQ(QualifiedName::ParseLocal(u"no name", cache), NameOf({u"x"}));
    // A failure leaves nothing behind.
    EXPECT_THAT([&] { QualifiedName::ParseGlobal(u"[a", cache); },
                ThrowsError("VeltriaException_QualifiedNameParseException_0x5F1F540A"));
    EXPECT_EQ(cache.size(), 3u);
    // A returned copy is the caller's own.
    QualifiedName::ParseGlobal(u"[a].[b]", cache).PushValue(u"c");
    EXPECT_EQ(cache.at(u"[a].[b]"), NameOf({u"a", u"b"}));
}

TEST(QualifiedNameParse, TakesAnUnquotedTextAsItStands)
{
    for (char16_t const * text : {u"", u"[a]", u" a ", u"a.b", u"[", u"]"})
        EXPECT_EQ(ComponentsOf(QualifiedName::ParseUnquoted(text)), std::vector<TString>{TString(text)});
}

TEST(QualifiedNameParse, AMillionComponentsComeBack)
{
    constexpr std::size_t count = 1'000'000;
    boost::container::small_vector<TString, 2> components;
    components.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        components.push_back(TString(static_cast<char16_t>(u'[' + i % 3), static_cast<int>(i % 3)));  // "", "\", "]]"
    QualifiedName const name(std::move(components));
    TString const & text = name.GetFullValue();
    EXPECT_EQ(static_cast<std::size_t>(text.length()), 3 * count - 1 + 333'333 + 4 * 333'333);
    QualifiedName const parsed = QualifiedName::ParseGlobal(text);
    EXPECT_EQ(parsed.GetNumberOfComponents(), count);
    EXPECT_TRUE(parsed == name);
    EXPECT_EQ(parsed.Hash(), name.Hash());
    EXPECT_TRUE(QualifiedName::CanParseQualifiedName(text));
    EXPECT_FALSE(QualifiedName::CanParseQualifiedName(text + u"."));
    EXPECT_EQ(parsed.PopRootValue().GetNumberOfComponents(), count - 1);
}

TEST(QualifiedNameParse, AMillionOpenOrClosedBracketsAreNoTrouble)
{
    EXPECT_TRUE(QualifiedName::CanParseQualifiedName(TString(u'[', 1'000'000) + u"]"));
    EXPECT_FALSE(QualifiedName::CanParseQualifiedName(TString(u'[', 1'000'000)));
    TString const pairs = u"[" + TString(u']', 2'000'001);
    EXPECT_EQ(QualifiedName::ParseGlobal(pairs).GetLeafValue(), TString(u']', 1'000'000));
    EXPECT_FALSE(QualifiedName::CanParseQualifiedName(pairs + u"]"));
}
