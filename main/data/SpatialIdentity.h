// What the identity of values asks of spatial objects.
#pragma once

#include "velcoreplatform/TString.h"
#include "velgeo/Spatial.h"

namespace detail {

// Equal if both are null, the same object, or equal as objects.
inline bool SpatialEqual(velgeo::Spatial const * a, velgeo::Spatial const * b) noexcept
{
    return a == b || (a != nullptr && b != nullptr && *a == *b);
}

// The low half of the object's hash.
inline unsigned SpatialHash32(velgeo::Spatial const & spatial) noexcept
{
    return static_cast<unsigned>(spatial.GetHash());
}

// The kind in single quotes: 'Point'. A null pointer reads as the unknown kind.
inline TString SpatialLiteral(velgeo::Spatial const * spatial)
{
    auto const kind = spatial == nullptr ? velgeo::ShapeType::Unknown : spatial->GetShapeType();
    return TString::fromStdString('\'' + velgeo::to_string(kind) + '\'');
}

}  // namespace detail
