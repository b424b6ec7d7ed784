// GoogleTest matchers for the errors of the library.
//
//   EXPECT_THAT([&] { value.GetInt(); }, ThrowsError("VeltriaException_IncorrectDatatypeException_0xCA8336D0"));
//   EXPECT_THAT([&] { ... }, ThrowsError(name, "message", source, status));
//   EXPECT_THAT([&] { ... }, ThrowsAssert("condition", "LogicException_LogicAssert_0x72FAA0AE"));
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <typeinfo>
#include <utility>

#include "velcoreplatform/TString.h"
#include "velsys/LogicException.h"
#include "velsys/VeltriaException.h"

namespace test_support {

struct ExpectedError
{
    std::string name;  // empty: any
    std::optional<std::string> message;
    std::optional<int> source;
    std::optional<int> status;
    bool assertion = false;
    std::type_info const * type = nullptr;
};

inline std::string Utf8(TStringCore const & text)
{
    return text.toQString().toStdString();
}

inline bool MatchesException(VeltriaException const & e, ExpectedError const & expected,
                             testing::MatchResultListener * out)
{
    auto const & info = e.GetErrorInfo();
    std::string const name = Utf8(info.GetError().GetName());
    *out << "which raises " << typeid(e).name() << " \"" << Utf8(e.GetConcatenatedMessages()) << "\" [" << name << "] ("
         << static_cast<int>(info.GetSource()) << ", " << static_cast<int>(info.GetStatus()) << ")";
    if (expected.type != nullptr && typeid(e) != *expected.type)
        return false;
    if ((dynamic_cast<LogicException const *>(&e) != nullptr) != expected.assertion)
        return false;
    if (!expected.name.empty()) {
        if (name != expected.name)
            return false;
        // The number in the name is the number of the error.
        unsigned const code = static_cast<unsigned>(std::stoul(name.substr(name.size() - 8), nullptr, 16));
        if (info.GetError().GetCode() != code)
            return false;
    }
    if (expected.message && Utf8(e.GetConcatenatedMessages()) != *expected.message)
        return false;
    if (expected.source && static_cast<int>(info.GetSource()) != *expected.source)
        return false;
    return !expected.status || static_cast<int>(info.GetStatus()) == *expected.status;
}

class ThrowsMatcher
{
public:
    using is_gtest_matcher = void;

    explicit ThrowsMatcher(ExpectedError expected) : m_expected(std::move(expected)) {}

    template <class Callable>
    bool MatchAndExplain(Callable const & call, testing::MatchResultListener * out) const
    {
        try {
            call();
        } catch (VeltriaException const & e) {
            return MatchesException(e, m_expected, out);
        }
        *out << "which raises nothing of ours";
        return false;
    }

    void DescribeTo(std::ostream * out) const
    {
        *out << "raises " << (m_expected.name.empty() ? "an error" : m_expected.name);
        if (m_expected.message)
            *out << " with \"" << *m_expected.message << '"';
    }
    void DescribeNegationTo(std::ostream * out) const
    {
        *out << "not ";
        DescribeTo(out);
    }

private:
    ExpectedError m_expected;
};

}  // namespace test_support

// A user error: any class derived from VeltriaException but LogicException. The class's name is checked through the
// error's name; source and status default to the pair of every ordinary throw.
inline test_support::ThrowsMatcher ThrowsError(std::string name, std::optional<std::string> message = std::nullopt,
                                               int source = 4, int status = 2)
{
    if (name.find("IncorrectDatatypeException") != std::string::npos)
        source = 2;
    return test_support::ThrowsMatcher({std::move(name), std::move(message), source, status, false, nullptr});
}

// The same, thrown as exactly the class Exception.
template <class Exception>
test_support::ThrowsMatcher ThrowsErrorOf(std::string name, std::optional<std::string> message = std::nullopt,
                                          int source = 4, int status = 2)
{
    return test_support::ThrowsMatcher(
        {std::move(name), std::move(message), source, status, false, &typeid(Exception)});
}

// A logic assertion with this text, and with this error name if one is given.
inline test_support::ThrowsMatcher ThrowsAssert(std::string expression, std::string name = {})
{
    return test_support::ThrowsMatcher(
        {std::move(name), std::move(expression), std::nullopt, std::nullopt, true, nullptr});
}

inline void PrintTo(TString const & text, std::ostream * out)
{
    *out << '"' << text.toStdString() << '"';
}
