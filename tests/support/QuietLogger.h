// Takes the place of the process's logger while it lives and drops everything, for tests that provoke many errors.
#pragma once

#include "velcoreplatform/TLog.h"

namespace test_support {

class QuietLogger : public TLog::Logger
{
public:
    QuietLogger() : m_before(TLog::Logger::Replace(this)) {}
    ~QuietLogger() override { TLog::Logger::Replace(m_before); }

    bool IsEnabled(TLog::AnySeverity const &) override { return false; }
    void Log(TLog::Event const &, TLog::AnySeverity const &) override {}

private:
    TLog::Logger * m_before;
};

}  // namespace test_support
