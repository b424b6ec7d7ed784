// QualifiedNameException: a text that is no qualified name.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"
#include "velsys/VeltriaException.h"

class VELCOREDATA_API QualifiedNameException : public VeltriaException
{
public:
    // `input` is the text that failed, without the blanks around it.
    QualifiedNameException(TString const & message, TString const & input, TError::ErrorInfo const & info);
    // With source General and status UNKNOWN.
    QualifiedNameException(TString const & message, TString const & input, VeltriaError const & error);
    QualifiedNameException(QualifiedNameException const &);
    QualifiedNameException & operator=(QualifiedNameException const &);

    ~QualifiedNameException() override;
    QualifiedNameException * Clone() const override;
    [[noreturn]] void Throw() const override;

    TString GetInput() const { return m_input; }

private:
    TString m_input;
};
