#include "velgeo/GeoJSONSerialization.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/platform/velgeo/SpatialTexts.h"
#include "velgeo/SpatialTextError.h"
#include "velgeo/WktSerialization.h"

using testing::HasSubstr;
using velgeo::GeoJSONSerialization;
using velgeo::WktSerialization;

namespace {

// The fault, or the well-known text of what was read without its reference; "unknown" for an object of unknown kind.
std::string Outcome(std::string const & text)
{
    try {
        auto const spatial = GeoJSONSerialization::Read(text);
        EXPECT_NE(GeoJSONSerialization::TryRead(text), nullptr) << text;
        if (spatial->IsUnknown())
            return "unknown";
        EXPECT_TRUE(spatial->IsGeography()) << text;
        return WktSerialization::Write(*spatial).substr(std::string("SRID=4326;").size());
    } catch (velgeo::SpatialTextError const & e) {
        EXPECT_EQ(GeoJSONSerialization::TryRead(text), nullptr) << text;
        return e.what();
    }
}

}  // namespace

TEST(GeoJSONSerialization, ReadsEveryKind)
{
    struct Case
    {
        char const * text;
        char const * result;
    };
    Case const cases[] = {
        {R"({"type": "Point", "coordinates": [2.35, 48.85]})", "POINT (2.35 48.85)"},
        {R"({"type": "Point", "coordinates": []})", "POINT EMPTY"},
        {R"({"type": "LineString", "coordinates": [[1, 2], [3, 4]]})", "LINESTRING (1 2, 3 4)"},
        {R"({"type": "LineString", "coordinates": []})", "LINESTRING EMPTY"},
        {R"({"type": "Polygon", "coordinates": [[[0, 0], [4, 0], [4, 4], [0, 0]], [[1, 1], [2, 1], [2, 2], [1, 1]]]})",
         "POLYGON ((0 0, 4 0, 4 4, 0 0), (1 1, 2 1, 2 2, 1 1))"},
        {R"({"type": "Polygon", "coordinates": []})", "POLYGON EMPTY"},
        {R"({"type": "MultiPoint", "coordinates": [[1, 2], [], [3, 4], [5, 6]]})",
         "MULTIPOINT ((1 2), EMPTY, (3 4), (5 6))"},
        {R"({"type": "MultiLineString", "coordinates": [[[1, 2], [3, 4]], []]})",
         "MULTILINESTRING ((1 2, 3 4), EMPTY)"},
        {R"({"type": "MultiPolygon", "coordinates": [[[[0, 0], [4, 0], [4, 4], [0, 0]]], []]})",
         "MULTIPOLYGON (((0 0, 4 0, 4 4, 0 0)), EMPTY)"},
        {R"({"type": "GeometryCollection", "geometries": [{"type": "Point", "coordinates": [1, 2]},
             {"type": "GeometryCollection", "geometries": []}]})",
         "GEOMETRYCOLLECTION (POINT (1 2), GEOMETRYCOLLECTION EMPTY)"},
        {R"({"type": "Feature", "properties": {"name": "x"}, "geometry": {"type": "Point", "coordinates": [1, 2]}})",
         "POINT (1 2)"},
        {R"({"type": "Feature", "properties": null, "geometry": null})", "unknown"},
        {R"({"type": "FeatureCollection", "features": [
             {"type": "Feature", "geometry": {"type": "Point", "coordinates": [1, 2]}, "properties": {}},
             {"type": "Feature", "geometry": null, "properties": {}},
             {"type": "Feature", "geometry": {"type": "LineString", "coordinates": [[1, 2], [3, 4]]}}]})",
         "GEOMETRYCOLLECTION (POINT (1 2), LINESTRING (1 2, 3 4))"},
        {R"({"type": "FeatureCollection", "features": []})", "GEOMETRYCOLLECTION EMPTY"},
    };
    for (Case const & c : cases)
        EXPECT_EQ(Outcome(c.text), c.result) << c.text;
}

