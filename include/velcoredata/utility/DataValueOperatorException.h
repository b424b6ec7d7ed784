// DataValueOperatorException: an operation on values of types that it is not made for.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"
#include "velsys/VeltriaException.h"

class VELCOREDATA_API DataValueOperatorException : public VeltriaException
{
public:
    explicit DataValueOperatorException(TString const & message);
    DataValueOperatorException(TString const & message, TError::ErrorInfo const & info);
    DataValueOperatorException(DataValueOperatorException const &);
    DataValueOperatorException & operator=(DataValueOperatorException const &);

    ~DataValueOperatorException() override;
    DataValueOperatorException * Clone() const override;
    [[noreturn]] void Throw() const override;
};
