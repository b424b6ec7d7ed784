// VeltriaException: base of all exceptions of the platform. It does not derive from std::exception.
//
// A subclass overrides exactly the destructor, Clone and Throw. Example:
//   try { DataValue(1.5).GetInt(); }
//   catch (VeltriaException const & e)
//   {
//       e.GetConcatenatedMessages();             // "Incorrect data type real, getting expected integer type."
//       e.GetErrorInfo().GetError().GetName();   // "VeltriaException_IncorrectDatatypeException_0xCA8336D0"
//   }
#pragma once

#include <iosfwd>

#include "velsys/Export.h"
#include "velsys/TError.h"
#include "velsys/TFormatStringCore.h"
#include "velsys/TStringCore.h"

class VELSYS_API VeltriaException
{
public:
    // Without an ErrorInfo the error has code 0 and an empty name, source General and status UNKNOWN.
    VeltriaException(TStringCore const & message);
    VeltriaException(TStringCore const & message, TError::ErrorInfo const & info);
    VeltriaException(TFormatStringCore const & message, TError::ErrorInfo const & info);
    VeltriaException(VeltriaException const &);
    VeltriaException & operator=(VeltriaException const &);

    virtual ~VeltriaException();
    // A new heap copy as the most-derived type; the caller owns it.
    virtual VeltriaException * Clone() const;
    // Throws a copy of itself as its most-derived type.
    [[noreturn]] virtual void Throw() const;
    // The message.
    virtual TStringCore GetConcatenatedMessages() const;
    // The first line of the message.
    virtual TStringCore GetMessagesFront() const;
    // The message and the error's name, on one line: "message [name]".
    virtual TStringCore CollateMessagesForLog() const;

    TError::ErrorInfo const & GetErrorInfo() const noexcept { return m_info; }

private:
    TStringCore m_message;
    TError::ErrorInfo m_info;
};

// "message [name]" in UTF-8.
VELSYS_API std::ostream & operator<<(std::ostream & out, VeltriaException const & exception);
