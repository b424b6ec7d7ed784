#include "velicu/ErrorCode.h"

#include <gtest/gtest.h>

#include "velicu/LocaleNames.h"
#include "velicu/ScopedStatusFault.h"

namespace VelICU_V2 {

TEST(ErrorCode, WarningsAreSuccess)
{
    for (int number : {-128, -127, -124, -1, 0}) {
        EXPECT_TRUE(ICU_SUCCESS(static_cast<ICUErrorCode>(number))) << number;
        EXPECT_FALSE(ICU_FAILURE(static_cast<ICUErrorCode>(number))) << number;
    }
    for (int number : {1, 2, 15, 0x10000}) {
        EXPECT_FALSE(ICU_SUCCESS(static_cast<ICUErrorCode>(number))) << number;
        EXPECT_TRUE(ICU_FAILURE(static_cast<ICUErrorCode>(number))) << number;
    }
}

TEST(ErrorCode, NamesAreIcus)
{
    EXPECT_STREQ("U_ZERO_ERROR", t_u_errorName(U_ZERO_ERROR));
    EXPECT_STREQ("U_ILLEGAL_ARGUMENT_ERROR", t_u_errorName(U_ILLEGAL_ARGUMENT_ERROR));
    EXPECT_STREQ("U_BUFFER_OVERFLOW_ERROR", t_u_errorName(U_BUFFER_OVERFLOW_ERROR));
    EXPECT_STREQ("U_USING_FALLBACK_WARNING", t_u_errorName(U_USING_FALLBACK_WARNING));
    EXPECT_STREQ("U_MEMORY_ALLOCATION_ERROR", t_u_errorName(U_MEMORY_ALLOCATION_ERROR));
    EXPECT_STREQ("U_MISSING_RESOURCE_ERROR", t_u_errorName(U_MISSING_RESOURCE_ERROR));
    EXPECT_STREQ("U_INVALID_STATE_ERROR", t_u_errorName(U_INVALID_STATE_ERROR));
    EXPECT_STREQ("U_UNSUPPORTED_ERROR", t_u_errorName(U_UNSUPPORTED_ERROR));
    EXPECT_STREQ("[BOGUS UErrorCode]", t_u_errorName(static_cast<ICUErrorCode>(99999)));
}

namespace {

ICUErrorCode AskOnce()
{
    ICUErrorCode status = U_ZERO_ERROR;
    char buffer[12];
    t_uloc_getLanguage("en_US", buffer, sizeof buffer, status);
    return status;
}

}  // namespace

TEST(ScopedStatusFault, StrikesTheChosenOperationOnce)
{
    ScopedStatusFault fault(U_MEMORY_ALLOCATION_ERROR, 1);
    EXPECT_EQ(U_ZERO_ERROR, AskOnce());
    EXPECT_FALSE(fault.HasStruck());
    EXPECT_EQ(U_MEMORY_ALLOCATION_ERROR, AskOnce());
    EXPECT_TRUE(fault.HasStruck());
    EXPECT_EQ(U_ZERO_ERROR, AskOnce());
}

TEST(ScopedStatusFault, DoesNotOutliveItsScopeAndNests)
{
    {
        ScopedStatusFault outer(U_PARSE_ERROR);
        {
            ScopedStatusFault inner(U_INTERNAL_PROGRAM_ERROR);
            EXPECT_EQ(U_INTERNAL_PROGRAM_ERROR, AskOnce());
        }
        EXPECT_EQ(U_PARSE_ERROR, AskOnce());
    }
    {
        ScopedStatusFault unused(U_PARSE_ERROR);
    }
    EXPECT_EQ(U_ZERO_ERROR, AskOnce());
}

TEST(ScopedStatusFault, AStatusInFailureIsLeftAlone)
{
    ICUErrorCode status = U_PARSE_ERROR;
    char buffer[12] = "x";
    t_uloc_getLanguage("en_US", buffer, sizeof buffer, status);
    EXPECT_EQ(U_PARSE_ERROR, status);
    EXPECT_STREQ("x", buffer);
}

}  // namespace VelICU_V2
