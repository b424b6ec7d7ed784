// Collations, pools and the intern cache under threads; run under the thread sanitizer too.

#include <gtest/gtest.h>

#include <atomic>
#include <barrier>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/RandomCollationText.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/StringWithCollationCache.h"

namespace {

constexpr int threadCount = 8;
constexpr int compares = 100'000;

char16_t const * const names[] = {u"binary",     u"LROOT",      u"LEN_RUS",    u"LEN_RUS_S1",
                                  u"LEN_RUS_S2", u"AS_LEN_RUS", u"LEN_RUS_WO", u"LEN_RUS_XO",
                                  u"LSV_RSE_S2", u"LTH",        u"LDE_S4",     u"EO_LFR_S1"};
static_assert(std::size(names) == 12);

template <class Body>
void RunThreads(Body const & body)
{
    std::vector<std::thread> threads;
    std::barrier start(threadCount);
    for (int t = 0; t < threadCount; ++t)
        threads.emplace_back([&, t] {
            start.arrive_and_wait();
            body(t);
        });
    for (std::thread & thread : threads)
        thread.join();
}

int Sign(int value)
{
    return (value > 0) - (value < 0);
}

}  // namespace

TEST(CollatorThreads, EightThreadsCompareAsOne)
{
    std::vector<Collation> collations;
    for (char16_t const * name : names)
        collations.emplace_back(name, static_cast<unsigned short>(0));
    test_support::RandomCollationText random(14);
    std::vector<std::u16string> texts;
    for (int i = 0; i < 100; ++i)
        texts.push_back(random.Text(8));
    // Every pair of texts under every collation, by one thread.
    std::vector<signed char> expected;
    for (Collation const & collation : collations)
        for (auto const & a : texts)
            for (auto const & b : texts)
                expected.push_back(static_cast<signed char>(Sign(collation.Compare(a.c_str(), b.c_str()))));

    std::atomic<int> wrong{0};
    Collator const * seen[threadCount][std::size(names)] = {};
    RunThreads([&](int t) {
        for (int i = 0; i < compares; ++i) {
            std::size_t const c = static_cast<std::size_t>(i) % collations.size();
            std::size_t const pair =
                (static_cast<std::size_t>(i) * 7919 + static_cast<std::size_t>(t) * 104729) % 10000;
            Collator const * const mine = &*collations[c].GetCollator();
            if (seen[t][c] == nullptr)
                seen[t][c] = mine;
            int const sign = Sign(collations[c].Compare(texts[pair / 100].c_str(), texts[pair % 100].c_str()));
            if (mine != seen[t][c] || sign != expected[c * 10000 + pair])
                ++wrong;
        }
        // Until every thread has its collators, none may go: addresses would be used again.
    });
    EXPECT_EQ(wrong, 0);
}

TEST(CollatorThreads, CollatorsDifferBetweenThreadsAndBinaryIsShared)
{
    Collation const english(u"LEN_RUS", 0);
    Collator const * icu[threadCount] = {};
    Collator const * binary[threadCount] = {};
    std::barrier alive(threadCount);
    RunThreads([&](int t) {
        icu[t] = &*english.GetCollator();
        binary[t] = &*GetBinaryCollation().GetCollator();
        alive.arrive_and_wait();
    });
    EXPECT_EQ(std::set<Collator const *>(icu, icu + threadCount).size(), static_cast<std::size_t>(threadCount));
    EXPECT_EQ(std::set<Collator const *>(binary, binary + threadCount).size(), 1u);
}

TEST(CollatorThreads, RacingConstructionsShareAPool)
{
    for (int round = 0; round < 20; ++round) {
        TString const name = TString(u"LEN_RUS_VX") + TString::number(round);
        std::vector<Collation> made(threadCount, GetBinaryCollation());
        std::barrier alive(threadCount);
        std::atomic<int> wrong{0};
        RunThreads([&](int t) {
            auto const mine = static_cast<std::size_t>(t);
            made[mine] = Collation(name, 0);
            wrong += made[mine].Compare(u"a", u"B") != -1;
            alive.arrive_and_wait();
            for (Collation const & other : made)
                wrong += &*other.GetCollator() != &*made[mine].GetCollator();
            alive.arrive_and_wait();
        });
        EXPECT_EQ(wrong, 0);
    }
}

TEST(CollatorThreads, HashesFillInLazilyFromEveryThread)
{
    Collation const collation(u"LEN_RUS_S2", 0);
    StringWithCollation const text(u"some text", collation);
    std::atomic<int> wrong{0};
    unsigned const textHash = collation.Hash(u"SOME TEXT");
    unsigned const nameHash = Collation(u"LEN_RUS_S2", 1).GetHashCode();
    RunThreads([&](int) {
        wrong += text.GetHash() != textHash;
        wrong += collation.GetHashCode() != nameHash;
    });
    EXPECT_EQ(wrong, 0);
}

TEST(CollatorThreads, TheInternCacheServesEveryThread)
{
    StringWithCollationCache cache(Collation(u"LEN_RUS_S2", 0), 50);
    std::vector<TString> texts;
    for (int i = 0; i < 100; ++i)
        texts.push_back(TString(u"Text ") + TString::number(i % 60) + (i % 3 == 0 ? u"a" : u"A"));
    std::atomic<int> wrong{0};
    RunThreads([&](int t) {
        test_support::RandomCollationText random(static_cast<unsigned>(t));
        for (int i = 0; i < 5000; ++i) {
            TString const & text = texts[static_cast<std::size_t>(random.Below(100))];
            auto const found = cache.Lookup(text);
            wrong += !(found->GetString() == text) || !found->HasHash();
        }
    });
    EXPECT_EQ(wrong, 0);
}
