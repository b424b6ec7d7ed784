#include "velgeo/WktSerialization.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "tests/platform/velgeo/SpatialTexts.h"
#include "tests/support/AllocationCounter.h"
#include "velgeo/Geography.h"
#include "velgeo/Geometry.h"
#include "velgeo/SpatialTextError.h"

using testing::HasSubstr;
using velgeo::SpatialTextError;
using velgeo::WktSerialization;

namespace {

// "fault at position", or the text that the writer makes of what was read; "unknown" for an object of unknown kind.
std::string Outcome(std::string const & text, int mode = 3)
{
    try {
        auto const spatial = WktSerialization::Read(text, mode);
        EXPECT_NE(WktSerialization::TryRead(text, mode), nullptr) << text;
        return spatial->IsUnknown() ? "unknown" : WktSerialization::Write(*spatial);
    } catch (SpatialTextError const & e) {
        EXPECT_EQ(WktSerialization::TryRead(text, mode), nullptr) << text;
        return std::string(e.what()) + " at " + std::to_string(e.GetPosition());
    }
}

std::string Repeated(std::string const & text, int n)
{
    std::string result;
    for (int i = 0; i < n; ++i)
        result += text;
    return result;
}

}  // namespace

TEST(WktSerialization, ReadsAndWritesEveryKind)
{
    char const * const texts[] = {
        "POINT (1 2)",
        "POINT EMPTY",
        "LINESTRING (1 2, 3 4, 5 6)",
        "LINESTRING EMPTY",
        "POLYGON ((0 0, 4 0, 4 4, 0 0), (1 1, 2 1, 2 2, 1 1))",
        "POLYGON EMPTY",
        "MULTIPOINT ((1 2), (3 4))",
        "MULTIPOINT ((1 2))",
        "MULTIPOINT (EMPTY, (1 2), (3 4), EMPTY, EMPTY, (5 6))",
        "MULTIPOINT (EMPTY)",
        "MULTIPOINT EMPTY",
        "MULTILINESTRING ((1 2, 3 4), EMPTY, (5 6, 7 8))",
        "MULTILINESTRING EMPTY",
        "MULTIPOLYGON (((0 0, 4 0, 4 4, 0 0)), EMPTY, ((0 0, 1 0, 1 1, 0 0), (0 0, 1 0, 1 1, 0 0)))",
        "MULTIPOLYGON EMPTY",
        ("GEOMETRYCOLLECTION (POINT (1 2), GEOMETRYCOLLECTION (LINESTRING (1 2, 3 4), GEOMETRYCOLLECTION EMPTY),"
         " MULTIPOINT ((5 6), EMPTY), POINT (7 8), POLYGON EMPTY)"),
        "GEOMETRYCOLLECTION EMPTY",
        "SRID=3857;POINT (261600 6250000)",
        "SRID=4326;POINT (2.35 48.85)",
        "SRID=4326;MULTIPOINT ((2.3522219 48.856614), EMPTY)",
    };
    for (char const * const text : texts)
        EXPECT_EQ(Outcome(text), text);
}

