#include "velcoredata/data/CollatedSort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "main/data/CollationKey.h"
#include "tests/data/CollationSamples.h"
#include "tests/support/RandomCollationText.h"

namespace {

std::vector<TString> Draw(unsigned seed, int count)
{
    test_support::RandomCollationText random(seed);
    std::vector<TString> texts;
    for (int i = 0; i < count; ++i) {
        std::u16string text = random.OneIn(3) ? random.Text(8) : random.Word(0, 10);
        texts.push_back(TString::fromStdU16String(text));
        if (random.OneIn(3))
            texts.push_back(TString::fromStdU16String(random.Near(text)));
    }
    return texts;
}

}  // namespace

TEST(CollatedSort, SortsAndKeepsTheInputForTheOrder)
{
    Collation const english(u"LEN_RUS", 0);
    std::vector<TString> texts = {u"b", u"a", u"C", u"", u"A"};
    EXPECT_EQ(CollatedOrder(english, texts), (std::vector<unsigned>{3, 1, 4, 0, 2}));
    EXPECT_EQ(texts[0], u"b");
    SortCollated(english, texts);
    EXPECT_EQ(texts, (std::vector<TString>{u"", u"a", u"A", u"b", u"C"}));
    std::vector<TString> none;
    SortCollated(english, none);
    EXPECT_TRUE(none.empty());
}

TEST(CollatedSort, EqualTextsKeepTheirOrder)
{
    std::vector<TString> texts = {u"b", u"A", u"a", u"B", u"a"};
    SortCollated(Collation(u"LEN_RUS_S2", 0), texts);
    EXPECT_EQ(texts, (std::vector<TString>{u"A", u"a", u"a", u"b", u"B"}));
}

TEST(CollatedSortLaws, TheResultIsThatOfAStableSortByCompare)
{
    for (char16_t const * name : lawCollations) {
        Collation const collation(name, 0);
        std::vector<TString> const texts = Draw(60, 3000);
        std::vector<unsigned> expected(texts.size());
        std::iota(expected.begin(), expected.end(), 0u);
        std::stable_sort(expected.begin(), expected.end(),
                         [&](unsigned a, unsigned b) { return collation.Compare(texts[a], texts[b]) < 0; });
        EXPECT_EQ(CollatedOrder(collation, texts), expected) << collation.GetName();
    }
}

TEST(CollatedSortLaws, KeyPrefixesNeverContradictTheOrder)
{
    for (char const * locale : sampleLocales) {
        Collation const collation(locale, false, Collation::CaseDefault, Collation::AccentDefault,
                                  Collation::SortDefault, Collation::PunctDefault, 0);
        std::vector<TString> const texts = Draw(61, 300);
        Collator const & collator = *collation.GetCollator();
        for (std::size_t i = 1; i < texts.size(); ++i) {
            std::uint64_t const a = detail::KeyPrefix(collator, texts[i - 1]);
            std::uint64_t const b = detail::KeyPrefix(collator, texts[i]);
            int const order = collator.Compare(texts[i - 1], texts[i]);
            if (a != b) {
                EXPECT_EQ(a < b, order < 0) << collation.GetName() << texts[i - 1] << texts[i];
                EXPECT_NE(order, 0);
            }
        }
    }
}
