// Shared by the tests of spatial texts: random texts, and a description of what was read that shows every bit.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "velgeo/Angle.h"
#include "velgeo/Shapes.h"

namespace test_support {

inline std::string BitsOf(double value)
{
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%a", value);
    return buffer;
}

inline std::string Describe(velgeo::GeometryCoordinate const & c)
{
    return BitsOf(c.X()) + ' ' + BitsOf(c.Y());
}
inline std::string Describe(velgeo::GeographyCoordinate const & c)
{
    return BitsOf(c.Longitude().Value()) + ' ' + BitsOf(c.Latitude().Value());
}

// "MultiPoint[Point[] Point[0x1p+0 0x1p+1]]"; each point of a MultiPoint, each ring "Ring[...]", one after another.
template <class Coordinate>
class ShapeDescription
{
public:
    explicit ShapeDescription(velgeo::Shapes<Coordinate> const & shapes) : m_shapes(shapes) {}

    std::string Text()
    {
        Shape();
        return m_text;
    }
    // Whether the lists were used up.
    bool IsComplete() const
    {
        return m_node == m_shapes.structure.size() && m_point == m_shapes.points.size() &&
               m_line == m_shapes.lineStrings.size() && m_polygon == m_shapes.polygons.size();
    }

private:
    using ShapeType = velgeo::ShapeType;

    void Shape()
    {
        auto const node = m_shapes.structure.at(m_node++);
        Begin(to_string(node.kind).c_str());
        switch (node.kind) {
        case ShapeType::Point:
            if (node.count != 0)
                m_text += Describe(m_shapes.points.at(m_point++));
            break;
        case ShapeType::LineString: Coordinates(m_shapes.lineStrings.at(m_line++)); break;
        case ShapeType::Polygon: Rings(m_shapes.polygons.at(m_polygon++)); break;
        case ShapeType::MultiPoint:
            for (std::uint32_t run = 0; run < node.count; ++run) {
                std::uint32_t const count = m_shapes.structure.at(m_node++).count;
                for (std::uint32_t i = 0; i < (count == 0 ? 1 : count); ++i) {
                    Begin("Point");
                    if (count != 0)
                        m_text += Describe(m_shapes.points.at(m_point++));
                    m_text += ']';
                }
            }
            break;
        case ShapeType::MultiLineString:
            for (std::uint32_t i = 0; i < node.count; ++i) {
                Begin("LineString");
                Coordinates(m_shapes.lineStrings.at(m_line++));
                m_text += ']';
            }
            break;
        case ShapeType::MultiPolygon:
            for (std::uint32_t i = 0; i < node.count; ++i) {
                Begin("Polygon");
                Rings(m_shapes.polygons.at(m_polygon++));
                m_text += ']';
            }
            break;
        default:
            for (std::uint32_t i = 0; i < node.count; ++i)
                Shape();
        }
        m_text += ']';
    }

    void Begin(char const * kind)
    {
        m_text += kind;
        m_text += '[';
    }
    void Coordinates(typename velgeo::Shapes<Coordinate>::CoordinateList const & list)
    {
        for (auto const & c : list)
            m_text += Describe(c) + ';';
    }
    void Rings(typename velgeo::Shapes<Coordinate>::RingList const & rings)
    {
        for (auto const & ring : rings) {
            Begin("Ring");
            Coordinates(ring);
            m_text += ']';
        }
    }

    velgeo::Shapes<Coordinate> const & m_shapes;
    std::string m_text;
    std::size_t m_node = 0;
    std::size_t m_point = 0;
    std::size_t m_line = 0;
    std::size_t m_polygon = 0;
};

template <class Coordinate>
std::string Describe(velgeo::Shapes<Coordinate> const & shapes)
{
    ShapeDescription<Coordinate> description(shapes);
    std::string text = description.Text();
    return description.IsComplete() ? text : text + " and more";
}

// The description with each number, of degrees, as radians.
inline std::string DegreesToRadians(std::string const & description)
{
    std::string out;
    char const * at = description.c_str();
    while (*at != '\0') {
        bool const number = at[0] == '0' || (at[0] == '-' && at[1] == '0');
        if (!number) {
            out += *at++;
            continue;
        }
        char * end = nullptr;
        double const degrees = std::strtod(at, &end);
        out += BitsOf(velgeo::Radians(velgeo::Degrees(degrees)).Value());
        at = end;
    }
    return out;
}

// A random shape in both text forms. Now and then a fault: a ring left open, a line of one coordinate.
class RandomShape
{
public:
    RandomShape(unsigned seed, bool withFaults, bool emptyPoints = true)
        : m_random(seed), m_withFaults(withFaults), m_emptyPoints(emptyPoints)
    {}

    struct Texts
    {
        std::string wkt;
        std::string json;
    };