TEST(WktSerialization, TagsBlanksSignsAndDimensionsAreReadLoosely)
{
    struct Case
    {
        char const * text;
        char const * result;
    };
    Case const cases[] = {
        {"point(1 2)", "POINT (1 2)"},
        {" \t\r\n\v\fPoInT\n(\n1\n2\n)\n ", "POINT (1 2)"},
        {"POINT (+1 +2)", "POINT (1 2)"},
        {"POINT (1. .5)", "POINT (1 0.5)"},
        {"POINT (-.5 1E2)", "POINT (-0.5 100)"},
        {"POINT (001 -0)", "POINT (1 -0)"},
        {"MULTIPOINT (1 2, 3 4)", "MULTIPOINT ((1 2), (3 4))"},
        {"MULTIPOINT (1 2, (3 4), EMPTY)", "MULTIPOINT ((1 2), (3 4), EMPTY)"},
        // Heights and measures are checked and dropped.
        {"POINT (1 2 3)", "POINT (1 2)"},
        {"POINT (1 2 3 4)", "POINT (1 2)"},
        {"POINT Z (1 2 3)", "POINT (1 2)"},
        {"POINT M(1 2 3)", "POINT (1 2)"},
        {"POINT ZM (1 2 3 4)", "POINT (1 2)"},
        {"POINTZ(1 2 3)", "POINT (1 2)"},
        {"pointzm (1 2 3 4)", "POINT (1 2)"},
        {"POINT Z EMPTY", "POINT EMPTY"},
        {"GEOMETRYCOLLECTION (POINT Z (1 2 3), POINT (4 5))", "GEOMETRYCOLLECTION (POINT (1 2), POINT (4 5))"},
        {"GEOMETRYCOLLECTION Z (POINT Z (1 2 3))", "GEOMETRYCOLLECTION (POINT (1 2))"},
        {"POLYGON ((0 0 9, 1 0 8, 1 1 7, 0 0 6))", "POLYGON ((0 0, 1 0, 1 1, 0 0))"},
        {"POLYGON ((0 0, 1 0, 1 1, -0 0))", "POLYGON ((0 0, 1 0, 1 1, -0 0))"},
        {"srid = 3857 ; point (1 2)", "SRID=3857;POINT (1 2)"},
        {"SRID=0;POINT (1 2)", "POINT (1 2)"},
    };
    for (Case const & c : cases)
        EXPECT_EQ(Outcome(c.text), c.result) << c.text;
}

