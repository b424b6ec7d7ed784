// Geometry: a spatial object on the plane.
#pragma once

#include "velgeo/Shapes.h"
#include "velgeo/Spatial.h"

namespace velgeo {

/// Immutable, shared as std::shared_ptr<Geometry const>, readable from any thread.
class VELGEO_API Geometry : public Spatial
{
public:
    struct Attributes
    {
        /// The number of the system of reference that a text names by "SRID=n;"; 0 if it names none.
        std::int32_t srid = 0;

        friend bool operator==(Attributes const &, Attributes const &) = default;
    };

    ~Geometry() override;

    /// Points, line strings and polygons, each in the order of the text, whatever collections they stood in, and the
    /// structure. They live as long as the object.
    virtual GeometryShapes const & GetShapes() const noexcept = 0;
    virtual Attributes const & GetAttributes() const noexcept = 0;

    Geography const * AsGeography() const noexcept final { return nullptr; }
    Geometry const * AsGeometry() const noexcept final { return this; }
};

}  // namespace velgeo
