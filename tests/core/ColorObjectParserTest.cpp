#include "velcoredata/core/ColorObjectParser.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/QuietLogger.h"
#include "tests/support/RandomText.h"
#include "tests/support/RecordingLogger.h"

namespace {

std::string Parsed(char16_t const * text)
{
    ColorObjectParser const parser(text);
    return std::to_string(parser.GetR()) + ',' + std::to_string(parser.GetG()) + ',' + std::to_string(parser.GetB()) +
           ',' + std::to_string(parser.GetA()) + (parser.Failed() ? " failed" : "");
}

TEST(ColorObjectParser, ReadsTheFormsOfColorObject)
{
    struct
    {
        char16_t const * text;
        char const * expected;
    } const rows[] = {
        {u"#FF0080", "255,0,128,255"},     {u"#ff0080", "255,0,128,255"},
        {u"#aBcDeF", "171,205,239,255"},   {u"#01234567", "1,35,69,103"},
        {u"#89abcdef", "137,171,205,239"}, {u" # F F 0 0 8 0 ", "255,0,128,255"},
        {u"rgb(1,2,3)", "1,2,3,255"},      {u"rgb(255,255,255)", "255,255,255,255"},
        {u"rgb(001,02,0)", "1,2,0,255"},   {u" r g b ( 1 2 , 3 4 , 5 6 ) ", "12,34,56,255"},
        {u"rgba(1,2,3,4)", "1,2,3,4"},     {u"rgba(255,255,255,255)", "255,255,255,255"},
        {u"rgba (0, 0, 0, 0)", "0,0,0,0"},
    };
    for (auto const & row : rows)
        EXPECT_EQ(Parsed(row.text), row.expected) << TString(row.text).toStdString();
}

TEST(ColorObjectParser, WhatIsNoColorIsOpaqueBlackAndFailed)
{
    char16_t const * const texts[] = {
        nullptr,
        u"",
        u" ",
        u"#",
        u"#fff",
        u"#ffff",
        u"FF0080",
        u"xFF0080",
        u"#FF008",
        u"#FF00800",
        u"#FF0080FFF",
        u"xFF0080FF",
        u"#GF0080",
        u"#F/0080",
        u"#F:0080",
        u"#F@0080",
        u"#FG0080",
        u"#F`0080",
        u"#Fg0080",
        u"#FF00\t80",
        u"#FF00\u00A080",
        u"#FF00８０",  // full-width digits
        u"#ff008080\t",
        u"rgb",
        u"rgb(1,2)",
        u"rgb(1,2,)",
        u"rgb(1,2,3",
        u"rgb(1,2,33",
        u"rgb(1,2,,3)",
        u"rgb(,1,2,3)",
        u"rgb(1,2,3))",
        u"rgb(1,2,3)x",
        u"rgb(1,2,3,)",
        u"rgb(1,2,3,4)",
        u"rgb(256,0,0)",
        u"rgb(0,256,0)",
        u"rgb(0,0,256)",
        u"rgb(999,0,0)",
        u"rgb(0001,2,3)",
        u"rgb(1000,2,3)",
        u"rgb(-1,2,3)",
        u"rgb(+1,2,3)",
        u"rgb(1.0,2,3)",
        u"rgb(1)2)33)",
        u"rgb(1,2,33,",
        u"rgb1,2,33)",
        u"rgb[1,2,3)",
        u"Rgb(1,2,3)",
        u"RGB(1,2,3)",
        u"rgB(1,2,3)",
        u"rgba(1,2,3)",
        u"rgba(1,2,3,0.5)",
        u"rgba(1,2,3,256)",
        u"rgba(1,2,3,4",
        u"rgba(1,2,3,4,",
        u"rgba(1,2,3,4)x",
        u"rgba1,2,3,4)",
        u"rgbA(1,2,3,4)",
        u"rgbb(1,2,3,4)",
        u"rgb a1,2,3,4)",
        u"hsv(1,2,3)",
        u"rgb(٣,2,3)  ",
        u"xrgb(1,2,3)",
        u"rgb(#,2,33)",
        u"rgbaaaaaaa",
        u"rgb((((((((",
        u"rgb)))))))",
    };
    for (char16_t const * const text : texts)
        EXPECT_EQ(Parsed(text), "0,0,0,255 failed") << TString(text).toStdString();
}

TEST(ColorObjectParser, IsAValue)
{
    ColorObjectParser parser(u"#010203");
    ColorObjectParser const other(u"no colour");
    parser = other;
    EXPECT_TRUE(parser.Failed());
    EXPECT_EQ(parser.GetR(), 0);
    parser = ColorObjectParser(u"#04050607");
    ColorObjectParser const copy(parser);
    EXPECT_FALSE(copy.Failed());
    EXPECT_EQ(copy.GetA(), 7);
    static_assert(sizeof(ColorObjectParser) == 5);
}

TEST(ColorObjectParser, TextsMayBeOfAnyLength)
{
    TString const blanks(u' ', 1'000'000);
    EXPECT_EQ(Parsed(blanks), "0,0,0,255 failed");
    EXPECT_EQ(Parsed(blanks + u"#010203" + blanks), "1,2,3,255");
    EXPECT_EQ(Parsed(u"rgb(" + TString(u'1', 1'000'000) + u",2,3)"), "0,0,0,255 failed");
    EXPECT_EQ(Parsed(u"#" + TString(u'f', 1'000'000)), "0,0,0,255 failed");
    EXPECT_EQ(Parsed(u"rgb(1,2,3)" + TString(u')', 1'000'000)), "0,0,0,255 failed");
}

TEST(ColorObjectParser, ParseGivesTheColor)
{
    test_support::RecordingLogger const logger;
    EXPECT_EQ(ColorObjectParser::Parse(u"rgb(1,2,3)"), ColorObject(1, 2, 3, ColorObject::RGB));
    EXPECT_EQ(ColorObjectParser::Parse(u"#01020304"), ColorObject(1, 2, 3, 4, ColorObject::RGB));
    EXPECT_TRUE(logger.GetRecords().empty());
}

TEST(ColorObjectParser, ParseLogsAFailureAndGivesOpaqueBlack)
{
    test_support::RecordingLogger const logger;
    EXPECT_EQ(ColorObjectParser::Parse(u"rgba(1,2,3,0.5)"), ColorObject());
    EXPECT_EQ(ColorObjectParser::Parse(u"rgb(256,0,0)"), ColorObject());
    auto const records = logger.GetRecords();
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].text, "Warning: could not parse color rgba(1,2,3,0.5)\n");
    EXPECT_EQ(records[1].text, "Warning: could not parse color rgb(256,0,0)\n");
}

