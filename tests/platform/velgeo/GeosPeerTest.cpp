// Our readers against those of GEOS: the same structure and the same coordinates, bit for bit, wherever both accept.
// GEOS serves this test alone; where it is not installed the test is skipped.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "tests/platform/velgeo/SpatialTexts.h"
#include "velgeo/GeoJSONSerialization.h"
#include "velgeo/Geography.h"
#include "velgeo/Geometry.h"
#include "velgeo/WktSerialization.h"

#ifdef VELCOREDATA_HAVE_GEOS

#include <geos_c.h>

namespace {

// The description that SpatialTexts.h makes of ours, made of a geometry of GEOS.
class Geos
{
public:
    Geos()
        : m_handle(GEOS_init_r()), m_wkt(GEOSWKTReader_create_r(m_handle)), m_json(GEOSGeoJSONReader_create_r(m_handle))
    {}
    ~Geos()
    {
        GEOSGeoJSONReader_destroy_r(m_handle, m_json);
        GEOSWKTReader_destroy_r(m_handle, m_wkt);
        GEOS_finish_r(m_handle);
    }
    Geos(Geos const &) = delete;
    Geos & operator=(Geos const &) = delete;

    // Empty if the text is refused.
    std::string OfWkt(std::string const & text)
    {
        return Described(GEOSWKTReader_read_r(m_handle, m_wkt, text.c_str()));
    }
    std::string OfJson(std::string const & text)
    {
        return Described(GEOSGeoJSONReader_readGeometry_r(m_handle, m_json, text.c_str()));
    }

private:
    std::string Described(GEOSGeometry * geometry)
    {
        if (geometry == nullptr)
            return {};
        m_text.clear();
        Shape(geometry);
        GEOSGeom_destroy_r(m_handle, geometry);
        return m_text;
    }

    void Shape(GEOSGeometry const * g)
    {
        static constexpr char const * names[] = {"Point",      "LineString",      "LinearRing",   "Polygon",
                                                 "MultiPoint", "MultiLineString", "MultiPolygon", "GeometryCollection"};
        int const type = GEOSGeomTypeId_r(m_handle, g);
        m_text += names[type];
        m_text += '[';
        switch (type) {
        case GEOS_POINT: Point(g); break;
        case GEOS_LINESTRING: Coordinates(g); break;
        case GEOS_POLYGON: Rings(g); break;
        default:
            for (int i = 0, n = GEOSGetNumGeometries_r(m_handle, g); i < n; ++i)
                Shape(GEOSGetGeometryN_r(m_handle, g, i));
        }
        m_text += ']';
    }
    void Point(GEOSGeometry const * g)
    {
        if (GEOSisEmpty_r(m_handle, g) == 0)
            One(GEOSGeom_getCoordSeq_r(m_handle, g), 0);
    }
    void One(GEOSCoordSequence const * list, unsigned i)
    {
        double x = 0, y = 0;
        GEOSCoordSeq_getXY_r(m_handle, list, i, &x, &y);
        m_text += test_support::BitsOf(x) + ' ' + test_support::BitsOf(y);
    }
    void Coordinates(GEOSGeometry const * g)
    {
        GEOSCoordSequence const * const list = GEOSGeom_getCoordSeq_r(m_handle, g);
        unsigned size = 0;
        GEOSCoordSeq_getSize_r(m_handle, list, &size);
        for (unsigned i = 0; i < size; ++i) {
            One(list, i);
            m_text += ';';
        }
    }
    void Rings(GEOSGeometry const * g)
    {
        if (GEOSisEmpty_r(m_handle, g) != 0)
            return;
        Ring(GEOSGetExteriorRing_r(m_handle, g));
        for (int i = 0, n = GEOSGetNumInteriorRings_r(m_handle, g); i < n; ++i)
            Ring(GEOSGetInteriorRingN_r(m_handle, g, i));
    }
    void Ring(GEOSGeometry const * g)
    {
        m_text += "Ring[";
        Coordinates(g);
        m_text += ']';
    }

