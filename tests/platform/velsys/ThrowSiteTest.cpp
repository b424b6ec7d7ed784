#include "velsys/ThrowSite.h"

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

class SiteException : public VeltriaException
{
public:
    SiteException(TString const & message, TError::ErrorInfo const & info)
        : VeltriaException(static_cast<TStringCore const &>(message), info)
    {}
};

TEST(ThrowSite, AnOrdinaryThrowNamesTheClassAndTheCode)
{
    EXPECT_THAT([] { VELTRIA_THROW(VeltriaException, 0x0EB526BD, TStringCore(u"message")); },
                ThrowsErrorOf<VeltriaException>("VeltriaException_AutoGen_0x0EB526BD", "message", 4, 2));
    EXPECT_THAT([] { VELTRIA_THROW(SiteException, 0x5EA10C36, TString(u"message")); },
                ThrowsErrorOf<SiteException>("SiteException_AutoGen_0x5EA10C36", "message", 4, 2));
}

TEST(ThrowSite, TakesALiteralAStringAndATemplateAsTheMessage)
{
    EXPECT_THAT([] { VELTRIA_THROW(VeltriaException, 0x00000001, u"literal"); },
                ThrowsError("VeltriaException_AutoGen_0x00000001", "literal"));
    EXPECT_THAT([] { VELTRIA_THROW(SiteException, 0x00000002, u"literal"); },
                ThrowsError("SiteException_AutoGen_0x00000002", "literal"));
    EXPECT_THAT([] { VELTRIA_THROW(VeltriaException, 0x00000003, TString(u"string")); },
                ThrowsError("VeltriaException_AutoGen_0x00000003", "string"));
    EXPECT_THAT([] { VELTRIA_THROW(VeltriaException, 0x00000004, TFormatStringCore(u"<%1>").arg(u"x")); },
                ThrowsError("VeltriaException_AutoGen_0x00000004", "<x>"));
}

TEST(ThrowSite, ANamedThrowCarriesItsNameSourceAndStatus)
{
    EXPECT_THAT(
        [] { VELTRIA_THROW_NAMED(VeltriaException, IncorrectDatatypeException, 0xCA8336D0, 2, 2, TStringCore(u"m")); },
        ThrowsError("VeltriaException_IncorrectDatatypeException_0xCA8336D0", "m", 2, 2));
    EXPECT_THAT([] { VELTRIA_THROW_NAMED(VeltriaException, Input, 0x00000005, 1, 3, TStringCore(u"m")); },
                ThrowsError("VeltriaException_Input_0x00000005", "m", 1, 3));
}

TEST(ThrowSite, AnAssertionCarriesTheTextOfTheCondition)
{
    int const count = 0;
    EXPECT_THAT([&] { VELTRIA_ASSERT(count > 0, 0x72FAA0AE); },
                ThrowsAssert("count > 0", "LogicException_LogicAssert_0x72FAA0AE"));
    EXPECT_NO_THROW(VELTRIA_ASSERT(count == 0, 0x72FAA0AE));
}

TEST(ThrowSite, AnAssertionMayCarryATextOfItsOwn)
{
    EXPECT_THAT([] { VELTRIA_ASSERT_TEXT(false, "a sentence", 0x00000006); },
                ThrowsAssert("a sentence", "LogicException_LogicAssert_0x00000006"));
    EXPECT_NO_THROW(VELTRIA_ASSERT_TEXT(true, "a sentence", 0x00000006));
    EXPECT_THAT([] { VELTRIA_FAIL("false", 0x00000007); },
                ThrowsAssert("false", "LogicException_LogicAssert_0x00000007"));
}

TEST(ThrowSite, TheConditionIsEvaluatedOnce)
{
    int calls = 0;
    VELTRIA_ASSERT(++calls == 1, 0x00000008);
    EXPECT_EQ(calls, 1);
}

TEST(ThrowSite, ACodeIsEightUpperCaseDigits)
{
    static_assert(detail::IsErrorCodeLiteral("0x0EB526BD"));
    static_assert(!detail::IsErrorCodeLiteral("0x0eb526bd"));
    static_assert(!detail::IsErrorCodeLiteral("0xEB526BD"));
    static_assert(!detail::IsErrorCodeLiteral("0x0EB526BD0"));
    static_assert(!detail::IsErrorCodeLiteral("1234567890"));
}

}  // namespace
