#include "velcoreplatform/StringException.h"

StringException::StringException(TString const & message, TError::ErrorInfo const & info)
    : VeltriaException(static_cast<TStringCore const &>(message), info)
{}

StringException::StringException(StringException const &) = default;
StringException & StringException::operator=(StringException const &) = default;
StringException::~StringException() = default;

StringException * StringException::Clone() const
{
    return new StringException(*this);
}

void StringException::Throw() const
{
    StringException copy(*this);
    throw copy;
}
