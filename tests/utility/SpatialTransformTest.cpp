#include "velcoredata/utility/SpatialTransform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory_resource>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/support/SpatialStub.h"
#include "velgeo/Geography.h"
#include "velgeo/Geometry.h"
#include "velgeo/WktSerialization.h"

using testing::ElementsAre;
using testing::Pair;

namespace {

std::shared_ptr<velgeo::Spatial const> Read(char const * text)
{
    return velgeo::WktSerialization::Read(text, 3);
}

// Moves to the east and keeps what it was given.
class East : public SpatialTransform
{
public:
    void Transform(std::pair<double, double> & out, double first, double second) const override
    {
        m_given.emplace_back(first, second);
        out = {first + 100, second};
    }

    std::vector<std::pair<double, double>> const & Given() const { return m_given; }

private:
    mutable std::vector<std::pair<double, double>> m_given;
};

class Failing : public SpatialTransform
{
public:
    void Transform(std::pair<double, double> &, double, double) const override { throw std::domain_error("no map"); }
};

std::string Executed(char const * text)
{
    return velgeo::WktSerialization::Write(*SpatialTransform::Execute(Read(text), East()));
}

}  // namespace

TEST(SpatialTransform, IsAnAbstractClassWithoutFields)
{
    static_assert(std::is_abstract_v<SpatialTransform>);
    static_assert(std::has_virtual_destructor_v<SpatialTransform>);
    static_assert(sizeof(SpatialTransform) == sizeof(void *));
    static_assert(std::is_copy_constructible_v<East> && std::is_copy_assignable_v<East>);
    East east;
    East const other(east);
    east = other;
    SUCCEED();
}

TEST(SpatialTransform, AGeometrysPairsComeAsTheyStand)
{
    East const east;
    auto const result = SpatialTransform::Execute(Read("LINESTRING (1 2, 3 4)"), east);
    EXPECT_THAT(east.Given(), ElementsAre(Pair(1, 2), Pair(3, 4)));
    EXPECT_EQ(velgeo::WktSerialization::Write(*result), "LINESTRING (101 2, 103 4)");
    EXPECT_TRUE(result->IsGeometry());
}

TEST(SpatialTransform, AGeographysPairsComeInDegreesTurnedRound)
{
    East const east;
    auto const geography = Read("SRID=4326;POINT (90 -45)");
    ASSERT_LT(geography->AsGeography()->GetShapes().points[0].First(), 0);  // stored with the latitude first
    auto const result = SpatialTransform::Execute(geography, east);
    ASSERT_EQ(east.Given().size(), 1u);
    EXPECT_DOUBLE_EQ(east.Given()[0].first, 90);
    EXPECT_DOUBLE_EQ(east.Given()[0].second, -45);
    // The result is a geometry, without a system of reference.
    EXPECT_TRUE(result->IsGeometry());
    EXPECT_EQ(result->GetAttributes(), velgeo::Geometry::Attributes());
    EXPECT_DOUBLE_EQ(result->GetShapes().points.at(0).X(), 190);
}

TEST(SpatialTransform, PointsThenLineStringsThenPolygonsInTheOrderOfTheObject)
{
    East const east;
    auto const result = SpatialTransform::Execute(
        Read("GEOMETRYCOLLECTION (POLYGON ((0 0, 1 0, 1 1, 0 0)), POINT (2 2), LINESTRING (3 3, 4 4), POINT (5 5))"),
        east);
    EXPECT_THAT(east.Given(), ElementsAre(Pair(2, 2), Pair(5, 5), Pair(3, 3), Pair(4, 4), Pair(0, 0), Pair(1, 0),
                                          Pair(1, 1), Pair(0, 0)));
    EXPECT_EQ(velgeo::WktSerialization::Write(*result),
              "GEOMETRYCOLLECTION (MULTIPOINT ((102 2), (105 5)), LINESTRING (103 3, 104 4),"
              " POLYGON ((100 0, 101 0, 101 1, 100 0)))");
}

TEST(SpatialTransform, EveryKindKeepsItsStructure)
{
    EXPECT_EQ(Executed("POINT (1 2)"), "POINT (101 2)");
    EXPECT_EQ(Executed("MULTIPOINT ((1 2), (3 4))"), "MULTIPOINT ((101 2), (103 4))");
    EXPECT_EQ(Executed("MULTILINESTRING ((1 2, 3 4), (5 6, 7 8))"), "MULTILINESTRING ((101 2, 103 4), (105 6, 107 8))");
    EXPECT_EQ(Executed("POLYGON ((0 0, 4 0, 4 4, 0 0), (1 1, 2 1, 2 2, 1 1))"),
              "POLYGON ((100 0, 104 0, 104 4, 100 0), (101 1, 102 1, 102 2, 101 1))");
    EXPECT_EQ(Executed("MULTIPOLYGON (((0 0, 4 0, 4 4, 0 0)), ((1 1, 2 1, 2 2, 1 1)))"),
              "MULTIPOLYGON (((100 0, 104 0, 104 4, 100 0)), ((101 1, 102 1, 102 2, 101 1)))");
    EXPECT_EQ(Executed("SRID=3857;POINT (1 2)"), "POINT (101 2)");
    // The kind is that of the content: one of many is a single one, and collections in collections become one.
    EXPECT_EQ(Executed("MULTIPOINT ((1 2), EMPTY)"), "POINT (101 2)");
    EXPECT_EQ(Executed("GEOMETRYCOLLECTION (GEOMETRYCOLLECTION (POINT (1 2)))"), "POINT (101 2)");
    EXPECT_EQ(Executed("LINESTRING EMPTY"), "LINESTRING EMPTY");
    EXPECT_EQ(Executed("POINT EMPTY"), "GEOMETRYCOLLECTION EMPTY");
}

TEST(SpatialTransform, WhatIsNeitherGivesTheEmptyGeometry)
{
    for (auto const & spatial : {test_support::MakeSpatial(1, 10), Read("CIRCULARSTRING (0 0, 1 1, 2 0)"),
                                 std::shared_ptr<velgeo::Spatial const>()})
    {
        auto const result = SpatialTransform::Execute(spatial, Failing());
        ASSERT_NE(result, nullptr);
        EXPECT_EQ(velgeo::WktSerialization::Write(*result), "GEOMETRYCOLLECTION EMPTY");
    }
}

TEST(SpatialTransform, WhatTheTransformRaisesPasses)
{
    EXPECT_THROW(SpatialTransform::Execute(Read("POINT (1 2)"), Failing()), std::domain_error);
    EXPECT_NO_THROW(SpatialTransform::Execute(Read("POINT EMPTY"), Failing()));
}

TEST(SpatialTransform, EveryVectorComesFromTheLayersMemory)
{
    auto const before = std::pmr::set_default_resource(std::pmr::null_memory_resource());
    auto const result = SpatialTransform::Execute(
        Read("GEOMETRYCOLLECTION (POINT (1 2), LINESTRING (3 3, 4 4), POLYGON ((0 0, 1 0, 1 1, 0 0)))"), East());
    std::pmr::set_default_resource(before);
    auto const & shapes = result->GetShapes();
    auto * const resource = velgeo::GetMemoryResource();
    EXPECT_EQ(shapes.points.get_allocator().resource(), resource);
    EXPECT_EQ(shapes.lineStrings.at(0).get_allocator().resource(), resource);
    EXPECT_EQ(shapes.polygons.at(0).at(0).get_allocator().resource(), resource);
}
