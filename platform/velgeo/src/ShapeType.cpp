#include "velgeo/ShapeType.h"

std::string velgeo::to_string(ShapeType type)
{
    switch (type) {
    case ShapeType::Unknown: break;
    case ShapeType::Point: return "Point";
    case ShapeType::LineString: return "LineString";
    case ShapeType::Polygon: return "Polygon";
    case ShapeType::MultiPoint: return "MultiPoint";
    case ShapeType::MultiLineString: return "MultiLineString";
    case ShapeType::MultiPolygon: return "MultiPolygon";
    case ShapeType::GeometryCollection: return "GeometryCollection";
    }
    return "Unknown";
}
