// The exceptions of spatial work. They derive from std::exception, unlike every other exception of this library, and
// are for callers: the library itself raises none of them.
#pragma once

#include <exception>
#include <string>

#include "velcoredata/core/Export.h"

/// Example:
///   throw SpatialCastException("a polygon is no point");
///   catch (SpatialException const & e) { e.GetErrorMessage(); }  // "a polygon is no point"
class VELCOREDATA_API SpatialException : public std::exception
{
public:
    /// The message is UTF-8.
    explicit SpatialException(std::string const & message);
    SpatialException(SpatialException const &);
    SpatialException(SpatialException &&) noexcept;
    SpatialException & operator=(SpatialException const &);
    SpatialException & operator=(SpatialException &&) noexcept;
    ~SpatialException() override;

    char const * what() const noexcept override;
    /// The text of what().
    std::string GetErrorMessage() const;

private:
    std::string m_message;
};

// Each is a SpatialException by its name alone, made from a message, copied and moved as that is.
#define VELCOREDATA_SPATIAL_EXCEPTION(Name)                                                                            \
    class VELCOREDATA_API Name : public SpatialException                                                               \
    {                                                                                                                  \
    public:                                                                                                            \
        explicit Name(std::string const & message);                                                                    \
        Name(Name const &);                                                                                            \
        Name(Name &&) noexcept;                                                                                        \
        Name & operator=(Name const &);                                                                                \
        Name & operator=(Name &&) noexcept;                                                                            \
        ~Name() override;                                                                                              \
    }

/// A value that cannot become a geography.
VELCOREDATA_SPATIAL_EXCEPTION(GeographyCastException);
/// A value that cannot become a geometry.
VELCOREDATA_SPATIAL_EXCEPTION(GeometryCastException);
/// A cast between spatial types that does not exist.
VELCOREDATA_SPATIAL_EXCEPTION(SpatialCastException);
/// Bytes or text that are no spatial object.
VELCOREDATA_SPATIAL_EXCEPTION(SpatialDeserializationException);
/// A number that names no kind of shape in another program's catalogue of kinds.
VELCOREDATA_SPATIAL_EXCEPTION(SpatialOGRTypeException);
/// An operation on a kind of shape that it is not made for.
VELCOREDATA_SPATIAL_EXCEPTION(SpatialUnsupportedTypeException);

#undef VELCOREDATA_SPATIAL_EXCEPTION
