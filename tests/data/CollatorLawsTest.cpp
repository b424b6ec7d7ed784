// Laws of comparing, hashing, searching and mapping, on seeded random texts.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "main/data/CollatorAttributes.h"
#include "main/data/CollatorSpec.h"
#include "main/data/ICUCollator.h"
#include "tests/data/CollationSamples.h"
#include "tests/support/RandomCollationText.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/CollatorNames.h"

namespace {

using Text = std::u16string;

constexpr int draws = 10000;

int Sign(int value)
{
    return (value > 0) - (value < 0);
}

Text TextOf(std::vector<char16_t> const & out)
{
    EXPECT_NE(std::find(out.begin(), out.end(), 0), out.end()) << "not terminated";
    return Text(out.data());
}

using Mapping = void (Collator::*)(std::vector<char16_t> &, char16_t const *) const;

Text Mapped(Collator const & collator, Mapping mapping, Text const & text)
{
    std::vector<char16_t> out;
    (collator.*mapping)(out, text.c_str());
    return TextOf(out);
}

Text Replaced(Collator const & collator, Text const & text, Text const & pattern, Text const & with)
{
    std::vector<char16_t> out;
    collator.Replace(out, text.c_str(), pattern.c_str(), with.c_str());
    return TextOf(out);
}

// The collations of the laws and one for each sample locale, with the number of draws that each deserves.
template <class Check>
void ForEachCollation(Check const & check)
{
    for (char16_t const * name : lawCollations)
        check(Collation(name, 0), draws);
    unsigned options = 0;
    for (char const * locale : sampleLocales) {
        ++options;
        check(Collation(locale, false, static_cast<Collation::CaseOpt>(options % 2),
                        static_cast<Collation::AccentOpt>(options / 2 % 2), Collation::SortDefault,
                        static_cast<Collation::PunctOpt>(options % 3), 0),
              draws / 50);
    }
}

std::string Show(Collation const & collation, Text const & a, Text const & b)
{
    return collation.GetName().toStdString() + " \"" + TString::fromStdU16String(a).toStdString() + "\" \"" +
           TString::fromStdU16String(b).toStdString() + "\"";
}

// The collation under which a match equals its pattern: ICU's search sees primary differences only when punctuation is
// shifted or the case level is on.
Collation MatchingCollation(Collation const & collation)
{
    auto const * const icu = dynamic_cast<ICUCollator const *>(&*collation.GetCollator());
    if (icu == nullptr || (icu->GetAttribute(detail::ALTERNATE_HANDLING) != detail::SHIFTED &&
                           icu->GetAttribute(detail::CASE_LEVEL) != detail::ON))
        return collation;
    TString const name = detail::WithCollatorAttribute(collation.GetName(), detail::CASE_LEVEL, -1);
    return Collation(detail::WithCollatorAttribute(name, detail::STRENGTH, detail::PRIMARY), 0);
}

}  // namespace

TEST(CollatorLaws, ComparingIsAntisymmetricReflexiveAndTransitive)
{
    ForEachCollation([](Collation const & collation, int count) {
        test_support::RandomCollationText random(4);
        Collator const & c = *collation.GetCollator();
        for (int i = 0; i < count; ++i) {
            Text x = random.Text(8), y = random.OneIn(2) ? random.Near(x) : random.Text(8),
                 z = random.OneIn(2) ? random.Near(y) : random.Text(8);
            EXPECT_EQ(Sign(c.Compare(x.c_str(), y.c_str())), -Sign(c.Compare(y.c_str(), x.c_str())))
                << Show(collation, x, y);
            EXPECT_EQ(c.Compare(x.c_str(), x.c_str()), 0);
            Text * sorted[] = {&x, &y, &z};
            std::sort(sorted, sorted + 3, [&](Text * a, Text * b) { return c.Compare(a->c_str(), b->c_str()) < 0; });
            EXPECT_LE(c.Compare(sorted[0]->c_str(), sorted[2]->c_str()), 0) << Show(collation, x, y);
        }
    });
}

TEST(CollatorLaws, EqualTextsHashEqually)
{
    ForEachCollation([](Collation const & collation, int count) {
        test_support::RandomCollationText random(5);
        Collator const & c = *collation.GetCollator();
        bool const binary = collation.GetName() == u"binary";
        for (int i = 0; i < count; ++i) {
            Text const x = random.Text(6);
            Text const y = random.OneIn(8) ? random.Text(6) : random.Near(x);
            bool const equal = c.Compare(x.c_str(), y.c_str()) == 0;
            if (equal) {
                EXPECT_EQ(c.Hash(x.c_str()), c.Hash(y.c_str())) << Show(collation, x, y);
            }
            if (binary) {
                EXPECT_EQ(equal, x == y);
            }
        }
    });
}

