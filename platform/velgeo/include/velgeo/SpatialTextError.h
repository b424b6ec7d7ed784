// SpatialTextError: a text that is no spatial object, or an object that has no text.
#pragma once

#include <cstddef>
#include <stdexcept>

#include "velgeo/Export.h"

namespace velgeo {

/// what() is a sentence for developers: "a ring is not closed".
class VELGEO_API SpatialTextError : public std::runtime_error
{
public:
    /// `position` counts bytes from the start of the text.
    SpatialTextError(char const * what, std::size_t position);
    SpatialTextError(SpatialTextError const &);
    SpatialTextError & operator=(SpatialTextError const &);
    ~SpatialTextError() override;

    /// Where reading stopped; 0 where the fault has no place.
    std::size_t GetPosition() const noexcept { return m_position; }

private:
    std::size_t m_position;
};

}  // namespace velgeo
