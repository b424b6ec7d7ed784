// GeoJSONSerialization: spatial objects from GeoJSON (RFC 7946).
#pragma once

#include <memory>
#include <string>

#include "velgeo/Export.h"
#include "velgeo/Spatial.h"

namespace velgeo {

/// Pure functions, safe from any thread.
///
///   Read(R"({"type": "Point", "coordinates": [2.35, 48.85]})")     a geography
///
/// docs/formats/spatial-text.md tells what is read and what is refused.
class VELGEO_API GeoJSONSerialization
{
public:
    /// UTF-8. GeoJSON has one system of reference, longitude and latitude on WGS 84, so the result is a geography. A
    /// Feature gives its geometry, a FeatureCollection the collection of them; a Feature without a place gives an
    /// object of unknown kind. Foreign members are ignored. Throws SpatialTextError for every other text, in time and
    /// memory that grow with its length; nesting is at most WktSerialization::kMostNesting deep.
    static std::unique_ptr<Spatial> Read(std::string const & text);
    /// The same, but null in place of a throw.
    static std::unique_ptr<Spatial> TryRead(std::string const & text);
};

}  // namespace velgeo
