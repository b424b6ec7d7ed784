// Spatial values with real geometries and geographies in them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "tests/support/ValuePrinters.h"
#include "velcoredata/data/DataValue.h"
#include "velgeo/GeoJSONSerialization.h"
#include "velgeo/WktSerialization.h"

namespace {

DataValue Value(char const * text)
{
    return DataValue(std::shared_ptr<velgeo::Spatial const>(velgeo::WktSerialization::Read(text, 3)));
}

}  // namespace

TEST(DataValueSpatial, IsEqualByContent)
{
    char const * const texts[] = {"POINT (1 2)",
                                  "POINT (2 1)",
                                  "POINT EMPTY",
                                  "SRID=4326;POINT (1 2)",
                                  "SRID=3857;POINT (1 2)",
                                  "MULTIPOINT ((1 2))",
                                  "GEOMETRYCOLLECTION (POINT (1 2))",
                                  "LINESTRING (1 2, 2 1)",
                                  "LINESTRING EMPTY",
                                  "POLYGON ((0 0, 1 0, 1 1, 0 0))",
                                  "MULTILINESTRING ((1 2, 2 1))"};
    for (char const * const a : texts)
        for (char const * const b : texts) {
            DataValue const left = Value(a), right = Value(b);
            bool const same = a == b;
            EXPECT_EQ(left == right, same) << a << " and " << b;
            EXPECT_EQ(left != right, !same) << a << " and " << b;
            EXPECT_EQ(left.GetSpatial()->GetHash() == right.GetSpatial()->GetHash(), same) << a << " and " << b;
            if (same) {
                EXPECT_EQ(left.Hash(), right.Hash());
                EXPECT_EQ(std::hash<DataValue>()(left), left.Hash());
            }
        }
    EXPECT_EQ(Value("point(1 2)"), Value("POINT (1.0 +2e0)"));
    EXPECT_EQ(Value("POINT (0 0)"), Value("POINT (-0 0)"));
    EXPECT_EQ(Value("POINT (0 0)").Hash(), Value("POINT (-0 0)").Hash());
    EXPECT_NE(Value("POINT (1 2)"), DataValue(DataValueTypes::Null, DataType::Spatial));
}

TEST(DataValueSpatial, IsOrderedByHashAndNullComesFirst)
{
    DataValue const a = Value("POINT (1 2)"), b = Value("LINESTRING (1 2, 3 4)");
    bool const aFirst = a.GetSpatial()->GetHash() < b.GetSpatial()->GetHash();
    EXPECT_EQ(a < b, aFirst);
    EXPECT_EQ(b < a, !aFirst);
    EXPECT_FALSE(a < Value("POINT (1 2)"));
    EXPECT_TRUE(a <= Value("POINT (1 2)"));
    EXPECT_TRUE(DataValue(DataValueTypes::Null, DataType::Spatial) < a);
    EXPECT_TRUE(a < DataValue(DataValueTypes::All, DataType::Spatial));
}

TEST(DataValueSpatial, TheLiteralIsTheKind)
{
    struct Case
    {
        char const * text;
        char16_t const * literal;
    };
    Case const cases[] = {
        {"POINT (1 2)", u"'Point'"},
        {"LINESTRING EMPTY", u"'LineString'"},
        {"POLYGON EMPTY", u"'Polygon'"},
        {"MULTIPOINT (1 2)", u"'MultiPoint'"},
        {"MULTILINESTRING EMPTY", u"'MultiLineString'"},
        {"MULTIPOLYGON EMPTY", u"'MultiPolygon'"},
        {"GEOMETRYCOLLECTION EMPTY", u"'GeometryCollection'"},
        {"SRID=4326;POINT (1 2)", u"'Point'"},
        {"CIRCULARSTRING EMPTY", u"'Unknown'"},
    };
    for (Case const & c : cases)
        EXPECT_EQ(Value(c.text).FormatAsLiteral(), TString(c.literal)) << c.text;
    std::ostringstream out;
    out << Value("POINT (1 2)");
    EXPECT_EQ(out.str(), R"("\'Point\'")");
}

TEST(DataValueSpatial, ACopySharesTheObject)
{
    DataValue const value = Value("POLYGON ((0 0, 1 0, 1 1, 0 0))");
    DataValue copy(value);
    EXPECT_EQ(copy.GetSpatial(), value.GetSpatial());
    EXPECT_NE(copy.GetAny(), value.GetAny());  // a holder of its own
    copy = Value("POINT (1 2)");
    EXPECT_EQ(value.FormatAsLiteral(), TString(u"'Polygon'"));
}

TEST(DataValueSpatial, SortsAndFindsInAColumn)
{
    std::vector<DataValue> column;
    for (int i = 0; i < 200; ++i)
        column.push_back(Value(("POINT (" + std::to_string(i % 50) + " 7)").c_str()));
    std::sort(column.begin(), column.end());
    EXPECT_TRUE(std::is_sorted(column.begin(), column.end()));
    EXPECT_EQ(std::unique(column.begin(), column.end()) - column.begin(), 50);
}
