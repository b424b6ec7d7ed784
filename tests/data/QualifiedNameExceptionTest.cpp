#include "velcoredata/data/QualifiedNameException.h"

#include <gtest/gtest.h>

#include <memory>
#include <typeinfo>

#include "tests/support/ErrorMatchers.h"

namespace {

VeltriaError AnError()
{
    return VeltriaError::MakeError(0x12345678, u"QualifiedNameException_AutoGen_0x12345678");
}

}  // namespace

TEST(QualifiedNameException, KeepsMessageInputAndError)
{
    QualifiedNameException const e(u"message", u"[a", AnError());
    EXPECT_EQ(TString(e.GetConcatenatedMessages()), u"message");
    EXPECT_EQ(e.GetInput(), u"[a");
    EXPECT_EQ(e.GetErrorInfo().GetError().GetCode(), 0x12345678u);
    EXPECT_EQ(static_cast<int>(e.GetErrorInfo().GetSource()), 4);
    EXPECT_EQ(static_cast<int>(e.GetErrorInfo().GetStatus()), 2);

    TError::ErrorInfo const info(AnError(), TError::ErrorSource::User, grpc::StatusCode::INVALID_ARGUMENT);
    QualifiedNameException const withInfo(u"message", u"", info);
    EXPECT_EQ(static_cast<int>(withInfo.GetErrorInfo().GetSource()), 1);
    EXPECT_EQ(static_cast<int>(withInfo.GetErrorInfo().GetStatus()), 3);
    EXPECT_EQ(withInfo.GetInput(), u"");
}

TEST(QualifiedNameException, ClonesThrowsAndCopiesItself)
{
    QualifiedNameException const e(u"message", u"[a", AnError());
    std::unique_ptr<VeltriaException> const clone(static_cast<VeltriaException const &>(e).Clone());
    ASSERT_EQ(typeid(*clone), typeid(QualifiedNameException));
    EXPECT_EQ(static_cast<QualifiedNameException const &>(*clone).GetInput(), u"[a");
    EXPECT_THAT([&] { clone->Throw(); },
                ThrowsErrorOf<QualifiedNameException>("QualifiedNameException_AutoGen_0x12345678", "message"));
    QualifiedNameException other(u"", u"", AnError());
    other = e;
    EXPECT_EQ(other.GetInput(), u"[a");
    EXPECT_EQ(TString(other.GetConcatenatedMessages()), u"message");
    EXPECT_EQ(QualifiedNameException(other).GetInput(), u"[a");
}
