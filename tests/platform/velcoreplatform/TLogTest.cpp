#include "velcoreplatform/TLog.h"

#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// Writes down every question and answer, in order.
class ScriptLogger : public TLog::Logger
{
public:
    explicit ScriptLogger(int threshold = 0) : m_threshold(threshold), m_before(TLog::Logger::Replace(this)) {}
    ~ScriptLogger() override { TLog::Logger::Replace(m_before); }

    bool IsEnabled(TLog::AnySeverity const & severity) override
    {
        int const number = static_cast<int>(static_cast<TLog::Severity>(severity));
        calls.push_back("enabled? " + std::to_string(number));
        return number >= m_threshold;
    }
    void Log(TLog::Event const & event, TLog::AnySeverity const & severity) override
    {
        int const number = static_cast<int>(static_cast<TLog::Severity>(severity));
        calls.push_back("log " + std::to_string(number) + " " + event.GetName().toStdString() + " " +
                        event.GetValue()->ToText().toStdString());
    }

    std::vector<std::string> calls;

private:
    int m_threshold;
    TLog::Logger * m_before;
};

TError::ErrorInfo Site()
{
    return TError::ErrorInfo(VeltriaError::MakeError(0xCA83AC02, u"LogSite_AutoGen_0xCA83AC02"),
                             TError::ErrorSource::General, grpc::StatusCode::UNKNOWN);
}

TEST(TLogSeverity, AnAnySeverityComesFromASeverityAndConvertsBack)
{
    TLog::AnySeverity const severity = TLog::Severity::Error;
    EXPECT_EQ(static_cast<TLog::Severity>(severity), TLog::Severity::Error);
    static_assert(std::has_virtual_destructor_v<TLog::AnySeverity>);
    static_assert(std::is_base_of_v<TLog::AnySeverity, TLog::NonErrorSeverity>);
    static_assert(std::is_base_of_v<TLog::NonErrorSeverity, TLog::Warn>);
    static_assert(!std::is_constructible_v<TLog::NonErrorSeverity, TLog::Severity>);
}

TEST(TLogSeverity, WarnIsThree)
{
    EXPECT_EQ(static_cast<int>(static_cast<TLog::Severity>(TLog::Warn())), 3);
}

TEST(TLogLogger, IsReplacedAndBroughtBack)
{
    TLog::Logger & before = TLog::Logger::Get();
    {
        ScriptLogger const logger;
        EXPECT_EQ(&TLog::Logger::Get(), &logger);
        {
            ScriptLogger const inner;
            EXPECT_EQ(&TLog::Logger::Get(), &inner);
        }
        EXPECT_EQ(&TLog::Logger::Get(), &logger);
    }
    EXPECT_EQ(&TLog::Logger::Get(), &before);
}

TEST(TLogLogger, TheDefaultWritesWarningsAndUpToStandardError)
{
    testing::internal::CaptureStderr();
    LogMessage(TString(u"quiet"));
    LogMessage(TLog::Warn(), TFormatString(u"warned %1").arg(1));
    LogMessage(TLog::AnySeverity(TLog::Severity::Error), TFormatString(u"failed"), Site());
    std::string const written = testing::internal::GetCapturedStderr();
    EXPECT_EQ(written, "warning: message \"warned 1\"\n"
                       "error: message {\"error\": \"LogSite_AutoGen_0xCA83AC02\", \"msg\": \"failed\"}\n");
}

TEST(LogMessage, AsksIfTheSeverityIsEnabledBeforeItLogs)
{
    ScriptLogger logger;
    LogMessage(TLog::Warn(), TFormatString(u"<%1>").arg(u"x"));
    EXPECT_THAT(logger.calls, ElementsAre("enabled? 3", "log 3 message \"<x>\""));
}

TEST(LogMessage, LogsNothingThatIsNotEnabled)
{
    ScriptLogger logger(99);
    LogMessage(TString(u"a"));
    LogMessage(TFormatString(u"a"));
    LogMessage(TLog::Warn(), TFormatString(u"a"));
    LogMessage(TLog::AnySeverity(TLog::Severity::Error), TFormatString(u"a"), Site());
    EXPECT_THAT(logger.calls, ElementsAre("enabled? 2", "enabled? 2", "enabled? 3", "enabled? 4"));
}

