// Logging: severities, structured events and the replaceable process logger.
//
// An event has a name and a value (text, object of named values, stack trace). The default logger writes events of
// severity Warn and above to standard error, one line each, a stack only from Error on. Everything here may be called from any thread; values are
// immutable once made.
#pragma once

#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

#include "velcoreplatform/Export.h"
#include "velcoreplatform/TFormatString.h"
#include "velcoreplatform/TString.h"
#include "velsys/TError.h"

namespace TLog {

enum class Severity : int
{
    Debug = 1,
    Info = 2,
    Warn = 3,
    Error = 4,
    Fatal = 5
};

class VELCOREPLATFORM_API AnySeverity
{
public:
    AnySeverity(Severity severity) noexcept : m_severity(severity) {}
    virtual ~AnySeverity();
    operator Severity() const noexcept { return m_severity; }

private:
    Severity m_severity;
};

// A severity that needs no error identity beside it.
class VELCOREPLATFORM_API NonErrorSeverity : public AnySeverity
{
protected:
    NonErrorSeverity(Severity severity) noexcept : AnySeverity(severity) {}

public:
    ~NonErrorSeverity() override;
};

class VELCOREPLATFORM_API Info : public NonErrorSeverity
{
public:
    Info() noexcept : NonErrorSeverity(Severity::Info) {}
};

class VELCOREPLATFORM_API Warn : public NonErrorSeverity
{
public:
    Warn() noexcept : NonErrorSeverity(static_cast<Severity>(3)) {}
};

class VELCOREPLATFORM_API Value
{
public:
    virtual ~Value();
    // JSON-like text: {"key": "text"}.
    virtual TString ToText() const = 0;
};

class VELCOREPLATFORM_API Literal : public Value
{
public:
    static std::shared_ptr<Value> String(TString const & text);
    TString const & GetText() const noexcept { return m_text; }
    TString ToText() const override;

private:
    explicit Literal(TString const & text) : m_text(text) {}
    TString m_text;
};

class VELCOREPLATFORM_API Object : public Value
{
public:
    using Fields = std::unordered_map<TString, std::shared_ptr<Value>>;
    static std::shared_ptr<Value> Make(Fields && fields);
    Fields const & GetFields() const noexcept { return m_fields; }
    // Fields in ascending order of their names.
    TString ToText() const override;

private:
    explicit Object(Fields && fields) : m_fields(std::move(fields)) {}
    Fields m_fields;
};

class VELCOREPLATFORM_API Event
{
public:
    Event(TString const & name, std::shared_ptr<Value> value) : m_name(name), m_value(std::move(value)) {}
    TString const & GetName() const noexcept { return m_name; }
    std::shared_ptr<Value> const & GetValue() const noexcept { return m_value; }

private:
    TString m_name;
    std::shared_ptr<Value> m_value;
};

// A host derives from Logger and installs it with Replace; the calls may come from any thread at once.
class VELCOREPLATFORM_API Logger
{
public:
    static Logger & Get() noexcept;
    // Installs a logger that must outlive its use; null brings the default back. Returns the one before.
    static Logger * Replace(Logger * logger) noexcept;

    virtual ~Logger();
    // Callers ask this first and build the event only if it is true.
    virtual bool IsEnabled(AnySeverity const & severity) = 0;
    virtual void Log(Event const & event, AnySeverity const & severity) = 0;
};

}  // namespace TLog

// The calling thread's stack as raw addresses under the key "stack", turned to text only if a logger asks for it. False
// gives no frames, only the empty map to build upon.
VELCOREPLATFORM_API std::unordered_map<TString, std::shared_ptr<TLog::Value>>
CaptureStackTraceForLogging(bool withFrames);

// Logs an event "message" with the text. Without a severity it is Info. The form with an ErrorInfo names a log site:
// the event's value has the fields "msg" and "error".
VELCOREPLATFORM_API void LogMessage(TString const & message);
VELCOREPLATFORM_API void LogMessage(TString && message);
VELCOREPLATFORM_API void LogMessage(TFormatString const & message);
VELCOREPLATFORM_API void LogMessage(TLog::NonErrorSeverity const & severity, TFormatString const & message);
VELCOREPLATFORM_API void LogMessage(TLog::AnySeverity const & severity, TFormatString const & message,
                                    TError::ErrorInfo && site);
