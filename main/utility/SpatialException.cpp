#include "velcoredata/utility/SpatialException.h"

SpatialException::SpatialException(std::string const & message) : m_message(message) {}
SpatialException::SpatialException(SpatialException const &) = default;
SpatialException::SpatialException(SpatialException &&) noexcept = default;
SpatialException & SpatialException::operator=(SpatialException const &) = default;
SpatialException & SpatialException::operator=(SpatialException &&) noexcept = default;
SpatialException::~SpatialException() = default;

char const * SpatialException::what() const noexcept
{
    return m_message.c_str();
}

std::string SpatialException::GetErrorMessage() const
{
    return what();
}

#define VELCOREDATA_SPATIAL_EXCEPTION(Name)                                                                            \
    Name::Name(std::string const & message) : SpatialException(message) {}                                             \
    Name::Name(Name const &) = default;                                                                                \
    Name::Name(Name &&) noexcept = default;                                                                            \
    Name & Name::operator=(Name const &) = default;                                                                    \
    Name & Name::operator=(Name &&) noexcept = default;                                                                \
    Name::~Name() = default

VELCOREDATA_SPATIAL_EXCEPTION(GeographyCastException);
VELCOREDATA_SPATIAL_EXCEPTION(GeometryCastException);
VELCOREDATA_SPATIAL_EXCEPTION(SpatialCastException);
VELCOREDATA_SPATIAL_EXCEPTION(SpatialDeserializationException);
VELCOREDATA_SPATIAL_EXCEPTION(SpatialOGRTypeException);
VELCOREDATA_SPATIAL_EXCEPTION(SpatialUnsupportedTypeException);