TEST(GeoJSONSerialization, ForeignMembersAreIgnored)
{
    EXPECT_EQ(Outcome(R"({"bbox": [0, 0, 1, 1], "crs": {"type": "name", "properties": {"name": "EPSG:3857"}},
                          "coordinates": [1, 2], "coordinates2": "x", "geometries": 7, "type": "Point", "z": null})"),
              "POINT (1 2)");
    EXPECT_EQ(Outcome(R"({"type": "Feature", "coordinates": [8, 9], "id": 5, "foreign": {"type": "Polygon"},
                          "geometry": {"type": "Point", "coordinates": [1, 2], "foreign": [[[]]]}})"),
              "POINT (1 2)");
}

TEST(GeoJSONSerialization, AMarkInFrontIsSkippedAndOfTwoMembersTheLastCounts)
{
    EXPECT_EQ(Outcome("\xEF\xBB\xBF \n{\"type\": \"Point\", \"coordinates\": [1, 2]}"), "POINT (1 2)");
    EXPECT_EQ(Outcome(R"({"type": "Point", "type": "LineString", "coordinates": [[1, 2], [3, 4]]})"),
              "LINESTRING (1 2, 3 4)");
    EXPECT_EQ(Outcome(R"({"type": "Point", "coordinates": [8, 9], "coordinates": [1, 2]})"), "POINT (1 2)");
}

TEST(GeoJSONSerialization, NumbersBehindThePlaceAreCheckedAndDropped)
{
    EXPECT_EQ(Outcome(R"({"type": "Point", "coordinates": [1, 2, 300]})"), "POINT (1 2)");
    EXPECT_EQ(Outcome(R"({"type": "Point", "coordinates": [1, 2, 300, 4, 5]})"), "POINT (1 2)");
    EXPECT_EQ(Outcome(R"({"type": "Point", "coordinates": [1, 2, "300"]})"),
              "a coordinate of something else than numbers");
}

TEST(GeoJSONSerialization, RefusesWithAReason)
{
    struct Case
    {
        char const * text;
        char const * result;
    };
    Case const cases[] = {
        {"", "no JSON"},
        {"POINT (1 2)", "no JSON"},
        {R"({"type": "Point", "coordinates": [1, 2]} x)", "no JSON"},
        {R"({"type": "Point", "coordinates": [1, 2]}{})", "no JSON"},
        {R"({"type": "Point", "coordinates": [1, 2])", "no JSON"},
        {R"({"type": "Point", "coordinates": [1, 2],})", "no JSON"},
        {R"({"type": "Point", "coordinates": [NaN, 2]})", "no JSON"},
        {R"({"type": "Point", "coordinates": [1, Infinity]})", "no JSON"},
        {R"({"type": "Point", "coordinates": [1e400, 2]})", "no JSON"},
        {R"({"type": "Point", "coordinates": [-1e400, 2]})", "no JSON"},
        {"[]", "no object"},
        {R"([{"type": "Point", "coordinates": [1, 2]}])", "no object"},
        {"{}", "no type of a geometry"},
        {R"({"type": "point", "coordinates": [1, 2]})", "no type of a geometry"},
        {R"({"type": "Circle", "coordinates": [1, 2]})", "no type of a geometry"},
        {R"({"type": "Unknown", "coordinates": [1, 2]})", "no type of a geometry"},
        {R"({"type": 1, "coordinates": [1, 2]})", "no type of a geometry"},
        {R"({"type": "Point"})", "an array is missing"},
        {R"({"type": "Point", "coordinates": null})", "an array is missing"},
        {R"({"type": "Point", "coordinates": {"0": 1, "1": 2}})", "an array is missing"},
        {R"({"type": "Point", "coordinates": [1]})", "a coordinate has fewer than two numbers"},
        {R"({"type": "Point", "coordinates": ["1", "2"]})", "a coordinate of something else than numbers"},
        {R"({"type": "Point", "coordinates": [null, 2]})", "a coordinate of something else than numbers"},
        {R"({"type": "Point", "coordinates": [[1, 2]]})", "a coordinate of something else than numbers"},
        {R"({"type": "LineString", "coordinates": [[1, 2]]})", "a line string has one coordinate"},
        {R"({"type": "LineString", "coordinates": [[1, 2], []]})", "a coordinate has fewer than two numbers"},
        {R"({"type": "LineString", "coordinates": [1, 2]})", "an array is missing"},
        {R"({"type": "Polygon", "coordinates": [[[1, 2]]]})", "a ring has fewer than four coordinates"},
        {R"({"type": "Polygon", "coordinates": [[]]})", "a ring has fewer than four coordinates"},
        {R"({"type": "Polygon", "coordinates": [[[0, 0], [1, 0], [0, 0]]]})", "a ring has fewer than four coordinates"},
        {R"({"type": "Polygon", "coordinates": [[[0, 0], [1, 0], [1, 1], [0, 1]]]})", "a ring is not closed"},
        {R"({"type": "GeometryCollection", "coordinates": []})", "an array is missing"},
        {R"({"type": "GeometryCollection", "geometries": [null]})", "no type of a geometry"},
        {R"({"type": "GeometryCollection", "geometries": [{"type": "Feature", "geometry": null}]})",
         "no type of a geometry"},
        {R"({"type": "Feature"})", "no type of a geometry"},
        {R"({"type": "Feature", "geometry": 5})", "no type of a geometry"},
        {R"({"type": "Feature", "geometry": {"type": "Feature", "geometry": null}})", "no type of a geometry"},
        {R"({"type": "FeatureCollection"})", "a FeatureCollection without features"},
        {R"({"type": "FeatureCollection", "features": [{"type": "Point", "coordinates": [1, 2]}]})",
         "a feature of another type"},
        {R"({"type": "FeatureCollection", "features": [7]})", "a feature of another type"},
    };
    for (Case const & c : cases)
        EXPECT_EQ(Outcome(c.text), c.result) << c.text;
}