    Texts Next() { return Shape(0); }

    std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(m_random); }

    // A coordinate's number as people and programs write it.
    std::string Number()
    {
        char buffer[64];
        double const wide = std::uniform_real_distribution<double>(-180, 180)(m_random);
        switch (Below(8)) {
        case 0: std::snprintf(buffer, sizeof buffer, "%d", static_cast<int>(wide)); break;
        case 1: std::snprintf(buffer, sizeof buffer, "%.1f", wide); break;
        case 2: std::snprintf(buffer, sizeof buffer, "%.6f", wide); break;
        case 3: std::snprintf(buffer, sizeof buffer, "%.17g", wide); break;
        case 4: std::snprintf(buffer, sizeof buffer, "%.15e", wide); break;
        case 5: std::snprintf(buffer, sizeof buffer, "%.25f", wide); break;
        case 6: std::snprintf(buffer, sizeof buffer, "%.3fe%d", wide, static_cast<int>(Below(60)) - 30); break;
        default: std::snprintf(buffer, sizeof buffer, "%.12g", wide); break;
        }
        return buffer;
    }

private:
    Texts Shape(int depth)
    {
        switch (Below(depth < 3 ? 8 : 6)) {
        case 0: return Tagged("POINT", "Point", Below(12) == 0 ? Empty() : One());
        case 1: return Tagged("LINESTRING", "LineString", Line());
        case 2: return Tagged("POLYGON", "Polygon", Rings());
        case 3: return Tagged("MULTIPOINT", "MultiPoint", Points());
        case 4: return Tagged("MULTILINESTRING", "MultiLineString", Many([this] { return Line(); }));
        case 5: return Tagged("MULTIPOLYGON", "MultiPolygon", Many([this] { return Rings(); }));
        default: return Collection(depth);
        }
    }

    Texts Tagged(char const * tag, char const * type, Texts const & body)
    {
        return {Case(tag) + Gap(body.wkt) + body.wkt,
                std::string(R"({"type":")") + type + R"(","coordinates":)" + body.json + "}"};
    }
    Texts Collection(int depth)
    {
        Texts const members = Below(8) == 0 ? Empty() : Many([&] { return Shape(depth + 1); });
        return {Case("GEOMETRYCOLLECTION") + Gap(members.wkt) + members.wkt,
                R"({"type":"GeometryCollection","geometries":)" + members.json + "}"};
    }

    static Texts Empty() { return {"EMPTY", "[]"}; }
    Texts Pair()
    {
        std::string const x = Number();
        std::string const y = Number();
        return {x + ' ' + y, '[' + x + ',' + y + ']'};
    }
    Texts One()
    {
        Texts const pair = Pair();
        return {'(' + Space() + pair.wkt + Space() + ')', pair.json};
    }
    Texts List(std::size_t n, bool closed)
    {
        Texts const first = Pair();
        Texts list = first;
        for (std::size_t i = 1; i < n; ++i) {
            Texts const next = closed && i + 1 == n ? first : Pair();
            list.wkt += ',' + Space() + next.wkt;
            list.json += ',' + next.json;
        }
        return {'(' + list.wkt + ')', '[' + list.json + ']'};
    }
    bool Fault() { return m_withFaults && Below(60) == 0; }
    Texts Line() { return Below(10) == 0 ? Empty() : List(Fault() ? 1 : 2 + Below(5), false); }
    Texts Ring() { return List(4 + Below(4) - (Fault() ? 2 : 0), !Fault()); }
    Texts Rings()
    {
        return Below(10) == 0 ? Empty() : Many([this] { return Ring(); });
    }
    // Bare, or each point in parentheses and then empty now and then.
    Texts Points()
    {
        if (Below(10) == 0)
            return Empty();
        if (Below(2) == 0)
            return Many([this] { return Pair(); });
        return Many([this] { return m_emptyPoints && Below(10) == 0 ? Empty() : One(); });
    }

    template <class Item>
    Texts Many(Item item)
    {
        Texts list = item();
        for (std::size_t n = Below(4); n > 0; --n) {
            Texts const next = item();
            list.wkt += ',' + Space() + next.wkt;
            list.json += ',' + next.json;
        }
        return {'(' + list.wkt + ')', '[' + list.json + ']'};
    }

    std::string Space() { return Below(3) == 0 ? std::string() : Below(8) == 0 ? "\t\n" : " "; }
    std::string Gap(std::string const & body) { return body == "EMPTY" ? " " : Space(); }
    std::string Case(std::string word)
    {
        if (Below(4) == 0)
            for (char & c : word)
                c = Below(2) == 0 ? static_cast<char>(c - 'A' + 'a') : c;
        return word;
    }

    std::mt19937 m_random;
    bool m_withFaults;
    bool m_emptyPoints;
};

}  // namespace test_support
