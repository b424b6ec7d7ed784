#include "velsys/TError.h"

#include <gtest/gtest.h>

TEST(TError, TheThreePairsInUseHaveTheirNumbers)
{
    EXPECT_EQ(static_cast<int>(TError::ErrorSource::User), 1);
    EXPECT_EQ(static_cast<int>(TError::ErrorSource::DataType), 2);
    EXPECT_EQ(static_cast<int>(TError::ErrorSource::General), 4);
    EXPECT_EQ(static_cast<int>(grpc::StatusCode::UNKNOWN), 2);
    EXPECT_EQ(static_cast<int>(grpc::StatusCode::INVALID_ARGUMENT), 3);
}

TEST(TError, AnErrorInfoKeepsErrorSourceAndStatusThroughCopies)
{
    TError::ErrorInfo const info(VeltriaError::MakeError(0x12345678, u"name"), TError::ErrorSource::User,
                                 grpc::StatusCode::INVALID_ARGUMENT);
    TError::ErrorInfo copy(VeltriaError::MakeError(0, u""), TError::ErrorSource::General, grpc::StatusCode::UNKNOWN);
    copy = TError::ErrorInfo(info);
    EXPECT_EQ(copy.GetError().GetCode(), 0x12345678u);
    EXPECT_EQ(copy.GetError().GetName(), u"name");
    EXPECT_EQ(copy.GetSource(), TError::ErrorSource::User);
    EXPECT_EQ(copy.GetStatus(), grpc::StatusCode::INVALID_ARGUMENT);
}
