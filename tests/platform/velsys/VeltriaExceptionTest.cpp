#include "velsys/VeltriaException.h"

#include <exception>
#include <memory>
#include <sstream>
#include <type_traits>

#include <gtest/gtest.h>

namespace {

TError::ErrorInfo Info()
{
    return TError::ErrorInfo(VeltriaError::MakeError(0x0EB526BD, u"VeltriaException_AutoGen_0x0EB526BD"),
                             TError::ErrorSource::General, grpc::StatusCode::UNKNOWN);
}

// A subclass by the platform's pattern: destructor, Clone and Throw.
class Derived : public VeltriaException
{
public:
    Derived(TStringCore const & message, int extra) : VeltriaException(message, Info()), extra(extra) {}
    Derived(Derived const &) = default;
    Derived & operator=(Derived const &) = default;
    ~Derived() override = default;
    Derived * Clone() const override { return new Derived(*this); }
    [[noreturn]] void Throw() const override
    {
        Derived copy(*this);
        throw copy;
    }

    int extra;
};

TEST(VeltriaException, DoesNotDeriveFromStdException)
{
    static_assert(!std::is_base_of_v<std::exception, VeltriaException>);
    static_assert(std::has_virtual_destructor_v<VeltriaException>);
}

TEST(VeltriaException, CarriesMessageAndErrorInfo)
{
    VeltriaException const e(TStringCore(u"message"), Info());
    EXPECT_EQ(e.GetConcatenatedMessages(), u"message");
    EXPECT_EQ(e.GetErrorInfo().GetError().GetCode(), 0x0EB526BDu);
    EXPECT_EQ(e.GetErrorInfo().GetError().GetName(), u"VeltriaException_AutoGen_0x0EB526BD");
    EXPECT_EQ(static_cast<int>(e.GetErrorInfo().GetSource()), 4);
    EXPECT_EQ(static_cast<int>(e.GetErrorInfo().GetStatus()), 2);
}

TEST(VeltriaException, HasNoErrorIdentityWithoutAnErrorInfo)
{
    VeltriaException const e(TStringCore(u"message"));
    EXPECT_EQ(e.GetConcatenatedMessages(), u"message");
    EXPECT_EQ(e.GetErrorInfo().GetError().GetCode(), 0u);
    EXPECT_EQ(e.GetErrorInfo().GetError().GetName(), u"");
    EXPECT_EQ(static_cast<int>(e.GetErrorInfo().GetSource()), 4);
    EXPECT_EQ(static_cast<int>(e.GetErrorInfo().GetStatus()), 2);
    EXPECT_EQ(e.CollateMessagesForLog(), u"message");
}

TEST(VeltriaException, TakesAFilledTemplateAsItsMessage)
{
    TFormatStringCore format(u"%1 of %2");
    format.arg(u"3").arg(u"%1");
    EXPECT_EQ(VeltriaException(format, Info()).GetConcatenatedMessages(), u"3 of %1");
}

TEST(VeltriaException, CloneAndThrowKeepTheMostDerivedType)
{
    Derived const original(u"message", 42);
    VeltriaException const & base = original;

    std::unique_ptr<VeltriaException> const clone(base.Clone());
    ASSERT_NE(dynamic_cast<Derived *>(clone.get()), nullptr);
    EXPECT_EQ(static_cast<Derived &>(*clone).extra, 42);
    EXPECT_EQ(clone->GetConcatenatedMessages(), u"message");

    try {
        clone->Throw();
        FAIL();
    } catch (Derived const & thrown) {
        EXPECT_EQ(thrown.extra, 42);
        EXPECT_NE(static_cast<VeltriaException const *>(&thrown), clone.get());
        EXPECT_EQ(thrown.GetErrorInfo().GetError().GetCode(), 0x0EB526BDu);
    }
}

TEST(VeltriaException, ABaseObjectClonesAndThrowsAsItself)
{
    VeltriaException const original(TStringCore(u"message"), Info());
    std::unique_ptr<VeltriaException> const clone(original.Clone());
    EXPECT_EQ(typeid(*clone), typeid(VeltriaException));
    EXPECT_THROW(clone->Throw(), VeltriaException);
}

TEST(VeltriaException, CopiesAndAssignments)
{
    VeltriaException const original(TStringCore(u"message"), Info());
    VeltriaException const copy(original);
    EXPECT_EQ(copy.GetConcatenatedMessages(), u"message");
    VeltriaException assigned(TStringCore(u"other"));
    assigned = original;
    EXPECT_EQ(assigned.GetConcatenatedMessages(), u"message");
    EXPECT_EQ(assigned.GetErrorInfo().GetError().GetCode(), 0x0EB526BDu);
}

TEST(VeltriaException, TheFrontIsTheFirstLineAndTheLogFormIsOneLine)
{
    VeltriaException const e(TStringCore(u"first\nsecond"), Info());
    EXPECT_EQ(e.GetConcatenatedMessages(), u"first\nsecond");
    EXPECT_EQ(e.GetMessagesFront(), u"first");
    EXPECT_EQ(e.CollateMessagesForLog(), u"first second [VeltriaException_AutoGen_0x0EB526BD]");
    EXPECT_EQ(VeltriaException(TStringCore(u"")).GetMessagesFront(), u"");
}

TEST(VeltriaException, IsWrittenToStreamsInUtf8)
{
    std::ostringstream out;
    out << VeltriaException(TStringCore(u"\u00FCber"), Info());
    EXPECT_EQ(out.str(), "\xC3\xBC"
                         "ber [VeltriaException_AutoGen_0x0EB526BD]");
}

}  // namespace