// Laws.

ColorObject Random(std::mt19937 & random)
{
    ColorObject color = ColorObject::FromQRGB(static_cast<unsigned>(random()));
    if (random() % 4 == 0)
        color.SetAlpha(random() % 2 == 0 ? 255 : 0);
    return color;
}

TEST(ColorObjectParserLaws, TextsOfAColorGiveItBack)
{
    test_support::QuietLogger const quiet;
    std::mt19937 random(47);
    for (int i = 0; i < 10'000; ++i) {
        ColorObject const color = Random(random);
        ASSERT_EQ(ColorObjectParser::Parse(color.String()), color) << color.String().toStdString();
        ASSERT_EQ(ColorObjectParser::Parse(color.RGBAString()), color) << color.RGBAString().toStdString();
        ASSERT_FALSE(ColorObjectParser(color.String().toUpper()).Failed());
        ColorObjectParser const css(color.CSSString());
        // A fraction of alpha never reads; an alpha of 0 is written as no fraction.
        bool const reads = color.IsOpaque() || color.IsCompletelyTransparent();
        ASSERT_EQ(css.Failed(), !reads) << color.CSSString().toStdString();
        if (reads) {
            ASSERT_EQ(ColorObjectParser::Parse(color.CSSString()), color);
        }
    }
}

TEST(ColorObjectLaws, ABlendLiesBetweenItsColors)
{
    std::mt19937 random(48);
    auto const between = [](int x, int a, int b) { return x >= std::min(a, b) - 1 && x <= std::max(a, b) + 1; };
    for (int i = 0; i < 10'000; ++i) {
        ColorObject const a = Random(random);
        ColorObject const b = Random(random);
        ColorObject const blend = a.AlphaBlend(b);
        ASSERT_TRUE(between(blend.Red(), a.Red(), b.Red()));
        ASSERT_TRUE(between(blend.Green(), a.Green(), b.Green()));
        ASSERT_TRUE(between(blend.Blue(), a.Blue(), b.Blue()));
        ASSERT_TRUE(blend.IsOpaque());
        if (a.IsOpaque()) {
            ASSERT_EQ(blend, a);
            ASSERT_EQ(a.FullAlphaBlend(b), a);
        }
        ColorObject const ab = a.Average(b);
        ColorObject const ba = b.Average(a);
        ASSERT_EQ(MakeTransparentColor(ab, 0), MakeTransparentColor(ba, 0));
        ASSERT_EQ(ab.Alpha(), a.Alpha());
        ASSERT_GE(a.Hue(), 0.0F);
        ASSERT_LT(a.Hue(), 1.0F);
    }
}

}  // namespace
