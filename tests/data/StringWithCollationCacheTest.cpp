#include "velcoredata/data/StringWithCollationCache.h"

#include <gtest/gtest.h>

#include <list>
#include <map>

#include "tests/support/RandomCollationText.h"

namespace {

using Ptr = RefCntPtr<StringWithCollation, RefCntObject>;

int Count(Ptr const & pointer)
{
    return detail::RefCountAccess::Count(*pointer);
}

Collation CaseInsensitive()
{
    return Collation(u"LEN_RUS_S2", 0);
}

}  // namespace

TEST(StringWithCollationCache, TheSameTextIsTheSameObject)
{
    StringWithCollationCache cache(CaseInsensitive(), 10);
    Ptr const first = cache.Lookup(u"a");
    EXPECT_EQ(Count(first), 2);
    Ptr const second = cache.Lookup(u"a");
    EXPECT_EQ(first, second);
    EXPECT_EQ(Count(first), 3);
    EXPECT_TRUE(first->HasHash());
    EXPECT_EQ(first->GetString(), u"a");
    EXPECT_EQ(first->GetCollation(), CaseInsensitive());
}

TEST(StringWithCollationCache, NothingIsKeptWithMaximumZero)
{
    StringWithCollationCache cache(CaseInsensitive(), 0);
    Ptr const first = cache.Lookup(u"a");
    EXPECT_EQ(Count(first), 1);
    EXPECT_NE(cache.Lookup(u"a"), first);
}

TEST(StringWithCollationCache, TheOneUsedLongestAgoGoes)
{
    StringWithCollationCache cache(CaseInsensitive(), 2);
    Ptr const a = cache.Lookup(u"a"), b = cache.Lookup(u"b"), c = cache.Lookup(u"c");
    EXPECT_EQ(Count(a), 1);
    EXPECT_EQ(Count(b), 2);
    Ptr const newA = cache.Lookup(u"a");
    EXPECT_NE(newA, a);
    EXPECT_EQ(Count(b), 1);
    EXPECT_EQ(Count(c), 2);
}

TEST(StringWithCollationCache, AHitMakesTheOtherTheOldest)
{
    StringWithCollationCache cache(CaseInsensitive(), 2);
    Ptr const a = cache.Lookup(u"a"), b = cache.Lookup(u"b");
    cache.Lookup(u"a");
    cache.Lookup(u"c");
    EXPECT_EQ(Count(a), 2);
    EXPECT_EQ(Count(b), 1);
}

TEST(StringWithCollationCache, TextsThatCompareEqualReplaceEachOther)
{
    StringWithCollationCache cache(CaseInsensitive(), 10);
    Ptr const lower = cache.Lookup(u"a");
    Ptr const upper = cache.Lookup(u"A");
    EXPECT_NE(lower, upper);
    EXPECT_EQ(lower->GetHash(), upper->GetHash());
    EXPECT_EQ(Count(lower), 1);
    EXPECT_EQ(Count(upper), 2);
    Ptr const again = cache.Lookup(u"a");
    EXPECT_NE(again, lower);
    EXPECT_EQ(Count(upper), 1);
    EXPECT_EQ(cache.Lookup(u"a"), again);
}

TEST(StringWithCollationCache, AMissOfAnEqualTextStillMovesTheEntryToTheFront)
{
    StringWithCollationCache cache(CaseInsensitive(), 2);
    Ptr const a = cache.Lookup(u"a"), b = cache.Lookup(u"b");
    Ptr const upperA = cache.Lookup(u"A");
    cache.Lookup(u"c");
    EXPECT_EQ(Count(b), 1);
    EXPECT_EQ(cache.Lookup(u"A"), upperA);
}

TEST(StringWithCollationCache, ObjectsOutliveTheCache)
{
    Ptr kept;
    {
        StringWithCollationCache cache(CaseInsensitive(), 10);
        kept = cache.Lookup(u"kept");
    }
    EXPECT_EQ(Count(kept), 1);
    EXPECT_EQ(kept->GetString(), u"kept");
}

TEST(StringWithCollationCache, TheThreadLocalPoolSizeIsKeptForCallers)
{
    EXPECT_EQ(StringWithCollationCache::GetStringPoolThreadLocalCacheSize(), 1000u);
    StringWithCollationCache::SetStringPoolThreadLocalCacheSize(5);
    EXPECT_EQ(StringWithCollationCache::GetStringPoolThreadLocalCacheSize(), 5u);
    StringWithCollationCache::SetStringPoolThreadLocalCacheSize(1000);
}

// The cache against a plain model: a list of hash and text in order of use.
TEST(StringWithCollationCache, BehavesAsTheModelOnRandomLookups)
{
    for (unsigned long long maximum : {0ull, 1ull, 2ull, 5ull, 20ull}) {
        Collation const collation = CaseInsensitive();
        StringWithCollationCache cache(collation, maximum);
        std::list<std::pair<unsigned, Ptr>> model;
        test_support::RandomCollationText random(static_cast<unsigned>(maximum));
        for (int i = 0; i < 10000; ++i) {
            std::u16string const word = random.OneIn(4) ? random.Text(2) : random.Word(1, 1);
            TString const text = TString::fromStdU16String(word);
            unsigned const hash = collation.Hash(text);
            auto entry = model.begin();
            while (entry != model.end() && entry->first != hash)
                ++entry;
            Ptr const found = cache.Lookup(text);
            ASSERT_EQ(found->GetString(), text);
            if (entry != model.end() && entry->second->GetString() == text) {
                ASSERT_EQ(found, entry->second);
                model.splice(model.begin(), model, entry);
                continue;
            }
            ASSERT_TRUE(entry == model.end() || found != entry->second);
            if (maximum == 0)
                continue;
            if (entry != model.end())
                model.erase(entry);
            model.emplace_front(hash, found);
            if (model.size() > maximum) {
                ASSERT_EQ(Count(model.back().second), 1);
                model.pop_back();
            }
        }
    }
}
