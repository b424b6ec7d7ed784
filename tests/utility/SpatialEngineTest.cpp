#include "velcoredata/utility/SpatialEngine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/RandomText.h"
#include "tests/support/ValuePrinters.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/StringWithCollation.h"
#include "velgeo/BasicServices.h"
#include "velgeo/Spatial.h"
#include "velgeo/WktSerialization.h"

namespace {

DataValue Cast(char16_t const * text)
{
    DataValue value;
    SpatialEngine::CastStringToSpatial(TString(text), value);
    return value;
}

std::string Written(DataValue const & value)
{
    return value.IsNull() ? "null" : velgeo::WktSerialization::Write(*value.GetSpatial());
}

}  // namespace

TEST(SpatialEngine, StartsAndStopsTheServices)
{
    SpatialEngine::Initialize(TString(u"/opt/proj/\u00E9"));
    EXPECT_TRUE(velgeo::BasicServices::IsRegistered());
    EXPECT_EQ(velgeo::BasicServices::GetProjResourceDirectory(), "/opt/proj/\xC3\xA9");
    SpatialEngine::Shutdown();
    EXPECT_FALSE(velgeo::BasicServices::IsRegistered());
}

TEST(SpatialEngine, ReadsWellKnownTextThenGeoJSON)
{
    DataValue const wkt = Cast(u"POINT (1 2)");
    EXPECT_EQ(wkt.GetDataType(), DataType::Spatial);
    EXPECT_EQ(wkt.GetSpecial(), DataValueTypes::Normal);
    EXPECT_TRUE(wkt.GetSpatial()->IsGeometry());
    EXPECT_EQ(Written(wkt), "POINT (1 2)");

    DataValue const json = Cast(u"{\"type\": \"Point\", \"coordinates\": [2.35, 48.85]}");
    EXPECT_EQ(json.GetSpecial(), DataValueTypes::Normal);
    EXPECT_TRUE(json.GetSpatial()->IsGeography());
    EXPECT_EQ(Written(json), "SRID=4326;POINT (2.35 48.85)");

    // Both forms of well-known text.
    EXPECT_EQ(Written(Cast(u"SRID=4326;POINT (2.35 48.85)")), "SRID=4326;POINT (2.35 48.85)");
    EXPECT_EQ(Written(Cast(u"SRID=3857;POINT (1 2)")), "SRID=3857;POINT (1 2)");
}

TEST(SpatialEngine, WhatNeitherFormReadsIsANullSpatial)
{
    char16_t const * const texts[] = {
        u"",
        u" ",
        u"Paris",
        u"POINT (1 2",
        u"POINT (1 2) and more",
        u"POLYGON ((0 0))",
        u"POINT (NaN 1)",
        u"{}",
        u"{\"type\": \"Point\"}",
        u"\u4E2D\xD800",
        // Read, but of a kind that spatial objects do not have; and no GeoJSON either.
        u"CIRCULARSTRING (0 0, 1 1, 2 0)",
        u"{\"type\": \"Feature\", \"geometry\": null}",
    };
    for (auto const * const text : texts) {
        DataValue const value = Cast(text);
        EXPECT_EQ(value, DataValue(DataValueTypes::Null, DataType::Spatial)) << TString(text).toStdString();
        EXPECT_EQ(value.GetSpatial(), nullptr);
    }
    DataValue value;
    SpatialEngine::CastStringToSpatial(TString(u"POINT (1 2)\0", 12), value);
    EXPECT_TRUE(value.IsNull());
}

TEST(SpatialEngine, TheOldContentIsReleasedInBothOutcomes)
{
    for (char16_t const * const text : {u"POINT (1 2)", u"no shape"}) {
        RefCntPtr<StringWithCollation, RefCntObject> const old(
            new StringWithCollation(TString(u"old"), GetBinaryCollation()));
        DataValue value(old);
        int const held = old->AddReference();
        EXPECT_EQ(old->RemoveReference(), 2);
        SpatialEngine::CastStringToSpatial(TString(text), value);
        EXPECT_EQ(old->AddReference(), held - 1);
        EXPECT_EQ(old->RemoveReference(), 1);
        EXPECT_EQ(value.GetDataType(), DataType::Spatial);
    }
}

TEST(SpatialEngine, RaisesForNoText)
{
    test_support::RandomText random(40);
    std::u16string const pieces[] = {u"POINT(1 2)",
                                     u"POINT",
                                     u"POLYGON",
                                     u"GEOMETRYCOLLECTION",
                                     u"EMPTY",
                                     u"(",
                                     u")",
                                     u",",
                                     u" ",
                                     u"1",
                                     u"-2.5e3",
                                     u"SRID=4326;",
                                     u"Z",
                                     u"{",
                                     u"}",
                                     u"[",
                                     u"]",
                                     u":",
                                     u"\"type\"",
                                     u"\"Point\"",
                                     u"\"coordinates\"",
                                     u"\xD83D",
                                     u"\u00E9"};
    int read = 0;
    for (int i = 0; i < 20'000; ++i) {
        DataValue value;
        TString const text = TString::fromStdU16String(i % 4 == 0 ? random.Any(20) : random.Of(pieces, 12));
        ASSERT_NO_THROW(SpatialEngine::CastStringToSpatial(text, value)) << text.toStdString();
        ASSERT_EQ(value.GetDataType(), DataType::Spatial);
        ASSERT_TRUE(value.IsNull() || value.GetSpatial() != nullptr);
        read += value.IsNull() ? 0 : 1;
    }
    EXPECT_GT(read, 0);
}

TEST(SpatialEngine, NestedTenThousandDeepIsNullAndQuick)
{
    std::u16string wkt, json;
    for (int i = 0; i < 10'000; ++i) {
        wkt += u"GEOMETRYCOLLECTION(";
        json += u"{\"type\":\"GeometryCollection\",\"geometries\":[";
    }
    EXPECT_TRUE(Cast(wkt.c_str()).IsNull());
    EXPECT_TRUE(Cast(json.c_str()).IsNull());
}
