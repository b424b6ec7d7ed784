#include "velicu/ICURegex.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "tests/support/ErrorMatchers.h"
#include "velicu/ScopedStatusFault.h"

using namespace VelICU_V2;

namespace {

constexpr int timeOut = 66322;
constexpr int stackOverflow = 66321;

std::unique_ptr<ICURegexPattern> Compiled(char16_t const * pattern, unsigned flags = 0)
{
    ICUErrorCode status = U_ZERO_ERROR;
    auto made = ICURegexPattern::createInstance(*ICUString::createInstance(pattern), flags, status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    return made;
}

}  // namespace

TEST(ICURegexPattern, KeepsItsTextAndFlags)
{
    auto const pattern = Compiled(u"a.b", UREGEX_DOTALL);
    ASSERT_TRUE(pattern);
    EXPECT_EQ(pattern->pattern(), u"a.b");
    EXPECT_EQ(pattern->flags(), 32u);
}

TEST(ICURegexPattern, IsNullWithAFailureForABadPattern)
{
    struct
    {
        char16_t const * text;
        int status;
    } const rows[] = {{u"(", 66310}, {u"a{2,1}", 66313}, {u"[z-a]", 66320}, {u"\\", 66307}, {u"*", 66305}};
    for (auto const & row : rows) {
        ICUErrorCode status = U_ZERO_ERROR;
        EXPECT_FALSE(ICURegexPattern::createInstance(*ICUString::createInstance(row.text), 0, status));
        EXPECT_EQ(static_cast<int>(status), row.status) << TString(row.text);
    }
}

TEST(ICURegexPattern, DoesNothingUnderAFailedStatus)
{
    ICUErrorCode status = U_MEMORY_ALLOCATION_ERROR;
    EXPECT_FALSE(ICURegexPattern::createInstance(*ICUString::createInstance(u"a"), 0, status));
    EXPECT_EQ(status, U_MEMORY_ALLOCATION_ERROR);
    EXPECT_FALSE(Compiled(u"a")->matcher(status));
    EXPECT_EQ(status, U_MEMORY_ALLOCATION_ERROR);
}

TEST(ICURegexPattern, GivesNoMatcherWhenIcuHasNone)
{
    auto const pattern = Compiled(u"a");
    ScopedStatusFault fault(U_MEMORY_ALLOCATION_ERROR);
    ICUErrorCode status = U_ZERO_ERROR;
    EXPECT_FALSE(pattern->matcher(status));
    EXPECT_EQ(status, U_MEMORY_ALLOCATION_ERROR);
}

TEST(ICURegexMatcher, FindsMatchesOneAfterTheOther)
{
    auto const pattern = Compiled(u"(\\d)(x)?");
    ICUErrorCode status = U_ZERO_ERROR;
    auto const matcher = pattern->matcher(status);
    auto const text = ICUString::createInstance(u"a1x2");
    matcher->reset(*text);
    EXPECT_EQ(matcher->groupCount(), 2);
    ASSERT_TRUE(matcher->find());
    EXPECT_EQ(matcher->start(status), 1);
    EXPECT_EQ(matcher->group(0, status), u"1x");
    EXPECT_EQ(matcher->group(2, status), u"x");
    ASSERT_TRUE(matcher->find(status));
    EXPECT_EQ(matcher->start(status), 3);
    EXPECT_EQ(matcher->group(1, status), u"2");
    EXPECT_EQ(matcher->group(2, status), u"");
    EXPECT_TRUE(ICU_SUCCESS(status));
    EXPECT_FALSE(matcher->find());
    matcher->reset(*text);
    EXPECT_TRUE(matcher->find());
}

TEST(ICURegexMatcher, MatchesTheWholeText)
{
    auto const pattern = Compiled(u"a+");
    ICUErrorCode status = U_ZERO_ERROR;
    auto const matcher = pattern->matcher(status);
    auto const whole = ICUString::createInstance(u"aaa");
    auto const more = ICUString::createInstance(u"aaab");
    matcher->reset(*whole);
    EXPECT_TRUE(matcher->matches(status));
    matcher->reset(*more);
    EXPECT_FALSE(matcher->matches(status));
    EXPECT_EQ(status, U_ZERO_ERROR);
}

TEST(ICURegexMatcher, HasNoGroupsWithoutAMatch)
{
    auto const pattern = Compiled(u"(a)");
    ICUErrorCode status = U_ZERO_ERROR;
    auto const matcher = pattern->matcher(status);
    auto const text = ICUString::createInstance(u"b");
    matcher->reset(*text);
    EXPECT_FALSE(matcher->find());
    EXPECT_EQ(matcher->group(1, status), u"");
    EXPECT_EQ(static_cast<int>(status), 66306);
    status = U_ZERO_ERROR;
    EXPECT_EQ(matcher->start(status), -1);
    EXPECT_TRUE(ICU_FAILURE(status));
    auto const hit = ICUString::createInstance(u"a");
    status = U_ZERO_ERROR;
    matcher->reset(*hit);
    ASSERT_TRUE(matcher->find());
    EXPECT_EQ(matcher->group(2, status), u"");
    EXPECT_EQ(status, U_INDEX_OUTOFBOUNDS_ERROR);
}

TEST(ICURegexMatcher, GivesUpAnAttemptThatTakesTooLong)
{
    auto const pattern = Compiled(u"(a+)+$");
    ICUErrorCode status = U_ZERO_ERROR;
    auto const matcher = pattern->matcher(status);
    auto const text = ICUString::createInstance((std::u16string(60, u'a') + u"b").c_str());
    matcher->reset(*text);
    auto const before = std::chrono::steady_clock::now();
    EXPECT_FALSE(matcher->find(status));
    EXPECT_EQ(static_cast<int>(status), timeOut);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(60));
}

TEST(ICURegexMatcher, GivesUpAnAttemptThatTakesTooMuchMemory)
{
    auto const pattern = Compiled(u"(?:ab|c)*d");
    ICUErrorCode status = U_ZERO_ERROR;
    auto const matcher = pattern->matcher(status);
    std::u16string hostile;
    for (int i = 0; i < 5'000'000; ++i)
        hostile += u"ab";
    auto const text = ICUString::createInstance(hostile.c_str());
    matcher->reset(*text);
    EXPECT_FALSE(matcher->matches(status));
    EXPECT_EQ(static_cast<int>(status), stackOverflow);
}
