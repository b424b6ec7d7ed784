#include "main/string/PatternGeneratorCache.h"

#include <thread>
#include <vector>

#include "tests/support/ErrorMatchers.h"
#include "velicu/ScopedStatusFault.h"

namespace {

using ICUUtils::detail::DateTimePatternGeneratorCache;
using ICUUtils::detail::FindBestPattern;

constexpr char const * FIVE[] = {"en_US", "de_DE", "fr_FR", "ja_JP", "sv_SE"};

}  // namespace

TEST(PatternGeneratorCache, FindsTheLocalesPattern)
{
    EXPECT_EQ(TString(u"MMM d, y"), FindBestPattern(u"yMMMd", "en_US"));
    EXPECT_EQ(TString(u"d. MMM y"), FindBestPattern(u"yMMMd", "de_DE"));
    EXPECT_EQ(TString(), FindBestPattern(u"", "en_US"));
}

TEST(PatternGeneratorCache, AGeneratorIsBuiltOnce)
{
    DateTimePatternGeneratorCache cache;
    auto const first = cache.Find("en_US");
    EXPECT_EQ(first, cache.Find("en_US"));
    EXPECT_EQ(1u, cache.Count());
}

TEST(PatternGeneratorCache, ASixthLocaleEmptiesTheCacheFirst)
{
    DateTimePatternGeneratorCache cache;
    auto const first = cache.Find(FIVE[0]);
    for (char const * locale : FIVE)
        cache.Find(locale);
    EXPECT_EQ(5u, cache.Count());
    cache.Find(FIVE[4]);  // one of the five changes nothing
    EXPECT_EQ(5u, cache.Count());

    cache.Find("it_IT");
    EXPECT_EQ(1u, cache.Count());
    EXPECT_TRUE(cache.Holds("it_IT"));
    for (char const * locale : FIVE)
        EXPECT_FALSE(cache.Holds(locale)) << locale;

    auto const again = cache.Find(FIVE[0]);
    EXPECT_NE(first, again);
    EXPECT_EQ(2u, cache.Count());
}

TEST(PatternGeneratorCache, AnEvictedGeneratorLivesWhileItIsHeld)
{
    DateTimePatternGeneratorCache cache;
    auto const held = cache.Find("de_DE");
    for (char const * locale : {"en_US", "fr_FR", "ja_JP", "sv_SE", "it_IT"})
        cache.Find(locale);
    EXPECT_FALSE(cache.Holds("de_DE"));
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    EXPECT_EQ(TString(u"d. MMM y"), held->generator->getBestPattern(u"yMMMd", status));
}

TEST(PatternGeneratorCache, AFailureGivesTheSkeletonBack)
{
    DateTimePatternGeneratorCache::Get().Find("nl_NL");
    {
        VelICU::ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
        EXPECT_EQ(TString(u"yMMMd"), FindBestPattern(u"yMMMd", "nl_NL"));
    }
    EXPECT_EQ(TString(u"d MMM y"), FindBestPattern(u"yMMMd", "nl_NL"));
}

TEST(PatternGeneratorCache, AGeneratorThatCouldNotBeBuiltStaysAbsent)
{
    {
        VelICU::ScopedStatusFault const fault(VelICU::U_MEMORY_ALLOCATION_ERROR);
        EXPECT_EQ(TString(u"yMMMd"), FindBestPattern(u"yMMMd", "pt_PT"));
    }
    EXPECT_TRUE(DateTimePatternGeneratorCache::Get().Holds("pt_PT"));
    EXPECT_EQ(TString(u"yMMMd"), FindBestPattern(u"yMMMd", "pt_PT"));
}

TEST(PatternGeneratorCache, ThreadsThatEvictEachOtherGetTheirOwnPatterns)
{
    char const * const locales[] = {"en_US", "de_DE", "fr_FR", "ja_JP", "sv_SE", "it_IT", "es_ES"};
    std::vector<TString> expected;
    for (char const * locale : locales)
        expected.push_back(FindBestPattern(u"yMMMMd", locale));

    std::vector<int> wrong(8);
    std::vector<std::thread> running;
    for (std::size_t t = 0; t < wrong.size(); ++t)
        running.emplace_back([&, t] {
            for (std::size_t i = 0; i < 60; ++i) {
                std::size_t const k = (i / 3 + t) % expected.size();
                if (FindBestPattern(u"yMMMMd", locales[k]) != expected[k])
                    ++wrong[t];
            }
        });
    for (std::thread & thread : running)
        thread.join();
    EXPECT_EQ(std::vector<int>(8), wrong);
    EXPECT_LE(DateTimePatternGeneratorCache::Get().Count(), 5u);
}