TEST(CollatorLaws, LengthFormAndTerminatedFormAgree)
{
    ForEachCollation([](Collation const & collation, int count) {
        test_support::RandomCollationText random(6);
        Collator const & c = *collation.GetCollator();
        for (int i = 0; i < count; ++i) {
            Text const x = random.Text(8);
            Text const y = random.OneIn(2) ? random.Near(x) : random.Text(8);
            int const byLength =
                c.Compare(x.c_str(), static_cast<int>(x.size()), y.c_str(), static_cast<int>(y.size()));
            int const terminated = c.Compare(x.c_str(), y.c_str());
            if (collation.GetName() == u"binary") {
                EXPECT_EQ(Sign(byLength), Sign(terminated));
            } else {
                EXPECT_EQ(byLength, terminated) << Show(collation, x, y);
                EXPECT_EQ(byLength, Sign(byLength));
            }
        }
    });
}

TEST(CollatorLaws, EquivalenceIsReflexiveAndSymmetricUnlessBothAreWindows)
{
    std::vector<Collation> collations;
    for (char16_t const * name : lawCollations)
        collations.emplace_back(name, static_cast<unsigned short>(0));
    for (char const * locale : sampleLocales)
        collations.emplace_back(locale, false, Collation::CaseDefault, Collation::AccentDefault, Collation::SortDefault,
                                Collation::PunctDefault, static_cast<unsigned short>(0));
    for (char16_t const * name : {u"LEN_RUS_VWIN", u"LEN_VWIN", u"LDE_RDE_VWIN", u"LEN_RUS_VWINX", u"LEN_RUS_S2_VWIN"})
        collations.emplace_back(name, static_cast<unsigned short>(0));
    int asymmetric = 0;
    for (Collation const & a : collations)
        for (Collation const & b : collations) {
            bool const ab = a.IsEquivalent(b);
            if (&a == &b) {
                EXPECT_TRUE(ab);
            }
            if (a.IsWindowsSpecific() && b.IsWindowsSpecific())
                asymmetric += ab != b.IsEquivalent(a);
            else
                EXPECT_EQ(ab, b.IsEquivalent(a)) << a.GetName() << ' ' << b.GetName();
        }
    // "en_US_WIN" lies inside "en_US_WINX", not the other way round.
    EXPECT_EQ(asymmetric, 2);
}

TEST(CollatorLaws, EquivalentCollationsOfOneLocaleCompareAlike)
{
    char16_t const * const pairs[][2] = {{u"LEN_RUS", u"LEN_RUS_S3"},       {u"LEN_RUS_S2", u"EX_LEN_RUS_S2"},
                                         {u"LEN_RUS_WO", u"LEN_RUS_S3_WO"}, {u"AS_LEN_RUS", u"AS_LEN_RUS_SD"},
                                         {u"LSV_RSE", u"AX_LSV_RSE"},       {u"LTH", u"HX_LTH"},
                                         {u"EO_LEN_S1", u"EO_HO_LEN_S1"}};
    for (auto const & pair : pairs) {
        Collation const a(pair[0], 0), b(pair[1], 0);
        ASSERT_TRUE(a.IsEquivalent(b)) << a.GetName() << b.GetName();
        test_support::RandomCollationText random(8);
        for (int i = 0; i < 1000; ++i) {
            Text const x = random.Text(8), y = random.Near(x);
            EXPECT_EQ(a.Compare(x.c_str(), y.c_str()), b.Compare(x.c_str(), y.c_str())) << Show(a, x, y);
        }
    }
}

TEST(CollatorLaws, AMatchLiesInTheTextAndEqualsThePattern)
{
    ForEachCollation([](Collation const & collation, int count) {
        test_support::RandomCollationText random(9);
        Collator const & c = *collation.GetCollator();
        Collation const matching = MatchingCollation(collation);
        bool const binary = collation.GetName() == u"binary";
        for (int i = 0; i < count / 2; ++i) {
            Text const text = random.Text(10);
            Text const pattern =
                random.OneIn(2) || text.empty()
                    ? random.Text(3)
                    : text.substr(static_cast<std::size_t>(random.Below(static_cast<int>(text.size()))),
                                  static_cast<std::size_t>(1 + random.Below(3)));
            int n = -7;
            int const k = c.Search(text.c_str(), pattern.c_str(), 0, &n);
            if (binary) {
                std::size_t const at = pattern.empty() ? Text::npos : text.find(pattern);
                EXPECT_EQ(k, at == Text::npos ? -1 : static_cast<int>(at));
            }
            if (k < 0)
                continue;
            EXPECT_LE(k + n, static_cast<int>(text.size()));
            Text const match = text.substr(static_cast<std::size_t>(k), static_cast<std::size_t>(n));
            EXPECT_EQ(matching.Compare(match.c_str(), pattern.c_str()), 0)
                << Show(collation, text, pattern) << k << ' ' << n;
        }
    });
}