TEST(LogMessage, WithoutASeverityIsInfo)
{
    ScriptLogger logger;
    TString const text(u"copied");
    LogMessage(text);
    LogMessage(TString(u"moved"));
    LogMessage(TFormatString(u"%1").arg(u"filled"));
    EXPECT_THAT(logger.calls, ElementsAre("enabled? 2", "log 2 message \"copied\"", "enabled? 2",
                                          "log 2 message \"moved\"", "enabled? 2", "log 2 message \"filled\""));
}

TEST(LogMessage, WithAnErrorInfoNamesTheLogSite)
{
    ScriptLogger logger;
    LogMessage(TLog::AnySeverity(TLog::Severity::Error), TFormatString(u"text"), Site());
    EXPECT_THAT(
        logger.calls,
        ElementsAre("enabled? 4", "log 4 message {\"error\": \"LogSite_AutoGen_0xCA83AC02\", \"msg\": \"text\"}"));
    LogMessage(TLog::Warn(), TFormatString(u"text"), Site());
    EXPECT_THAT(logger.calls.back(), HasSubstr("LogSite_AutoGen_0xCA83AC02"));
}

TEST(TLogValue, AnObjectIsItsFieldsInTheOrderOfTheirNames)
{
    TLog::Object::Fields fields;
    fields.emplace(u"b", TLog::Literal::String(u"2"));
    fields.emplace(u"a", TLog::Literal::String(u"1"));
    fields.emplace(u"c", nullptr);
    auto const object = TLog::Object::Make(std::move(fields));
    EXPECT_EQ(object->ToText(), u"{\"a\": \"1\", \"b\": \"2\", \"c\": null}");
    EXPECT_EQ(TLog::Object::Make({})->ToText(), u"{}");
}

TEST(TLogValue, ATextIsQuotedAndEscaped)
{
    EXPECT_EQ(TLog::Literal::String(u"a\"b\\c\n")->ToText(), u"\"a\\\"b\\\\c\\u000a\"");
    EXPECT_EQ(TLog::Literal::String(u"")->ToText(), u"\"\"");
}

TEST(TLogValue, AnEventHasANameAndAValue)
{
    TLog::Event const event(u"name", TLog::Literal::String(u"value"));
    EXPECT_EQ(event.GetName(), u"name");
    EXPECT_EQ(event.GetValue()->ToText(), u"\"value\"");
}

TEST(CaptureStackTraceForLogging, GivesFramesAsTextOnlyWhenAsked)
{
    auto fields = CaptureStackTraceForLogging(true);
    ASSERT_EQ(fields.count(u"stack"), 1u);
    EXPECT_EQ(dynamic_cast<TLog::Literal const *>(fields.at(u"stack").get()), nullptr) << "captured raw";
    TString const text = fields.at(u"stack")->ToText();
    EXPECT_TRUE(text.startsWith(u"[\""));
    EXPECT_TRUE(text.contains(u"velcoreplatform"));
    fields.emplace(u"msg", TLog::Literal::String(u"m"));
    EXPECT_TRUE(TLog::Object::Make(std::move(fields))->ToText().startsWith(u"{\"msg\": \"m\", \"stack\": ["));
}

TEST(CaptureStackTraceForLogging, GivesAnEmptyMapWithoutFrames)
{
    EXPECT_TRUE(CaptureStackTraceForLogging(false).empty());
}

TEST(LogMessage, MayBeCalledFromSeveralThreads)
{
    testing::internal::CaptureStderr();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            for (int round = 0; round < 25; ++round)
                LogMessage(TLog::Warn(), TFormatString(u"line"));
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    std::string expected;
    for (int i = 0; i < 100; ++i)
        expected += "warning: message \"line\"\n";
    EXPECT_EQ(testing::internal::GetCapturedStderr(), expected);
}

}  // namespace
