// StringException: a failure of string conversion.
#pragma once

#include "velcoreplatform/Export.h"
#include "velcoreplatform/TString.h"
#include "velsys/VeltriaException.h"

class VELCOREPLATFORM_API StringException : public VeltriaException
{
public:
    StringException(TString const & message, TError::ErrorInfo const & info);
    StringException(StringException const &);
    StringException & operator=(StringException const &);

    ~StringException() override;
    StringException * Clone() const override;
    [[noreturn]] void Throw() const override;
};