TEST(CollatorLaws, ReplaceRemovesWhatSearchFinds)
{
    ForEachCollation([](Collation const & collation, int count) {
        test_support::RandomCollationText random(10);
        Collator const & c = *collation.GetCollator();
        for (int i = 0; i < count / 2; ++i) {
            Text const text = random.Text(10);
            Text const pattern =
                random.OneIn(3) || text.empty()
                    ? random.Text(2) + u"a"
                    : text.substr(static_cast<std::size_t>(random.Below(static_cast<int>(text.size()))),
                                  static_cast<std::size_t>(1 + random.Below(2)));
            Text kept;
            int end = 0;
            for (;;) {
                int n = 0;
                int const k = c.Search(text.c_str(), pattern.c_str(), end, &n);
                if (k < 0 || n < 1)
                    break;
                kept += text.substr(static_cast<std::size_t>(end), static_cast<std::size_t>(k - end));
                end = k + n;
            }
            kept += text.substr(static_cast<std::size_t>(end));
            EXPECT_EQ(Replaced(c, text, pattern, u""), kept) << Show(collation, text, pattern);
            if (c.Search(text.c_str(), pattern.c_str()) == -1) {
                EXPECT_EQ(Replaced(c, text, pattern, u"?"), text);
            }
            if (collation.GetName() == u"binary") {
                EXPECT_EQ(Replaced(c, text, pattern, pattern), text);
            }
        }
    });
}

TEST(CollatorLaws, ReplaceEndsForPatternsThatAreIgnored)
{
    test_support::RandomCollationText random(11);
    struct
    {
        char16_t const * name;
        char16_t const * pattern;
    } const rows[] = {{u"LEN_RUS_WO", u"-"}, {u"LEN_RUS_XO", u"7"}, {u"AS_LEN_RUS", u"."}};
    for (auto const & row : rows) {
        Collation const collation(row.name, 0);
        auto const start = std::chrono::steady_clock::now();
        for (int i = 0; i < 100; ++i)
            Replaced(*collation.GetCollator(), random.Text(30), row.pattern, u"x");
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    }
}

TEST(CollatorLaws, ATextStartsAndEndsWithItself)
{
    ForEachCollation([](Collation const & collation, int count) {
        test_support::RandomCollationText random(12);
        Collator const & c = *collation.GetCollator();
        TString const & name = collation.GetName();
        bool const plain = !name.contains(u"W") && !name.contains(u"X") && !name.startsWith(u"AS");
        for (int i = 0; i < count / 2; ++i) {
            Text const text = random.Word(1, 8);
            if (plain) {
                EXPECT_TRUE(c.StartsWith(text.c_str(), text.c_str())) << Show(collation, text, text);
                EXPECT_TRUE(c.EndsWith(text.c_str(), text.c_str())) << Show(collation, text, text);
            }
            EXPECT_TRUE(c.StartsWith(text.c_str(), u""));
            EXPECT_TRUE(c.EndsWith(text.c_str(), u""));
            Text const longer = text + u"a";
            EXPECT_FALSE(c.StartsWith(text.c_str(), longer.c_str()));
            EXPECT_FALSE(c.EndsWith(text.c_str(), longer.c_str()));
        }
    });
}

TEST(CollatorLaws, TrimsCommuteAndMappingsAreIdempotent)
{
    ForEachCollation([](Collation const & collation, int count) {
        test_support::RandomCollationText random(13);
        Collator const & c = *collation.GetCollator();
        static constexpr char16_t const * blanks[] = {u"", u" ", u"\t ", u"\u3000", u"\u00A0", u"\u2028 "};
        for (int i = 0; i < count / 2; ++i) {
            Text const text = blanks[random.Below(6)] + random.Text(8) + blanks[random.Below(6)];
            Text const trimmed = Mapped(c, &Collator::Trim, text);
            EXPECT_EQ(trimmed, Mapped(c, &Collator::LTrim, Mapped(c, &Collator::RTrim, text)));
            EXPECT_EQ(trimmed, Mapped(c, &Collator::RTrim, Mapped(c, &Collator::LTrim, text)));
            EXPECT_EQ(trimmed, Mapped(c, &Collator::Trim, trimmed));
            Text const lower = Mapped(c, &Collator::Lower, text);
            EXPECT_EQ(lower, Mapped(c, &Collator::Lower, lower)) << Show(collation, text, lower);
            Text const upper = Mapped(c, &Collator::Upper, text);
            EXPECT_EQ(upper, Mapped(c, &Collator::Upper, upper)) << Show(collation, text, upper);
        }
    });
}
