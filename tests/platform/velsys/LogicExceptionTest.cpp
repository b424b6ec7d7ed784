#include "velsys/LogicException.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"
#include "velsys/ThrowSite.h"

namespace {

VeltriaError Error()
{
    return VeltriaError::MakeError(0x72FAA0AE, u"LogicException_LogicAssert_0x72FAA0AE");
}

TEST(ThrowLogicException, CarriesFileLineExpressionAndError)
{
    try {
        ThrowLogicException("main/data/X.cpp", 17, "count > 0", Error());
        FAIL();
    } catch (LogicException const & e) {
        EXPECT_STREQ(e.GetFile(), "main/data/X.cpp");
        EXPECT_EQ(e.GetLine(), 17);
        EXPECT_EQ(e.GetExpression(), u"count > 0");
        EXPECT_EQ(e.GetConcatenatedMessages(), u"count > 0");
        EXPECT_EQ(e.GetErrorInfo().GetError().GetCode(), 0x72FAA0AEu);
        EXPECT_EQ(e.GetErrorInfo().GetError().GetName(), u"LogicException_LogicAssert_0x72FAA0AE");
    }
}

TEST(ThrowLogicException, WithoutAnErrorHasNoIdentity)
{
    try {
        ThrowLogicException("main/data/X.cpp", 17, "false");
        FAIL();
    } catch (LogicException const & e) {
        EXPECT_EQ(e.GetExpression(), u"false");
        EXPECT_EQ(e.GetErrorInfo().GetError().GetCode(), 0u);
        EXPECT_EQ(e.GetErrorInfo().GetError().GetName(), u"");
    }
}

TEST(ThrowLogicException, AnAssertionSiteNamesTheRepositoryPathOfItsSource)
{
    int const line = __LINE__ + 2;
    try {
        VELTRIA_ASSERT(1 + 1 == 3, 0x00000001);
        FAIL();
    } catch (LogicException const & e) {
        EXPECT_STREQ(e.GetFile(), "tests/platform/velsys/LogicExceptionTest.cpp");
        EXPECT_EQ(e.GetLine(), line);
    }
}

TEST(LogicException, IsAVeltriaException)
{
    EXPECT_THROW(ThrowLogicException("f", 1, "false", Error()), VeltriaException);
}

TEST(LogicException, CloneAndThrowKeepTheTypeAndTheSite)
{
    LogicException const original("main/data/X.cpp", 17, "count > 0", Error());
    VeltriaException const & base = original;
    std::unique_ptr<VeltriaException> const clone(base.Clone());
    try {
        clone->Throw();
        FAIL();
    } catch (LogicException const & e) {
        EXPECT_STREQ(e.GetFile(), "main/data/X.cpp");
        EXPECT_EQ(e.GetLine(), 17);
        EXPECT_EQ(e.GetExpression(), u"count > 0");
    }
}

TEST(LogicException, Assignment)
{
    LogicException target("a", 1, "a", Error());
    target = LogicException("b", 2, "b", Error());
    EXPECT_STREQ(target.GetFile(), "b");
    EXPECT_EQ(target.GetLine(), 2);
    EXPECT_EQ(target.GetExpression(), u"b");
}

}  // namespace
