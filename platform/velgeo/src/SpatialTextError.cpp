#include "velgeo/SpatialTextError.h"

namespace velgeo {

SpatialTextError::SpatialTextError(char const * what, std::size_t position)
    : std::runtime_error(what), m_position(position)
{}

SpatialTextError::SpatialTextError(SpatialTextError const &) = default;
SpatialTextError & SpatialTextError::operator=(SpatialTextError const &) = default;
SpatialTextError::~SpatialTextError() = default;

}  // namespace velgeo
