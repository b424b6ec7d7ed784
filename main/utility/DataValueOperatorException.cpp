#include "velcoredata/utility/DataValueOperatorException.h"

DataValueOperatorException::DataValueOperatorException(TString const & message)
    : VeltriaException(static_cast<TStringCore const &>(message))
{}

DataValueOperatorException::DataValueOperatorException(TString const & message, TError::ErrorInfo const & info)
    : VeltriaException(static_cast<TStringCore const &>(message), info)
{}

DataValueOperatorException::DataValueOperatorException(DataValueOperatorException const &) = default;
DataValueOperatorException & DataValueOperatorException::operator=(DataValueOperatorException const &) = default;
DataValueOperatorException::~DataValueOperatorException() = default;

DataValueOperatorException * DataValueOperatorException::Clone() const
{
    return new DataValueOperatorException(*this);
}

void DataValueOperatorException::Throw() const
{
    DataValueOperatorException copy(*this);
    throw copy;
}