TEST(GeoJSONSerialization, NestingHasABound)
{
    auto const nested = [](int n) {
        std::string text;
        for (int i = 0; i < n; ++i)
            text += R"({"type":"GeometryCollection","geometries":[)";
        text += R"({"type":"Point","coordinates":[1,2]})";
        for (int i = 0; i < n; ++i)
            text += "]}";
        return text;
    };
    int const most = WktSerialization::kMostNesting;
    EXPECT_THAT(Outcome(nested(most)), HasSubstr("POINT (1 2)"));
    EXPECT_EQ(Outcome(nested(most + 1)), "collections are nested too deep");
    EXPECT_EQ(Outcome(nested(10'000)), "no JSON");
    for (std::size_t const deep : {10'000u, 1'000'000u}) {
        EXPECT_EQ(Outcome(std::string(deep, '[')), "no JSON");
        EXPECT_EQ(Outcome(R"({"type":"Polygon","coordinates":)" + std::string(deep, '[')), "no JSON");
        EXPECT_EQ(Outcome(R"({"a":)" + std::string(deep, '[') + std::string(deep, ']') + "}"), "no JSON");
    }
}

TEST(GeoJSONSerialization, ReadsWhatWellKnownTextReads)
{
    test_support::RandomShape random(30, true);
    int read = 0;
    for (int i = 0; i < 10'000; ++i) {
        auto const texts = random.Next();
        auto const fromWkt = WktSerialization::TryRead("SRID=4326;" + texts.wkt, 3);
        auto const fromJson = GeoJSONSerialization::TryRead(texts.json);
        ASSERT_EQ(fromWkt == nullptr, fromJson == nullptr) << texts.wkt << '\n' << texts.json;
        if (fromWkt == nullptr)
            continue;
        ++read;
        ASSERT_TRUE(*fromWkt == *fromJson) << texts.wkt << '\n' << texts.json;
        ASSERT_EQ(fromWkt->GetHash(), fromJson->GetHash());
    }
    EXPECT_GT(read, 5'000);
}