TEST(WktSerialization, RefusesWithAReasonAndAPlace)
{
    struct Case
    {
        char const * text;
        char const * result;
    };
    Case const cases[] = {
        {"", "no kind of shape at 0"},
        {"   ", "no kind of shape at 3"},
        {"PINT (1 2)", "no kind of shape at 0"},
        {"POINTQ (1 2)", "no kind of shape at 0"},
        {"Z (1 2 3)", "no kind of shape at 0"},
        {"LINEARRING (0 0, 1 0, 1 1, 0 0)", "no kind of shape at 0"},
        {"{\"type\": \"Point\"}", "no kind of shape at 0"},
        {"POINT", "( or EMPTY is missing at 5"},
        {"POINT Q (1 2)", "( or EMPTY is missing at 6"},
        {"POINT 1 2", "( or EMPTY is missing at 6"},
        {"POINT ()", "a number is missing at 7"},
        {"POINT (EMPTY)", "a number is missing at 7"},
        {"POINT (1)", "a coordinate has one number at 8"},
        {"POINT (1, 2)", "a coordinate has one number at 8"},
        {"POINT (1 2", ", or ) is missing at 10"},
        {"POINT (1 2,", "a point has two coordinates at 11"},
        {"POINT (1 2, 3 4)", "a point has two coordinates at 11"},
        {"POINT (1 2) POINT (1 2)", "text behind the shape at 12"},
        {"POINT (1 2))", "text behind the shape at 11"},
        {"POINT (1 2);", "text behind the shape at 11"},
        {"POINT EMPTY EMPTY", "text behind the shape at 12"},
        {"POINT (1 2-3)", ", or ) is missing at 10"},
        {"POINT (1-2 3)", "a coordinate has one number at 8"},
        {"POINT (+-1 2)", "a number is missing at 7"},
        {"POINT (-+1 2)", "a number is missing at 7"},
        {"POINT (- 2)", "a number is missing at 7"},
        {"POINT (. 2)", "a number is missing at 7"},
        {"POINT (1 2e)", ", or ) is missing at 10"},
        {"POINT (0x1 2)", "a coordinate has one number at 8"},
        {"POINT (1 2 3 4 5)", ", or ) is missing at 15"},
        {"POINT Z (1 2)", "a coordinate has more or fewer numbers than the others at 12"},
        {"POINT ZM (1 2 3)", "a coordinate has more or fewer numbers than the others at 15"},
        {"LINESTRING (1 2, 3 4 5)", "a coordinate has more or fewer numbers than the others at 22"},
        {"POINT (nan 2)", "a number is missing at 7"},
        {"POINT (NaN NaN)", "a number is missing at 7"},
        {"POINT (1 inf)", "a number is missing at 9"},
        {"POINT (1 -Infinity)", "a number is missing at 9"},
        {"POINT (1e309 2)", "a number is beyond what a coordinate holds at 7"},
        {"POINT (1 -1e400)", "a number is beyond what a coordinate holds at 9"},
        {"POINT (1e-400 2)", "a number is beyond what a coordinate holds at 7"},
        {"LINESTRING ()", "a number is missing at 12"},
        {"LINESTRING (1 2)", "a line string has one coordinate at 16"},
        {"MULTILINESTRING ((1 2))", "a line string has one coordinate at 22"},
        {"POLYGON (1 2, 3 4)", "( or EMPTY is missing at 9"},
        {"POLYGON ((1 2))", "a ring has fewer than four coordinates at 14"},
        {"POLYGON ((1 2, 3 4, 1 2))", "a ring has fewer than four coordinates at 24"},
        {"POLYGON ((0 0, 1 0, 1 1, 0 1))", "a ring is not closed at 29"},
        {"POLYGON (EMPTY)", "( or EMPTY is missing at 9"},
        {"MULTIPOLYGON (((0 0, 1 0, 1 1, 0 0), (0 0)))", "a ring has fewer than four coordinates at 42"},
        {"MULTIPOINT ((1 2, 3 4))", "a point without ) behind it at 16"},
        {"MULTIPOINT ((1 2)", ", or ) is missing at 17"},
        {"GEOMETRYCOLLECTION ()", "no kind of shape at 20"},
        {"GEOMETRYCOLLECTION (1 2)", "no kind of shape at 20"},
        {"GEOMETRYCOLLECTION (SRID=4326;POINT (1 2))", "no kind of shape at 20"},
        {"SRID", "SRID without = at 4"},
        {"SRID=;POINT (1 2)", "the system of reference is no number at 5"},
        {"SRID=-1;POINT (1 2)", "the system of reference is no number at 5"},
        {"SRID=99999999999;POINT (1 2)", "the system of reference is no number at 5"},
        {"SRID=1POINT (1 2)", "a system of reference without ; behind it at 6"},
        {"SRID=1;SRID=1;POINT (1 2)", "no kind of shape at 7"},
        {"POINT (\xC2\xA0"
         "1 2)",
         "a number is missing at 7"},
        {"CIRCULARSTRING (0 0, 1", "a coordinate has one number at 22"},
        {"TIN (((0 0, 1 0, 1 1, 0 0)", ", or ) is missing at 26"},
        {"TRIANGLE 3", "( or EMPTY is missing at 9"},
    };
    for (Case const & c : cases)
        EXPECT_EQ(Outcome(c.text), c.result) << c.text;
    EXPECT_EQ(Outcome(std::string("POINT (1 2)\0", 12)), "text behind the shape at 11");
    EXPECT_EQ(Outcome(std::string("POINT (1\0 2)", 12)), "a coordinate has one number at 8");
}

