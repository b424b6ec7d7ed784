#include "velcoredata/utility/DataValueOperatorException.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "tests/support/ErrorMatchers.h"

namespace {

TError::ErrorInfo Info()
{
    return TError::ErrorInfo(VeltriaError::MakeError(0x12345678, u"DataValueOperatorException_AutoGen_0x12345678"),
                             static_cast<TError::ErrorSource>(4), static_cast<grpc::StatusCode>(2));
}

TEST(DataValueOperatorException, CarriesMessageAndErrorThroughCopyCloneAndThrow)
{
    DataValueOperatorException const original(u"text", Info());
    DataValueOperatorException assigned(u"other");
    assigned = original;
    std::unique_ptr<VeltriaException const> const clone(original.Clone());
    VeltriaException const & base = assigned;
    for (VeltriaException const * const e : {clone.get(), &base})
        EXPECT_THAT([&] { e->Throw(); }, ThrowsErrorOf<DataValueOperatorException>(
                                             "DataValueOperatorException_AutoGen_0x12345678", "text", 4, 2));
}

TEST(DataValueOperatorException, WithoutAnErrorKeepsTheMessage)
{
    EXPECT_EQ(DataValueOperatorException(u"text").GetConcatenatedMessages(), TStringCore(u"text"));
    static_assert(std::is_base_of_v<VeltriaException, DataValueOperatorException>);
    static_assert(!std::is_base_of_v<std::exception, DataValueOperatorException>);
}

}  // namespace
