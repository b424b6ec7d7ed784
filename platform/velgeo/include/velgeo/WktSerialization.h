// WktSerialization: spatial objects from and to well-known text.
#pragma once

#include <memory>
#include <string>

#include "velgeo/Export.h"
#include "velgeo/Spatial.h"

namespace velgeo {

/// Pure functions, safe from any thread.
///
///   Read("POINT (1 2)", 3)                      a geometry
///   Read("SRID=4326;POINT (2.35 48.85)", 3)     a geography: longitude, then latitude, in degrees
///   *Read(Write(x), 3) == x                     for every x that a reader made
///
/// docs/formats/spatial-text.md tells what is read and what is refused.
class VELGEO_API WktSerialization
{
public:
    /// Which texts are read; the two add up to 3, both.
    static constexpr int kPlain = 1;
    /// Texts with "SRID=n;" in front.
    static constexpr int kWithReference = 2;

    /// UTF-8. A well-formed text of a kind that the model does not hold (CIRCULARSTRING and other curves and surfaces)
    /// gives an object of unknown kind. Throws SpatialTextError for every other text, in time and memory that grow with
    /// its length; nesting is at most kMostNesting deep. std::invalid_argument for a mode without either form.
    static std::unique_ptr<Spatial> Read(std::string const & text, int mode);
    /// The same, but null in place of a throw.
    static std::unique_ptr<Spatial> TryRead(std::string const & text, int mode);

    /// With the fewest digits that read back to the same coordinates: "POINT (0.1 -1e-09)". A geography is written in
    /// degrees with "SRID=4326;" in front, a geometry with the number of its system if it has one. Coordinates that are
    /// not finite, which a transform may make, read "nan" and "inf" and are refused by Read. Throws SpatialTextError
    /// for an object of unknown kind.
    static std::string Write(Spatial const & spatial);

    /// A collection in a collection is nested two deep.
    static constexpr int kMostNesting = 128;
};

}  // namespace velgeo
