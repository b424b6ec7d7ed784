// A logger that keeps what is logged while it lives, in the place of the process's own.
#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "velcoreplatform/TLog.h"

namespace test_support {

class RecordingLogger : public TLog::Logger
{
public:
    struct Record
    {
        int severity;
        std::string text;  // UTF-8; the event's value, a text as it stands
    };

    RecordingLogger() : m_before(TLog::Logger::Replace(this)) {}
    ~RecordingLogger() override { TLog::Logger::Replace(m_before); }

    bool IsEnabled(TLog::AnySeverity const &) override { return true; }
    void Log(TLog::Event const & event, TLog::AnySeverity const & severity) override
    {
        std::lock_guard lock(m_mutex);
        TString text;
        if (auto const * const literal = dynamic_cast<TLog::Literal const *>(event.GetValue().get()))
            text = literal->GetText();
        else if (event.GetValue() != nullptr)
            text = event.GetValue()->ToText();
        m_records.push_back({static_cast<int>(static_cast<TLog::Severity>(severity)), text.toStdString()});
    }
    std::vector<Record> GetRecords() const
    {
        std::lock_guard lock(m_mutex);
        return m_records;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<Record> m_records;
    TLog::Logger * m_before;
};

}  // namespace test_support
