#include "velcoredata/core/ColorObject.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "velcoredata/core/TLocale.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace {

static_assert(sizeof(ColorObject) == 4);

ColorObject Rgba(int red, int green, int blue, int alpha = 255)
{
    return ColorObject(red, green, blue, alpha, ColorObject::RGB);
}

std::string Text(ColorObject const & color)
{
    return std::to_string(color.Red()) + ',' + std::to_string(color.Green()) + ',' + std::to_string(color.Blue()) +
           ',' + std::to_string(color.Alpha());
}

TEST(ColorObject, IsFourBytesRedFirst)
{
    ColorObject const color = Rgba(1, 2, 3, 4);
    unsigned char bytes[4];
    std::memcpy(bytes, &color, 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(bytes[i], i + 1);
    EXPECT_EQ(color.Red(), 1);
    EXPECT_EQ(color.Green(), 2);
    EXPECT_EQ(color.Blue(), 3);
    EXPECT_EQ(color.Alpha(), 4);
}

TEST(ColorObject, IsOpaqueBlackAtFirst)
{
    EXPECT_EQ(Text(ColorObject()), "0,0,0,255");
}

TEST(ColorObject, IsMadeOfNumbers)
{
    using C = ColorObject;
    auto const other = static_cast<C::Type>(7);
    struct
    {
        char const * what;
        C color;
        char const * expected;
    } const rows[] = {
        {"integers", C(1, 2, 3, C::RGB), "1,2,3,255"},
        {"low bytes", C(256 + 1, -1, 0x12345678, C::RGB), "1,255,120,255"},
        {"integers with alpha", C(1, 2, 3, 4, C::RGB), "1,2,3,4"},
        {"low byte of alpha", C(1, 2, 3, 256 + 4, C::RGB), "1,2,3,4"},
        {"HSV of bytes", C(85, 255, 255, C::HSV), "0,255,0,255"},
        {"any other type is HSV", C(85, 255, 255, other), "0,255,0,255"},
        {"an alpha of 255 counts as 1", C(85, 255, 255, 255, C::HSV), "0,255,0,1"},
        {"a lower alpha counts as 0", C(85, 255, 255, 254, C::HSV), "0,255,0,0"},
        {"an alpha of 510 counts as 2", C(85, 255, 255, 510, other), "0,255,0,2"},
        {"reals are cut", C(0.999F, 0.5F, 0.0F, C::RGB), "254,127,0,255"},
        {"reals are not clamped", C(2.0F, -1.0F, 1.0F, C::RGB), "254,1,255,255"},
        {"reals with alpha", C(1.0F, 0.5F, 0.0F, 0.5F, C::RGB), "255,127,0,127"},
        {"HSV of reals", C(0.0F, 1.0F, 1.0F, C::HSV), "255,0,0,255"},
        {"HSV of reals, other type", C(0.0F, 1.0F, 1.0F, other), "255,0,0,255"},
        {"alpha of HSV counts in bytes", C(0.0F, 1.0F, 1.0F, 200.9F, C::HSV), "255,0,0,200"},
        {"a fraction of alpha is none", C(0.0F, 1.0F, 1.0F, 0.9F, C::HSV), "255,0,0,0"},
        {"0xAARRGGBB", C::FromQRGB(0x80FF0102u), "255,1,2,128"},
        {"0xBBGGRR", C::FromRGB(0x99030201u), "1,2,3,255"},
        {"mean", C(Rgba(0, 1, 2, 255), Rgba(1, 1, 255, 0)), "0,1,128,127"},
    };
    for (auto const & row : rows)
        EXPECT_EQ(Text(row.color), row.expected) << row.what;
}

TEST(ColorObject, RealsBeyondEveryRangeAreCutWithoutFault)
{
    float const huge[] = {std::numeric_limits<float>::infinity(),
                          -std::numeric_limits<float>::infinity(),
                          std::numeric_limits<float>::quiet_NaN(),
                          std::numeric_limits<float>::max(),
                          1e10F,
                          -1e10F};
    for (float const x : huge) {
        EXPECT_EQ(Text(ColorObject(x, x, x, x, ColorObject::RGB)), "0,0,0,0") << x;
        ColorObject color = Rgba(9, 8, 7, 6);
        color.SetHSVA(x, 1.0F, 1.0F, 77.9F);
        EXPECT_EQ(Text(color), "9,8,7,77") << x;
        color.SetHSVA(0.0F, 0.0F, x, x);
        EXPECT_EQ(Text(color), "0,0,0,0") << x;
        for (ColorObject const & made :
             {Rgba(9, 8, 7).Saturate(x), Rgba(9, 8, 7).Desaturate(x), Rgba(9, 8, 7).Fog(Rgba(1, 2, 3), x)})
            EXPECT_EQ(made.Alpha(), 255);
    }
}

TEST(ColorObject, IsSetByChannels)
{
    ColorObject color;
    color.SetRGBA(1, 2, 3, 4);
    EXPECT_EQ(Text(color), "1,2,3,4");
    color.SetAlpha(9);
    EXPECT_EQ(Text(color), "1,2,3,9");
    struct
    {
        float alpha;
        int expected;
    } const rows[] = {{0, 0}, {1, 255}, {0.5F, 127}, {-1, 0}, {2, 255}, {0.999F, 254}};
    for (auto const & row : rows) {
        color.SetAlphaF(row.alpha);
        EXPECT_EQ(color.Alpha(), row.expected) << row.alpha;
    }
    color.SetAlphaF(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(Text(color), "1,2,3,0");
}

TEST(ColorObject, EverySixthOfTheHueHasItsRow)
{
    // s = 0.5, v = 1, in the middle of each sixth: P = Q's neighbour 127, T = Q = 191, W = 255.
    struct
    {
        float h;
        char const * expected;
    } const rows[] = {
        {0.5F / 6, "255,191,127,10"}, {1.5F / 6, "191,255,127,10"}, {2.5F / 6, "127,255,191,10"},
        {3.5F / 6, "127,191,255,10"}, {4.5F / 6, "191,127,255,10"}, {5.5F / 6, "255,127,191,10"},
        {6.5F / 6, "255,191,127,10"}, {7.5F / 6, "9,8,7,10"},       {-1.5F / 6, "9,8,7,10"},
        {-0.5F / 6, "255,63,127,10"},  // no row of its own: the first sixth with a negative rest
    };
    for (auto const & row : rows) {
        ColorObject color = Rgba(9, 8, 7, 6);
        color.SetHSVA(row.h, 0.5F, 1.0F, 10.9F);
        EXPECT_EQ(Text(color), row.expected) << row.h;
    }
}

TEST(ColorObject, TellsHueSaturationAndValue)
{
    struct
    {
        ColorObject color;
        float h, s, v;
    } const rows[] = {
        {Rgba(0, 0, 0), 0, 0, 0},
        {Rgba(255, 255, 255), 0, 0, 1},
        {Rgba(51, 51, 51), 0, 0, 0.2F},
        {Rgba(255, 0, 0), 0, 1, 1},
        {Rgba(255, 255, 0), 1.0F / 6, 1, 1},
        {Rgba(0, 255, 0), 2.0F / 6, 1, 1},
        {Rgba(0, 255, 255), 3.0F / 6, 1, 1},
        {Rgba(0, 0, 255), 4.0F / 6, 1, 1},
        {Rgba(255, 0, 255), 5.0F / 6, 1, 1},
        {Rgba(255, 0, 51), 1 - 0.2F / 6, 1, 1},
        {Rgba(102, 51, 51, 0), 0, 0.5F, 0.4F},
    };
    for (auto const & row : rows) {
        float h = -1, s = -1, v = -1;
        row.color.GetHSV(h, s, v);
        EXPECT_NEAR(h, row.h, 2e-6) << Text(row.color);
        EXPECT_NEAR(s, row.s, 2e-6) << Text(row.color);
        EXPECT_NEAR(v, row.v, 2e-6) << Text(row.color);
        EXPECT_EQ(row.color.Hue(), h);
        EXPECT_EQ(row.color.Saturation(), s);
        EXPECT_EQ(row.color.Value(), v);
    }
}

TEST(ColorObject, TellsHowTransparentItIs)
{
    struct
    {
        int alpha;
        bool opaque, completely, partially;
    } const rows[] = {
        {255, true, false, false}, {254, false, false, true}, {1, false, false, true}, {0, false, true, true}};
    for (auto const & row : rows) {
        ColorObject const color = Rgba(1, 2, 3, row.alpha);
        EXPECT_EQ(color.IsOpaque(), row.opaque) << row.alpha;
        EXPECT_EQ(color.IsCompletelyTransparent(), row.completely) << row.alpha;
        EXPECT_EQ(color.IsPartiallyTransparent(), row.partially) << row.alpha;
    }
}

TEST(ColorObject, BecomesNumbersAndText)
{
    ColorObject const color = Rgba(0x12, 0xAB, 0x03, 0x80);
    EXPECT_EQ(static_cast<unsigned>(color), 0x0003AB12u);
    EXPECT_EQ(color.ToQRGB(), 0x8012AB03u);
    TString const text = color;
    EXPECT_EQ(text, u"#12ab0380");
}

TEST(ColorObject, IsEqualByAllFourChannels)
{
    ColorObject const color = Rgba(1, 2, 3, 4);
    EXPECT_TRUE(color == Rgba(1, 2, 3, 4));
    EXPECT_FALSE(color != Rgba(1, 2, 3, 4));
    for (ColorObject const & other : {Rgba(0, 2, 3, 4), Rgba(1, 0, 3, 4), Rgba(1, 2, 0, 4), Rgba(1, 2, 3, 0)}) {
        EXPECT_FALSE(color == other);
        EXPECT_TRUE(color != other);
    }
}

TEST(ColorObject, OperationsGiveNewColors)
{
    ColorObject const black;
    ColorObject const white = Rgba(255, 255, 255);
    ColorObject const half = Rgba(200, 100, 0, 51);  // alpha 0.2
    struct
    {
        char const * what;
        ColorObject color;
        char const * expected;
    } const rows[] = {
        {"alpha narrowed", MakeTransparentColor(Rgba(1, 2, 3), 300), "1,2,3,44"},
        {"negative alpha", MakeTransparentColor(Rgba(1, 2, 3), -1), "1,2,3,255"},
        {"opaque over anything", Rgba(1, 2, 3).AlphaBlend(half), "1,2,3,255"},
        {"blend is opaque", half.AlphaBlend(Rgba(0, 100, 100, 0)), "40,100,80,255"},
        {"transparent over anything", Rgba(1, 2, 3, 0).AlphaBlend(Rgba(9, 8, 7, 6)), "9,8,7,255"},
        {"full blend of an opaque colour", Rgba(1, 2, 3).FullAlphaBlend(half), "1,2,3,255"},
        {"full blend of two transparent ones", Rgba(1, 2, 3, 0).FullAlphaBlend(Rgba(9, 8, 7, 0)), "0,0,0,0"},
        {"full blend over nothing", Rgba(255, 0, 255, 51).FullAlphaBlend(Rgba(9, 8, 7, 0)), "255,0,255,51"},
        {"average keeps this alpha", Rgba(0, 1, 2, 7).Average(Rgba(1, 2, 5, 200)), "0,1,3,7"},
        {"contrast to black", black.ContrastingColor(), "255,255,255,255"},
        {"contrast to white", white.ContrastingColor(), "0,0,0,255"},
        {"contrast to luminance 127", Rgba(127, 127, 127, 0).ContrastingColor(), "255,255,255,255"},
        {"contrast to luminance 129", Rgba(129, 129, 129).ContrastingColor(), "0,0,0,255"},
        {"monochrome red", Rgba(255, 0, 0, 9).Monochrome(), "76,76,76,9"},
        {"monochrome green", Rgba(0, 255, 0).Monochrome(), "150,150,150,255"},
        {"monochrome blue", Rgba(0, 0, 255).Monochrome(), "28,28,28,255"},
        {"darken", Rgba(200, 100, 100, 9).Darken(), "161,72,72,9"},
        {"darken at full saturation", Rgba(255, 0, 0).Darken(), "216,0,0,255"},
        {"darken black", black.Darken(), "0,0,0,255"},
        {"darken to black", Rgba(38, 0, 0).Darken(), "0,0,0,255"},
        {"lighten", Rgba(100, 50, 50, 9).Lighten(), "138,76,76,9"},
        {"lighten to the top", Rgba(255, 0, 0).Lighten(), "255,63,63,255"},
        {"lighten white", white.Lighten(), "229,229,229,255"},
        {"lighten a pale colour", Rgba(255, 230, 230).Lighten(), "255,255,255,255"},
        {"saturate", Rgba(200, 100, 100, 9).Saturate(1.5F), "200,50,50,9"},
        {"saturate to the top", Rgba(200, 100, 100).Saturate(9), "200,0,0,255"},
        {"desaturate", Rgba(200, 100, 100, 9).Desaturate(0.5F), "200,150,150,9"},
        {"desaturate to nothing", Rgba(200, 100, 100).Desaturate(-1), "200,200,200,255"},
        {"desaturate with more than 1", Rgba(200, 100, 100).Desaturate(1.5F), "200,50,50,255"},
        {"fog of white stays", white.Fog(black, 0.5F), "255,255,255,255"},
        {"fog below alpha 0.05 stays", Rgba(200, 100, 0, 12).Fog(black, 0), "200,100,0,12"},
        {"fog from alpha 0.05", Rgba(200, 100, 0, 13).Fog(black, 0), "100,100,100,13"},
        {"fog by alpha", Rgba(200, 0, 0, 51).Fog(Rgba(200, 0, 0, 9), 1), "200,160,160,51"},
        {"fog of 254", Rgba(254, 255, 255).Fog(black, 0), "127,127,127,255"},
    };
    for (auto const & row : rows)
        EXPECT_EQ(Text(row.color), row.expected) << row.what;
}

TEST(ColorObject, HasItsTexts)
{
    struct
    {
        ColorObject color;
        char const * plain;
        char const * css;
        char const * rgba;
        char const * line;
    } const rows[] = {
        {Rgba(255, 255, 255), "#ffffff", "#ffffff", "rgb(255,255,255)", "rgb (255,255,255)"},
        {Rgba(255, 0, 0, 128), "#ff000080", "rgba(255,0,0,0.501961)", "rgba(255,0,0,128)", "rgba (255,0,0,128)"},
        {Rgba(1, 2, 10, 0), "#01020a00", "rgba(1,2,10,0)", "rgba(1,2,10,0)", "rgba (1,2,10,0)"},
        {Rgba(0, 0, 0, 1), "#00000001", "rgba(0,0,0,0.00392157)", "rgba(0,0,0,1)", "rgba (0,0,0,1)"},
        {Rgba(0, 0, 0, 51), "#00000033", "rgba(0,0,0,0.2)", "rgba(0,0,0,51)", "rgba (0,0,0,51)"},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(row.color.String().toStdString(), row.plain);
        EXPECT_EQ(row.color.CSSString().toStdString(), row.css);
        EXPECT_EQ(row.color.RGBAString().toStdString(), row.rgba);
        EXPECT_EQ(row.color.LineColorRGBAString().toStdString(), row.line);
    }
}

TEST(ColorObject, TooltipsNameTheColor)
{
    EXPECT_EQ(Rgba(255, 255, 255).GetTooltip(), u"White: #FFFFFF");
    EXPECT_EQ(Rgba(0, 0, 0, 0).GetTooltip(), u"Black: #00000000");
    EXPECT_EQ(Rgba(255, 192, 203).GetTooltip(), u"Pink: #FFC0CB");
    EXPECT_EQ(Rgba(0xab, 0x12, 0xcd, 0xef).GetTooltip(), u"Purple: #AB12CDEF");
}

TEST(ColorObject, NamesAndLineColorsAreInTheLanguageOfTheSession)
{
    ScopedSession const session;
    std::shared_ptr<TLocale> const german = std::make_shared<TLocale>(u"de_DE");
    CoreThreadContext::SetGenericObject(u"locale", std::make_shared<boost::any>(german));
    EXPECT_EQ(Rgba(255, 255, 255).GetTooltip(), u"Weiß: #FFFFFF");
    // The pseudo-locale marks every text of the table, so it shows where a text comes from.
    std::shared_ptr<TLocale> const pseudo = std::make_shared<TLocale>(u"ga_IE");
    CoreThreadContext::SetGenericObject(u"locale", std::make_shared<boost::any>(pseudo));
    EXPECT_EQ(Rgba(1, 2, 3).LineColorRGBAString(), u"[ŕĝƀ (1,2,3)]");
    EXPECT_EQ(Rgba(1, 2, 3, 4).LineColorRGBAString(), u"[ŕĝƀå (1,2,3,4)]");
    EXPECT_EQ(Rgba(1, 2, 3, 4).RGBAString(), u"rgba(1,2,3,4)");
}

TEST(ColorObject, ExampleOfTheHeader)
{
    ColorObject const sky(135, 206, 235, ColorObject::RGB);
    EXPECT_EQ(sky.String(), u"#87ceeb");
    EXPECT_EQ(Text(sky.Darken()), "104,170,196,255");
    EXPECT_EQ(sky.GetTooltip(), u"Light Blue: #87CEEB");
}

}  // namespace
