// Spatial: an immutable spatial object, a geometry on the plane or a geography on the globe.
//
// Objects are made by the readers and shared as std::shared_ptr<Spatial const>; any thread may read one.
//
//   a == b implies a.GetHash() == b.GetHash()
#pragma once

#include <cstdint>

#include "velgeo/Export.h"
#include "velgeo/ShapeType.h"

namespace velgeo {

class Geography;
class Geometry;

class VELGEO_API Spatial
{
public:
    virtual ~Spatial();

    virtual ShapeType GetShapeType() const noexcept = 0;
    // The object as a geography or a geometry; null if it is not one. The view lives as long as the object.
    virtual Geography const * AsGeography() const noexcept = 0;
    virtual Geometry const * AsGeometry() const noexcept = 0;
    // Over the kind, the structure and the coordinates.
    virtual std::uint64_t GetHash() const noexcept = 0;

    bool IsUnknown() const noexcept { return !IsGeography() && !IsGeometry(); }
    bool IsGeography() const noexcept { return AsGeography() != nullptr; }
    bool IsGeometry() const noexcept { return AsGeometry() != nullptr; }

    // Same kind, same structure, same coordinates.
    bool operator==(Spatial const & other) const noexcept { return this == &other || Equals(other); }

protected:
    Spatial() = default;
    Spatial(Spatial const &) = default;
    Spatial & operator=(Spatial const &) = default;

private:
    virtual bool Equals(Spatial const & other) const noexcept = 0;
};

}  // namespace velgeo