    GEOSContextHandle_t m_handle;
    GEOSWKTReader * m_wkt;
    GEOSGeoJSONReader * m_json;
    std::string m_text;
};

std::string OursOfWkt(std::string const & text)
{
    auto const spatial = velgeo::WktSerialization::TryRead(text, 3);
    return spatial == nullptr ? std::string() : test_support::Describe(spatial->AsGeometry()->GetShapes());
}

// JSON's -0 is the integer 0.
std::string WithoutSignedZeros(std::string description)
{
    std::size_t at = 0;
    while ((at = description.find("-0x0p", at)) != std::string::npos)
        description.erase(at, 1);
    return description;
}

struct Tally
{
    int both = 0;
    int onlyOurs = 0;
    int onlyGeos = 0;
    int neither = 0;

    void Add(std::string const & ours, std::string const & geos, std::string const & text)
    {
        if (ours.empty())
            ++(geos.empty() ? neither : onlyGeos);
        else if (geos.empty())
            ++onlyOurs;
        else {
            ++both;
            ASSERT_EQ(ours, geos) << text;
        }
    }
};

void PrintTo(Tally const & t, std::ostream * out)
{
    *out << t.both << " both, " << t.onlyOurs << " only ours, " << t.onlyGeos << " only GEOS, " << t.neither
         << " neither";
}

}  // namespace

TEST(GeosPeer, WellKnownTextsAreReadAlike)
{
    Geos geos;
    test_support::RandomShape random(1, true);
    Tally tally;
    for (int i = 0; i < 100'000; ++i) {
        std::string const text = random.Next().wkt;
        ASSERT_NO_FATAL_FAILURE(tally.Add(OursOfWkt(text), geos.OfWkt(text), text));
    }
    EXPECT_GT(tally.both, 80'000) << testing::PrintToString(tally);
    EXPECT_EQ(tally.onlyOurs, 0) << testing::PrintToString(tally);
    EXPECT_GT(tally.neither, 500) << testing::PrintToString(tally);
    RecordProperty("tally", testing::PrintToString(tally));
}

// What is wrong in one place: refused by both, or read alike.
TEST(GeosPeer, BrokenTextsAreReadAlikeWhereBothAccept)
{
    Geos geos;
    test_support::RandomShape random(2, false);
    constexpr std::string_view marks = "(), .-+eEZM019";
    Tally tally;
    for (int i = 0; i < 20'000; ++i) {
        std::string text = random.Next().wkt;
        text[random.Below(text.size())] = marks[random.Below(marks.size())];
        ASSERT_NO_FATAL_FAILURE(tally.Add(OursOfWkt(text), geos.OfWkt(text), text));
    }
    EXPECT_GT(tally.both, 2'000) << testing::PrintToString(tally);
    EXPECT_GT(tally.neither, 2'000) << testing::PrintToString(tally);
    RecordProperty("tally", testing::PrintToString(tally));
}

TEST(GeosPeer, GeoJSONIsReadAlike)
{
    Geos geos;
    // An empty position in a MultiPoint ends GEOS 3.11.
    test_support::RandomShape random(3, true, false);
    Tally tally;
    for (int i = 0; i < 20'000; ++i) {
        std::string const text = random.Next().json;
        // Ours is in radians: GEOS's text of the same numbers goes the same way.
        auto const spatial = velgeo::GeoJSONSerialization::TryRead(text);
        std::string ours, theirs = geos.OfJson(text);
        if (spatial != nullptr)
            ours = WithoutSignedZeros(test_support::Describe(spatial->AsGeography()->GetShapes()));
        ASSERT_NO_FATAL_FAILURE(tally.Add(ours, WithoutSignedZeros(test_support::DegreesToRadians(theirs)), text));
    }
    EXPECT_GT(tally.both, 10'000) << testing::PrintToString(tally);
    RecordProperty("tally", testing::PrintToString(tally));
}

#else

TEST(GeosPeer, WellKnownTextsAreReadAlike)
{
    GTEST_SKIP() << "GEOS (libgeos-dev) was not found: our readers are not compared with it";
}

#endif
