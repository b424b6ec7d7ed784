#include "tests/support/ErrorMatchers.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "velsys/ThrowSite.h"

namespace {

using testing::Not;

void Raise()
{
    VELTRIA_THROW(VeltriaException, 0x0EB526BD, TStringCore(u"message"));
}

void Assert()
{
    VELTRIA_FAIL("count > 0", 0x72FAA0AE);
}

char const * const kName = "VeltriaException_AutoGen_0x0EB526BD";
char const * const kAssertName = "LogicException_LogicAssert_0x72FAA0AE";

TEST(ThrowsError, AcceptsTheErrorItNames)
{
    EXPECT_THAT(Raise, ThrowsError(kName));
    EXPECT_THAT(Raise, ThrowsError(kName, "message"));
    EXPECT_THAT(Raise, ThrowsError(kName, "message", 4, 2));
}

TEST(ThrowsError, RefusesEveryOtherAnswer)
{
    EXPECT_THAT([] {}, Not(ThrowsError(kName)));
    EXPECT_THAT(Raise, Not(ThrowsError("VeltriaException_AutoGen_0x0EB526BE")));
    EXPECT_THAT(Raise, Not(ThrowsError(kName, "another message")));
    EXPECT_THAT(Raise, Not(ThrowsError(kName, "message", 2, 2)));
    EXPECT_THAT(Raise, Not(ThrowsError(kName, "message", 4, 3)));
    EXPECT_THAT(Assert, Not(ThrowsError(kAssertName)));
}

TEST(ThrowsError, RefusesAnErrorWhoseNumberIsNotTheOneInItsName)
{
    auto const raise = [] {
        throw VeltriaException(TStringCore(u"m"),
                               TError::ErrorInfo(VeltriaError::MakeError(1, u"X_AutoGen_0x00000002"),
                                                 TError::ErrorSource::General, grpc::StatusCode::UNKNOWN));
    };
    EXPECT_THAT(raise, Not(ThrowsError("X_AutoGen_0x00000002")));
}

TEST(ThrowsError, LetsForeignExceptionsThrough)
{
    EXPECT_THROW(
        {
            testing::StringMatchResultListener out;
            (void)ThrowsError(kName).MatchAndExplain([] { throw std::runtime_error("x"); }, &out);
        },
        std::runtime_error);
}

TEST(ThrowsError, ExplainsWhatWasRaised)
{
    testing::StringMatchResultListener out;
    EXPECT_FALSE(ThrowsError("VeltriaException_AutoGen_0x00000001").MatchAndExplain(Raise, &out));
    EXPECT_THAT(out.str(), testing::HasSubstr("\"message\" [VeltriaException_AutoGen_0x0EB526BD] (4, 2)"));
    testing::StringMatchResultListener nothing;
    EXPECT_FALSE(ThrowsError(kName).MatchAndExplain([] {}, &nothing));
    EXPECT_EQ(nothing.str(), "which raises nothing of ours");
}

TEST(ThrowsErrorOf, TellsADerivedClassFromItsBase)
{
    EXPECT_THAT(Raise, ThrowsErrorOf<VeltriaException>(kName));
    EXPECT_THAT(Raise, Not(ThrowsErrorOf<LogicException>(kName)));
}

TEST(ThrowsAssert, AcceptsTheAssertionItNames)
{
    EXPECT_THAT(Assert, ThrowsAssert("count > 0"));
    EXPECT_THAT(Assert, ThrowsAssert("count > 0", kAssertName));
}

TEST(ThrowsAssert, RefusesEveryOtherAnswer)
{
    EXPECT_THAT([] {}, Not(ThrowsAssert("count > 0")));
    EXPECT_THAT(Assert, Not(ThrowsAssert("count >= 0")));
    EXPECT_THAT(Assert, Not(ThrowsAssert("count > 0", "LogicException_LogicAssert_0x72FAA0AF")));
    EXPECT_THAT(Raise, Not(ThrowsAssert("message")));
}

TEST(PrintTo, ShowsATStringAsText)
{
    EXPECT_EQ(testing::PrintToString(TString(u"text")), "\"text\"");
}

}  // namespace
