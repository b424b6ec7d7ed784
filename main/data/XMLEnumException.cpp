#include "velcoredata/data/XMLEnumException.h"

#include "velcoredata/core/LocalStrings.h"
#include "velsys/ThrowSite.h"

namespace Implementation {

XMLEnumEncodingException::XMLEnumEncodingException(TString const & message, TError::ErrorInfo const & info)
    : VeltriaException(static_cast<TStringCore const &>(message), info)
{}

XMLEnumEncodingException::XMLEnumEncodingException(XMLEnumEncodingException const &) = default;
XMLEnumEncodingException & XMLEnumEncodingException::operator=(XMLEnumEncodingException const &) = default;
XMLEnumEncodingException::~XMLEnumEncodingException() = default;

XMLEnumEncodingException * XMLEnumEncodingException::Clone() const
{
    return new XMLEnumEncodingException(*this);
}

void XMLEnumEncodingException::Throw() const
{
    XMLEnumEncodingException copy(*this);
    throw copy;
}

XMLEnumDecodingException::XMLEnumDecodingException(TString const & message, TError::ErrorInfo const & info)
    : VeltriaException(static_cast<TStringCore const &>(message), info)
{}

XMLEnumDecodingException::XMLEnumDecodingException(XMLEnumDecodingException const &) = default;
XMLEnumDecodingException & XMLEnumDecodingException::operator=(XMLEnumDecodingException const &) = default;
XMLEnumDecodingException::~XMLEnumDecodingException() = default;

XMLEnumDecodingException * XMLEnumDecodingException::Clone() const
{
    return new XMLEnumDecodingException(*this);
}

void XMLEnumDecodingException::Throw() const
{
    XMLEnumDecodingException copy(*this);
    throw copy;
}

void ThrowXMLEnumEncodingException()
{
    VELTRIA_THROW(XMLEnumEncodingException, 0x5D1E6A01,
                  CoreData::LookupTStrExported(CoreData::StringId::IDS_ERR_XML_ENUM_ENCODING));
}

void ThrowXMLEnumDecodingException()
{
    VELTRIA_THROW(XMLEnumDecodingException, 0x5D1E6A02,
                  CoreData::LookupTStrExported(CoreData::StringId::IDS_ERR_XML_ENUM_DECODING));
}

}  // namespace Implementation
