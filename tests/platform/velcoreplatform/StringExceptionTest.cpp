#include "velcoreplatform/StringException.h"

#include <memory>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"
#include "velsys/ThrowSite.h"

namespace {

TEST(StringException, CarriesMessageAndError)
{
    EXPECT_THAT([] { VELTRIA_THROW(StringException, 0x5EA10C35, TString(u"message")); },
                ThrowsErrorOf<StringException>("StringException_AutoGen_0x5EA10C35", "message", 4, 2));
}

TEST(StringException, CloneAndThrowKeepTheType)
{
    StringException const original(u"message",
                                   TError::ErrorInfo(VeltriaError::MakeError(1, u"StringException_AutoGen_0x00000001"),
                                                     TError::ErrorSource::General, grpc::StatusCode::UNKNOWN));
    VeltriaException const & base = original;
    std::unique_ptr<VeltriaException> const clone(base.Clone());
    EXPECT_THAT([&] { clone->Throw(); },
                ThrowsErrorOf<StringException>("StringException_AutoGen_0x00000001", "message"));
}

TEST(StringException, CopiesAndAssignments)
{
    TError::ErrorInfo const info(VeltriaError::MakeError(1, u"a"), TError::ErrorSource::General,
                                 grpc::StatusCode::UNKNOWN);
    StringException const original(u"message", info);
    StringException target(u"other", info);
    target = original;
    EXPECT_EQ(target.GetConcatenatedMessages(), u"message");
    EXPECT_EQ(StringException(target).GetConcatenatedMessages(), u"message");
}

}  // namespace
