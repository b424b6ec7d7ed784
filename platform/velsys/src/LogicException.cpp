#include "velsys/LogicException.h"

LogicException::LogicException(char const * file, int line, char const * expression, VeltriaError const & error)
    : VeltriaException(TStringCore(QString::fromUtf8(expression)),
                       TError::ErrorInfo(error, TError::ErrorSource::General, grpc::StatusCode::UNKNOWN)),
      m_file(file),
      m_line(line)
{}

LogicException::LogicException(LogicException const &) = default;
LogicException & LogicException::operator=(LogicException const &) = default;
LogicException::~LogicException() = default;

LogicException * LogicException::Clone() const
{
    return new LogicException(*this);
}

void LogicException::Throw() const
{
    LogicException copy(*this);
    throw copy;
}

void ThrowLogicException(char const * file, int line, char const * expression, VeltriaError const & error)
{
    throw LogicException(file, line, expression, error);
}

void ThrowLogicException(char const * file, int line, char const * expression)
{
    throw LogicException(file, line, expression, VeltriaError::MakeError(0, TStringCore()));
}
