#include "velgeo/WktSerialization.h"

#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>
#include <string_view>

#include "ShapesBuilder.h"
#include "WktReader.h"
#include "velgeo/Geography.h"
#include "velgeo/Geometry.h"

namespace velgeo {

namespace {

using NumberText = std::array<char, 32>;

std::string_view Text(NumberText const & buffer, std::to_chars_result const & result)
{
    return {buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data())};
}

// Plain digits where they are short enough to read, an exponent elsewhere; as few digits as read back either way.
std::string_view ShortestText(double value, NumberText & buffer)
{
    double const size = std::fabs(value);
    char * const end = buffer.data() + buffer.size();
    if (size == 0.0 || (size >= 1e-6 && size < 1e16))
        return Text(buffer, std::to_chars(buffer.data(), end, value, std::chars_format::fixed));
    return Text(buffer, std::to_chars(buffer.data(), end, value));
}

// The converted degrees with as few digits as read back to these radians. Conversion rounds, so that the ones that do
// may be a unit or two beside the converted number.
double ShortestDegrees(Radians const & angle)
{
    double const converted = Degrees(angle).Value();
    auto const readsBack = [&](double degrees) { return Radians(Degrees(degrees)).Value() == angle.Value(); };
    NumberText buffer;
    for (int digits = 1; digits <= 17; ++digits) {
        auto const text = Text(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), converted,
                                                     std::chars_format::scientific, digits - 1));
        double degrees = 0.0;
        std::from_chars(text.data(), text.data() + text.size(), degrees);
        if (readsBack(degrees))
            return degrees;
    }
    double below = converted, above = converted;
    for (int step = 0; step < 4; ++step) {
        below = std::nextafter(below, -HUGE_VAL);
        above = std::nextafter(above, HUGE_VAL);
        for (double const near : {below, above})
            if (readsBack(near))
                return near;
    }
    return converted;
}

void AppendNumbers(std::string & out, double x, double y)
{
    NumberText buffer;
    out += ShortestText(x, buffer);
    out += ' ';
    out += ShortestText(y, buffer);
}

void AppendCoordinate(std::string & out, GeometryCoordinate const & c)
{
    AppendNumbers(out, c.X(), c.Y());
}

void AppendCoordinate(std::string & out, GeographyCoordinate const & c)
{
    AppendNumbers(out, ShortestDegrees(c.Longitude()), ShortestDegrees(c.Latitude()));
}

std::string_view TagOf(ShapeType kind)
{
    switch (kind) {
    case ShapeType::Point: return "POINT";
    case ShapeType::LineString: return "LINESTRING";
    case ShapeType::Polygon: return "POLYGON";
    case ShapeType::MultiPoint: return "MULTIPOINT";
    case ShapeType::MultiLineString: return "MULTILINESTRING";
    case ShapeType::MultiPolygon: return "MULTIPOLYGON";
    default: return "GEOMETRYCOLLECTION";
    }
}

// Walks the structure and takes the lists along. Collections are at most as deep as the readers made them.
template <class Coordinate>
class WktWriter
{
public:
    WktWriter(Shapes<Coordinate> const & shapes, std::string & out) : m_shapes(shapes), m_out(out) {}

    void Shape()
    {
        ShapeNode const node = m_shapes.structure[m_node++];
        m_out += TagOf(node.kind);
        m_out += ' ';
        switch (node.kind) {
        case ShapeType::Point: PointBody(node.count); break;
        case ShapeType::LineString: LineBody(m_shapes.lineStrings[m_lineString++]); break;
        case ShapeType::Polygon: PolygonBody(m_shapes.polygons[m_polygon++]); break;
        case ShapeType::MultiPoint: MultiPoint(node.count); break;
        case ShapeType::MultiLineString:
            List(node.count, [this](std::size_t) { LineBody(m_shapes.lineStrings[m_lineString++]); });
            break;
        case ShapeType::MultiPolygon:
            List(node.count, [this](std::size_t) { PolygonBody(m_shapes.polygons[m_polygon++]); });
            break;
        default: List(node.count, [this](std::size_t) { Shape(); }); break;
        }
    }

private:
    // (item, item), or EMPTY.
    template <class Item>
    void List(std::size_t count, Item item)
    {
        if (count == 0) {
            m_out += "EMPTY";
            return;
        }
        for (std::size_t i = 0; i < count; ++i) {
            m_out += i == 0 ? "(" : ", ";
            item(i);
        }
        m_out += ')';
    }

    void PointBody(std::size_t count)
    {
        List(count, [this](std::size_t) { AppendCoordinate(m_out, m_shapes.points[m_point++]); });
    }

    void LineBody(typename Shapes<Coordinate>::CoordinateList const & list)
    {
        List(list.size(), [&](std::size_t i) { AppendCoordinate(m_out, list[i]); });
    }

    void PolygonBody(typename Shapes<Coordinate>::RingList const & rings)
    {
        List(rings.size(), [&](std::size_t i) { LineBody(rings[i]); });
    }

    void MultiPoint(std::size_t runs)
    {
        if (runs == 0)
            m_out += "EMPTY";
        for (std::size_t run = 0; run < runs; ++run) {
            m_out += run == 0 ? "(" : ", ";
            std::size_t const points = m_shapes.structure[m_node++].count;
            if (points == 0)
                m_out += "EMPTY";
            for (std::size_t i = 0; i < points; ++i) {
                if (i != 0)
                    m_out += ", ";
                PointBody(1);
            }
        }
        if (runs != 0)
            m_out += ')';
    }

    Shapes<Coordinate> const & m_shapes;
    std::string & m_out;
    std::size_t m_node = 0;
    std::size_t m_point = 0;
    std::size_t m_lineString = 0;
    std::size_t m_polygon = 0;
};

void AppendReference(std::string & out, std::int32_t srid)
{
    out += "SRID=";
    out += std::to_string(srid);
    out += ';';
}

static_assert(WktSerialization::kMostNesting == detail::kMostNesting);

detail::ReadOutcome ReadChecked(std::string const & text, int mode)
{
    bool const plain = (mode & WktSerialization::kPlain) != 0;
    bool const withReference = (mode & WktSerialization::kWithReference) != 0;
    if (!plain && !withReference)
        throw std::invalid_argument("WktSerialization: a mode that reads nothing");
    return detail::ReadWkt(text, plain, withReference);
}

}  // namespace

std::unique_ptr<Spatial> WktSerialization::Read(std::string const & text, int mode)
{
    return detail::SpatialOrThrow(ReadChecked(text, mode));
}

std::unique_ptr<Spatial> WktSerialization::TryRead(std::string const & text, int mode)
{
    return ReadChecked(text, mode).spatial;
}

std::string WktSerialization::Write(Spatial const & spatial)
{
    std::string out;
    if (Geography const * const geography = spatial.AsGeography()) {
        AppendReference(out, Geography::kSrid);
        WktWriter(geography->GetShapes(), out).Shape();
    } else if (Geometry const * const geometry = spatial.AsGeometry()) {
        if (geometry->GetAttributes().srid != 0)
            AppendReference(out, geometry->GetAttributes().srid);
        WktWriter(geometry->GetShapes(), out).Shape();
    } else {
        throw SpatialTextError("an object of unknown kind has no text", 0);
    }
    return out;
}

}  // namespace velgeo
