// The coordinates of spatial objects: a pair on the plane, a pair of angles on the globe.
#pragma once

#include "velgeo/Angle.h"

namespace velgeo {

/// A point of the plane. Where the plane is a map, x is the longitude or the easting, y the latitude or the northing.
class GeometryCoordinate
{
public:
    /// To which side of a cut through the plane a coordinate on the cut belongs. None, to neither, is the only one.
    class Bias
    {
    public:
        static constexpr Bias None() noexcept { return Bias(); }

    private:
        constexpr Bias() noexcept = default;
    };

    /// Any numbers; the readers make finite ones only.
    constexpr GeometryCoordinate(double x, double y, Bias const &) noexcept : m_x(x), m_y(y) {}

    constexpr double X() const noexcept { return m_x; }
    constexpr double Y() const noexcept { return m_y; }
    /// The two numbers in the order in which they are stored.
    constexpr double First() const noexcept { return m_x; }
    constexpr double Second() const noexcept { return m_y; }

private:
    double m_x;
    double m_y;
};

/// A point of the globe: the latitude first, then the longitude, both in radians.
class GeographyCoordinate
{
public:
    constexpr GeographyCoordinate(Radians latitude, Radians longitude) noexcept
        : m_latitude(latitude), m_longitude(longitude)
    {}

    constexpr Radians Latitude() const noexcept { return m_latitude; }
    constexpr Radians Longitude() const noexcept { return m_longitude; }
    /// The two numbers in the order in which they are stored.
    constexpr double First() const noexcept { return m_latitude.Value(); }
    constexpr double Second() const noexcept { return m_longitude.Value(); }

private:
    Radians m_latitude;
    Radians m_longitude;
};

}  // namespace velgeo