TEST(WktSerialization, KindsThatTheModelDoesNotHoldAreUnknown)
{
    char const * const texts[] = {
        "CIRCULARSTRING (0 0, 1 1, 2 0)",
        "CIRCULARSTRING EMPTY",
        "CIRCULARSTRING Z (0 0 1, 1 1 1, 2 0 1)",
        "COMPOUNDCURVE (CIRCULARSTRING (0 0, 1 1, 1 0), (1 0, 0 1))",
        "CURVEPOLYGON (CIRCULARSTRING (0 0, 4 0, 4 4, 0 4, 0 0), (1 1, 3 3, 3 1, 1 1))",
        "CURVEPOLYGON (COMPOUNDCURVE (CIRCULARSTRING (0 0, 2 0, 2 1), (2 1, 0 0)))",
        "MULTICURVE ((0 0, 5 5), CIRCULARSTRING (4 0, 4 4, 8 4), EMPTY)",
        "MULTISURFACE (CURVEPOLYGON (CIRCULARSTRING (0 0, 4 0, 4 4, 0 4, 0 0)), ((1 1, 2 1, 2 2, 1 1)))",
        "POLYHEDRALSURFACE (((0 0 0, 0 0 1, 0 1 1, 0 0 0)), ((0 0 0, 0 1 0, 1 1 0, 0 0 0)))",
        "tin (((0 0, 0 9, 9 0, 0 0)), ((0 0, 0 9, 9 9, 0 0)))",
        "TRIANGLE ((0 0, 0 9, 9 0, 0 0))",
        "GEOMETRYCOLLECTION (POINT (1 2), CIRCULARSTRING (0 0, 1 1, 2 0))",
        "SRID=4326;CIRCULARSTRING (0 0, 1 1, 2 0)",
    };
    for (char const * const text : texts)
        EXPECT_EQ(Outcome(text), "unknown") << text;
}

TEST(WktSerialization, TheModeSaysWhichFormsAreRead)
{
    EXPECT_EQ(Outcome("POINT (1 2)", 1), "POINT (1 2)");
    EXPECT_EQ(Outcome("SRID=4326;POINT (1 2)", 1), "a system of reference where none may stand at 4");
    EXPECT_EQ(Outcome("SRID=4326;POINT (1 2)", 2), "SRID=4326;POINT (1 2)");
    EXPECT_EQ(Outcome("POINT (1 2)", 2), "a system of reference is missing at 0");
    EXPECT_THROW(WktSerialization::Read("POINT (1 2)", 0), std::invalid_argument);
    EXPECT_THROW(WktSerialization::TryRead("POINT (1 2)", 4), std::invalid_argument);
}

