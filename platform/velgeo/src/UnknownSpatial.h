// UnknownSpatial: what a well-formed text gives whose kind the model does not hold. It keeps nothing of the text.
#pragma once

#include "velgeo/Spatial.h"

namespace velgeo::detail {

class UnknownSpatial final : public Spatial
{
public:
    ShapeType GetShapeType() const noexcept override { return ShapeType::Unknown; }
    Geography const * AsGeography() const noexcept override { return nullptr; }
    Geometry const * AsGeometry() const noexcept override { return nullptr; }
    std::uint64_t GetHash() const noexcept override { return 0; }

private:
    // Nothing is known of either: they are equal only as one object.
    bool Equals(Spatial const &) const noexcept override { return false; }
};

}  // namespace velgeo::detail
