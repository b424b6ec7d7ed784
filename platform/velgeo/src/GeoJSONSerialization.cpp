#include "velgeo/GeoJSONSerialization.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "ReadOutcome.h"
#include "ShapesBuilder.h"
#include "UnknownSpatial.h"
#include "velgeo/Geography.h"

namespace velgeo {

namespace {

using detail::ReadOutcome;
using detail::ShapesBuilder;

ShapeType KindOf(QString const & type)
{
    for (auto const kind : {ShapeType::Point, ShapeType::LineString, ShapeType::Polygon, ShapeType::MultiPoint,
                            ShapeType::MultiLineString, ShapeType::MultiPolygon, ShapeType::GeometryCollection})
        if (type == QLatin1String(to_string(kind).c_str()))
            return kind;
    return ShapeType::Unknown;
}

class GeoJSONParser
{
public:
    // A geometry, a Feature or a FeatureCollection; null if something is wrong with it.
    std::unique_ptr<Spatial> Parse(QJsonObject const & object)
    {
        QString const type = object[u"type"].toString();
        if (type == u"FeatureCollection") {
            if (!FeatureCollection(object))
                return nullptr;
        } else if (type == u"Feature") {
            if (object[u"geometry"].isNull())
                return std::make_unique<detail::UnknownSpatial>();
            if (!Geometry(object[u"geometry"], 0))
                return nullptr;
        } else if (!Geometry(object, 0)) {
            return nullptr;
        }
        return Geography::FromDegrees(m_builder.Take());
    }

    char const * Fault() const noexcept { return m_fault; }

private:
    bool Fail(char const * fault)
    {
        m_fault = fault;
        return false;
    }
    bool Passes(char const * fault) { return fault == nullptr || Fail(fault); }

    // Those that have a place.
    bool FeatureCollection(QJsonObject const & object)
    {
        QJsonValue const features = object[u"features"];
        if (!features.isArray())
            return Fail("a FeatureCollection without features");
        std::size_t const place = m_builder.Open(ShapeType::GeometryCollection);
        for (QJsonValue const & feature : features.toArray()) {
            if (feature[u"type"].toString() != u"Feature")
                return Fail("a feature of another type");
            if (feature[u"geometry"].isNull())
                continue;
            m_builder.Count(place);
            if (!Geometry(feature[u"geometry"], 1))
                return false;
        }
        return true;
    }

    bool Geometry(QJsonValue const & value, int depth)
    {
        ShapeType const kind = KindOf(value[u"type"].toString());
        if (kind == ShapeType::Unknown)
            return Fail("no type of a geometry");
        if (kind == ShapeType::GeometryCollection) {
            if (depth == detail::kMostNesting)
                return Fail("collections are nested too deep");
            return Many(value[u"geometries"], m_builder.Open(kind),
                        [&](QJsonValue const & inner) { return Geometry(inner, depth + 1); });
        }
        QJsonValue const coordinates = value[u"coordinates"];
        switch (kind) {
        case ShapeType::Point: return Point(coordinates);
        case ShapeType::LineString: m_builder.Count(m_builder.Open(kind)); return LineString(coordinates);
        case ShapeType::Polygon: m_builder.Count(m_builder.Open(kind)); return Polygon(coordinates);
        case ShapeType::MultiPoint: return MultiPoint(coordinates, m_builder.Open(kind));
        case ShapeType::MultiLineString:
            return Many(coordinates, m_builder.Open(kind), [this](QJsonValue const & v) { return LineString(v); });
        default: return Many(coordinates, m_builder.Open(kind), [this](QJsonValue const & v) { return Polygon(v); });
        }
    }

    template <class Item>
    bool Each(QJsonValue const & list, Item item)
    {
        if (!list.isArray())
            return Fail("an array is missing");
        for (QJsonValue const & element : list.toArray())
            if (!item(element))
                return false;
        return true;
    }

    template <class Item>
    bool Many(QJsonValue const & list, std::size_t place, Item item)
    {
        return Each(list, [&](QJsonValue const & element) {
            m_builder.Count(place);
            return item(element);
        });
    }

    static bool IsEmpty(QJsonValue const & value) { return value.isArray() && value.toArray().isEmpty(); }

    // Two numbers at least; what follows them is checked and dropped.
    template <class Add>
    bool Coordinate(QJsonValue const & position, Add add)
    {
        double values[2];
        int n = 0;
        bool const numbers = Each(position, [&](QJsonValue const & value) {
            if (!value.isDouble())
                return Fail("a coordinate of something else than numbers");
            if (n < 2)
                values[n] = value.toDouble();
            ++n;
            return true;
        });
        if (!numbers)
            return false;
        if (n < 2)
            return Fail("a coordinate has fewer than two numbers");
        add(GeometryCoordinate(values[0], values[1], GeometryCoordinate::Bias::None()));
        return true;
    }

    bool Point(QJsonValue const & position)
    {
        if (IsEmpty(position)) {
            m_builder.AddEmptyPoint();
            return true;
        }
        return Coordinate(position, [this](GeometryCoordinate const & c) { m_builder.AddPoint(c); });
    }

    bool MultiPoint(QJsonValue const & positions, std::size_t place)
    {
        return Each(positions, [&](QJsonValue const & position) {
            if (IsEmpty(position)) {
                m_builder.AddEmptyPointOf(place);
                return true;
            }
            return Coordinate(position, [&](GeometryCoordinate const & c) { m_builder.AddPointOf(place, c); });
        });
    }

    bool Coordinates(QJsonValue const & positions, ShapesBuilder::CoordinateList & list)
    {
        return Each(positions, [&](QJsonValue const & position) {
            return Coordinate(position, [&](GeometryCoordinate const & c) { list.push_back(c); });
        });
    }

    bool LineString(QJsonValue const & positions)
    {
        auto & list = m_builder.LineStrings().emplace_back();
        return Coordinates(positions, list) && Passes(ShapesBuilder::FaultOfLineString(list));
    }

    bool Polygon(QJsonValue const & rings)
    {
        auto & polygon = m_builder.Polygons().emplace_back();
        return Each(rings, [&](QJsonValue const & positions) {
            auto & ring = polygon.emplace_back();
            return Coordinates(positions, ring) && Passes(ShapesBuilder::FaultOfRing(ring));
        });
    }

    char const * m_fault = nullptr;
    ShapesBuilder m_builder;
};

ReadOutcome ReadGeoJSON(std::string const & text)
{
    if (detail::IsTooLong(text))
        return {nullptr, "the text is longer than 2 GiB", 0};
    QJsonParseError error;
    auto const document =
        QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())), &error);
    if (error.error != QJsonParseError::NoError)
        return {nullptr, "no JSON", static_cast<std::size_t>(error.offset)};
    if (!document.isObject())
        return {nullptr, "no object", 0};
    GeoJSONParser parser;
    auto spatial = parser.Parse(document.object());
    return {std::move(spatial), parser.Fault(), 0};
}

}  // namespace

std::unique_ptr<Spatial> GeoJSONSerialization::Read(std::string const & text)
{
    return detail::SpatialOrThrow(ReadGeoJSON(text));
}

std::unique_ptr<Spatial> GeoJSONSerialization::TryRead(std::string const & text)
{
    return ReadGeoJSON(text).spatial;
}

}  // namespace velgeo
