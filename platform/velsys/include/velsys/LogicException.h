// A broken invariant: ThrowLogicException raises LogicException and never returns. Nothing aborts.
#pragma once

#include "velsys/Export.h"
#include "velsys/VeltriaException.h"

// The message is the text of the asserted condition, or "false" for a branch that must not be reached, or a sentence.
class VELSYS_API LogicException : public VeltriaException
{
public:
    LogicException(char const * file, int line, char const * expression, VeltriaError const & error);
    LogicException(LogicException const &);
    LogicException & operator=(LogicException const &);

    ~LogicException() override;
    LogicException * Clone() const override;
    [[noreturn]] void Throw() const override;

    // The repository path of the source file and the line, counted from 1.
    char const * GetFile() const noexcept { return m_file; }
    int GetLine() const noexcept { return m_line; }
    TStringCore GetExpression() const { return GetConcatenatedMessages(); }

private:
    char const * m_file;  // a literal
    int m_line;
};

// `file` is a string literal, `expression` ASCII.
[[noreturn]] VELSYS_API void ThrowLogicException(char const * file, int line, char const * expression,
                                                 VeltriaError const & error);
[[noreturn]] VELSYS_API void ThrowLogicException(char const * file, int line, char const * expression);
