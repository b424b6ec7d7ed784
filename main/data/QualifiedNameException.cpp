#include "velcoredata/data/QualifiedNameException.h"

QualifiedNameException::QualifiedNameException(TString const & message, TString const & input,
                                               TError::ErrorInfo const & info)
    : VeltriaException(static_cast<TStringCore const &>(message), info), m_input(input)
{}

QualifiedNameException::QualifiedNameException(TString const & message, TString const & input,
                                               VeltriaError const & error)
    : QualifiedNameException(message, input,
                             TError::ErrorInfo(error, TError::ErrorSource::General, grpc::StatusCode::UNKNOWN))
{}

QualifiedNameException::QualifiedNameException(QualifiedNameException const &) = default;
QualifiedNameException & QualifiedNameException::operator=(QualifiedNameException const &) = default;
QualifiedNameException::~QualifiedNameException() = default;

QualifiedNameException * QualifiedNameException::Clone() const
{
    return new QualifiedNameException(*this);
}

void QualifiedNameException::Throw() const
{
    QualifiedNameException copy(*this);
    throw copy;
}