TEST(WktSerialization, NestingHasABound)
{
    auto const nested = [](char const * tag, int n) {
        return Repeated(std::string(tag) + " (", n) + "POINT (1 2)" + std::string(static_cast<std::size_t>(n), ')');
    };
    int const most = WktSerialization::kMostNesting;
    EXPECT_EQ(Outcome(nested("GEOMETRYCOLLECTION", most)), nested("GEOMETRYCOLLECTION", most));
    EXPECT_THAT(Outcome(nested("GEOMETRYCOLLECTION", most + 1)), HasSubstr("collections are nested too deep"));
    EXPECT_EQ(Outcome(nested("MULTISURFACE", most)), "unknown");
    EXPECT_THAT(Outcome(nested("MULTISURFACE", most + 1)), HasSubstr("shapes are nested too deep"));

    for (int const deep : {10'000, 1'000'000}) {
        EXPECT_THAT(Outcome(nested("GEOMETRYCOLLECTION", deep)), HasSubstr("nested too deep"));
        EXPECT_THAT(Outcome(nested("MULTICURVE", deep)), HasSubstr("nested too deep"));
        EXPECT_THAT(Outcome("TIN " + std::string(static_cast<std::size_t>(deep), '(')), HasSubstr("nested too deep"));
        EXPECT_THAT(Outcome("POLYGON " + std::string(static_cast<std::size_t>(deep), '(')),
                    HasSubstr("a number is missing"));
    }
}

TEST(WktSerialization, MemoryIsBoundedByTheText)
{
    std::string text = "MULTIPOINT (";
    for (int i = 0; i < 100'000; ++i)
        text += "0 0,";
    text += "0 0)";
    AllocationCounter const counter;
    auto const spatial = WktSerialization::TryRead(text, 3);
    EXPECT_LT(counter.Count(), 100u);  // lists that double, and none for each point
    EXPECT_EQ(spatial->AsGeometry()->GetShapes().points.size(), 100'001u);
    // All points share one node of the structure.
    EXPECT_EQ(spatial->AsGeometry()->GetShapes().structure.size(), 2u);
}

TEST(WktSerialization, NumbersOfManyDigitsAreReadExactly)
{
    std::string const longest = "0." + std::string(100'000, '1');
    EXPECT_EQ(Outcome("POINT (" + longest + " 2)"), "POINT (0.1111111111111111 2)");
    EXPECT_EQ(Outcome("POINT (" + std::string(400, '9') + " 2)"), "a number is beyond what a coordinate holds at 7");
    EXPECT_EQ(Outcome("POINT (0." + std::string(400, '0') + "1 2)"), "a number is beyond what a coordinate holds at 7");
    EXPECT_EQ(Outcome("POINT (1.7976931348623157e308 5e-324)"), "POINT (1.7976931348623157e+308 5e-324)");
}

TEST(WktSerialization, WritesTheFewestDigits)
{
    struct Case
    {
        char const * number;
        char const * written;
    };
    Case const cases[] = {
        {"0.1", "0.1"},
        {"0.10000000000000001", "0.1"},
        {"0.30000000000000004", "0.30000000000000004"},
        {"100000", "100000"},
        {"1e15", "1000000000000000"},
        {"1e16", "1e+16"},
        {"123456789012345678", "123456789012345680"},
        {"0.000001", "0.000001"},
        {"0.0000001", "1e-07"},
        {"-2.50", "-2.5"},
        {"9007199254740993", "9007199254740992"},
    };
    for (Case const & c : cases)
        EXPECT_EQ(Outcome("POINT (" + std::string(c.number) + " 0)"), "POINT (" + std::string(c.written) + " 0)");
    // A geography's numbers pass through radians, and come back as they were.
    for (char const * const text : {"SRID=4326;POINT (2.35 48.85)", "SRID=4326;POINT (-122.4194155 37.7749295)",
                                    "SRID=4326;POINT (180 -90)", "SRID=4326;POINT (0.1 0.2)"})
        EXPECT_EQ(Outcome(text), text);
}

// *Read(Write(x)) == x, and the hash with it.
TEST(WktSerializationLaws, WhatIsWrittenReadsBack)
{
    test_support::RandomShape random(20, false);
    for (int i = 0; i < 10'000; ++i) {
        std::string const text = random.Next().wkt;
        for (char const * const reference : {"", "SRID=4326;", "SRID=2154;"}) {
            auto const spatial = WktSerialization::Read(reference + text, 3);
            std::string const written = WktSerialization::Write(*spatial);
            auto const again = WktSerialization::Read(written, 3);
            ASSERT_TRUE(*again == *spatial) << text << " became " << written;
            ASSERT_EQ(again->GetHash(), spatial->GetHash());
            ASSERT_EQ(again->GetShapeType(), spatial->GetShapeType());
            ASSERT_EQ(WktSerialization::Write(*again), written);
        }
    }
}

TEST(WktSerializationLaws, EveryDegreeReadsBackToItsRadians)
{
    test_support::RandomShape random(21, false);
    std::mt19937_64 bits(22);
    for (int i = 0; i < 100'000; ++i) {
        // Every second one has all its digits.
        char buffer[40];
        std::snprintf(buffer, sizeof buffer, "%.17g", std::uniform_real_distribution<double>(-180, 180)(bits));
        std::string const text =
            "SRID=4326;POINT (" + (i % 2 == 0 ? std::string(buffer) : random.Number()) + " " + random.Number() + ")";
        auto const spatial = WktSerialization::Read(text, 3);
        std::string const written = WktSerialization::Write(*spatial);
        ASSERT_TRUE(*WktSerialization::Read(written, 3) == *spatial) << text << " became " << written;
    }
}

// Texts that are cut, or changed in one place, are read or refused, and TryRead and Read agree.
TEST(WktSerializationLaws, BrokenTextsAreAnsweredAlikeByBothReaders)
{
    test_support::RandomShape random(23, true);
    constexpr std::string_view marks = "(), .-+eEZM0;=\xFF";
    for (int i = 0; i < 20'000; ++i) {
        std::string text = random.Next().wkt;
        if (random.Below(2) == 0)
            text.resize(random.Below(text.size()));
        else
            text[random.Below(text.size())] = marks[random.Below(marks.size())];
        Outcome(text);
    }
}
