#include "velcoreplatform/TLog.h"

#include <execinfo.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "velsys/NoDestructor.h"

namespace {

TString Quoted(TString const & text)
{
    QString out(u'"');
    for (QChar const c : text.toQString()) {
        if (c == u'"' || c == u'\\')
            out += u'\\';
        if (c < u' ')
            out += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QChar(u'0'));
        else
            out += c;
    }
    out += u'"';
    return TString(out);
}

char const * Name(TLog::Severity severity)
{
    switch (severity) {
    case TLog::Severity::Debug: return "debug";
    case TLog::Severity::Info: return "info";
    case TLog::Severity::Warn: return "warning";
    case TLog::Severity::Error: return "error";
    case TLog::Severity::Fatal: return "fatal";
    }
    return "log";
}

class StandardErrorLogger : public TLog::Logger
{
public:
    bool IsEnabled(TLog::AnySeverity const & severity) override
    {
        return static_cast<TLog::Severity>(severity) >= TLog::Severity::Warn;
    }

    void Log(TLog::Event const & event, TLog::AnySeverity const & severity) override
    {
        std::string line = Name(severity);
        line += ": " + event.GetName().toStdString();
        if (event.GetValue() != nullptr)
            line += ' ' + TextOf(*event.GetValue(), severity).toStdString();
        line += '\n';
        std::fwrite(line.data(), 1, line.size(), stderr);
    }

private:
    // A stack is worth its length only where something broke.
    static TString TextOf(TLog::Value const & value, TLog::AnySeverity const & severity)
    {
        auto const * const object = dynamic_cast<TLog::Object const *>(&value);
        if (object == nullptr || static_cast<TLog::Severity>(severity) >= TLog::Severity::Error)
            return value.ToText();
        TLog::Object::Fields fields = object->GetFields();
        fields.erase(u"stack");
        return TLog::Object::Make(std::move(fields))->ToText();
    }
};

// The addresses of a stack; their names are looked up when the text is asked for.
class StackTrace : public TLog::Value
{
public:
    StackTrace() : m_depth(backtrace(m_frames.data(), static_cast<int>(m_frames.size()))) {}

    TString ToText() const override
    {
        QString out(u'[');
        char ** const names = backtrace_symbols(m_frames.data(), m_depth);
        for (int i = 0; names != nullptr && i < m_depth; ++i) {
            if (i > 0)
                out += QStringLiteral(", ");
            out += Quoted(TString::fromUtf8(names[i])).toQString();
        }
        std::free(names);
        out += u']';
        return TString(std::move(out));
    }

private:
    std::array<void *, 64> m_frames{};
    int m_depth;
};

std::atomic<TLog::Logger *> g_logger{nullptr};

// A format string becomes text only if the logger wants it.
template <class Message>
void LogAt(TLog::AnySeverity const & severity, Message const & message)
{
    TLog::Logger & logger = TLog::Logger::Get();
    if (logger.IsEnabled(severity))
        logger.Log(TLog::Event(u"message", TLog::Literal::String(message)), severity);
}

}  // namespace

namespace TLog {

AnySeverity::~AnySeverity() = default;
NonErrorSeverity::~NonErrorSeverity() = default;
Value::~Value() = default;
Logger::~Logger() = default;

std::shared_ptr<Value> Literal::String(TString const & text)
{
    return std::shared_ptr<Value>(new Literal(text));
}

TString Literal::ToText() const
{
    return Quoted(m_text);
}

std::shared_ptr<Value> Object::Make(Fields && fields)
{
    return std::shared_ptr<Value>(new Object(std::move(fields)));
}

TString Object::ToText() const
{
    std::map<TString, std::shared_ptr<Value>> const sorted(m_fields.begin(), m_fields.end());
    TString out(u"{");
    for (auto const & [name, value] : sorted) {
        if (out.length() > 1)
            out += u", ";
        out += Quoted(name) + u": " + (value == nullptr ? TString(u"null") : value->ToText());
    }
    return out + u'}';
}

Logger & Logger::Get() noexcept
{
    Logger * const installed = g_logger.load(std::memory_order_acquire);
    if (installed != nullptr)
        return *installed;
    static ::detail::NoDestructor<StandardErrorLogger> s_default;
    return *s_default;
}

Logger * Logger::Replace(Logger * logger) noexcept
{
    return g_logger.exchange(logger, std::memory_order_acq_rel);
}

}  // namespace TLog

std::unordered_map<TString, std::shared_ptr<TLog::Value>> CaptureStackTraceForLogging(bool withFrames)
{
    std::unordered_map<TString, std::shared_ptr<TLog::Value>> fields;
    if (withFrames)
        fields.emplace(u"stack", std::make_shared<StackTrace>());
    return fields;
}

void LogMessage(TString const & message)
{
    LogAt(TLog::Info(), message);
}

void LogMessage(TString && message)
{
    LogAt(TLog::Info(), message);
}

void LogMessage(TFormatString const & message)
{
    LogAt(TLog::Info(), message);
}

void LogMessage(TLog::NonErrorSeverity const & severity, TFormatString const & message)
{
    LogAt(severity, message);
}

void LogMessage(TLog::AnySeverity const & severity, TFormatString const & message, TError::ErrorInfo && site)
{
    TLog::Logger & logger = TLog::Logger::Get();
    if (!logger.IsEnabled(severity))
        return;
    TLog::Object::Fields fields;
    fields.emplace(u"msg", TLog::Literal::String(message));
    fields.emplace(u"error", TLog::Literal::String(site.GetError().GetName()));
    logger.Log(TLog::Event(u"message", TLog::Object::Make(std::move(fields))), severity);
}
