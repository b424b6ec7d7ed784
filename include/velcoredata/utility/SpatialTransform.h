// SpatialTransform: a change of every coordinate of a spatial object.
#pragma once

#include <memory>
#include <utility>

#include "velcoredata/core/Export.h"

namespace velgeo {
class Geometry;
class Spatial;
}  // namespace velgeo

/// Example: moves everything to the east.
///   class East : public SpatialTransform
///   {
///       void Transform(std::pair<double, double> & out, double x, double y) const override { out = {x + 1, y}; }
///   };
///   SpatialTransform::Execute(value.GetSpatial(), East());
class VELCOREDATA_API SpatialTransform
{
public:
    SpatialTransform();
    SpatialTransform(SpatialTransform const &);
    SpatialTransform & operator=(SpatialTransform const &);

    /// Fills `out` with what becomes of one coordinate: x and y of a geometry; longitude and latitude, in degrees, of a
    /// geography. May raise; Execute passes it on.
    virtual void Transform(std::pair<double, double> & out, double first, double second) const = 0;

    virtual ~SpatialTransform();

    /// The points, line strings and polygons of the object, in its order, each coordinate transformed, as a geometry
    /// without attributes. Collections in collections become one collection. An object that is neither a geography nor
    /// a geometry, and a null pointer, give the empty geometry. Never null.
    static std::shared_ptr<velgeo::Geometry const> Execute(std::shared_ptr<velgeo::Spatial const> const & spatial,
                                                           SpatialTransform const & transform);
};
