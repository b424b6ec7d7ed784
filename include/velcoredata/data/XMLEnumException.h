// The errors of the tables that map enumerations to the names of the interchange form and back.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"
#include "velsys/VeltriaException.h"

namespace Implementation {

class VELCOREDATA_API XMLEnumEncodingException : public VeltriaException
{
public:
    XMLEnumEncodingException(TString const & message, TError::ErrorInfo const & info);
    XMLEnumEncodingException(XMLEnumEncodingException const &);
    XMLEnumEncodingException & operator=(XMLEnumEncodingException const &);

    ~XMLEnumEncodingException() override;
    XMLEnumEncodingException * Clone() const override;
    [[noreturn]] void Throw() const override;
};

class VELCOREDATA_API XMLEnumDecodingException : public VeltriaException
{
public:
    XMLEnumDecodingException(TString const & message, TError::ErrorInfo const & info);
    XMLEnumDecodingException(XMLEnumDecodingException const &);
    XMLEnumDecodingException & operator=(XMLEnumDecodingException const &);

    ~XMLEnumDecodingException() override;
    XMLEnumDecodingException * Clone() const override;
    [[noreturn]] void Throw() const override;
};

// "XML enumerated value cannot be encoded."
[[noreturn]] VELCOREDATA_API void ThrowXMLEnumEncodingException();
// "XML enumerated value cannot be decoded."
[[noreturn]] VELCOREDATA_API void ThrowXMLEnumDecodingException();

}  // namespace Implementation
