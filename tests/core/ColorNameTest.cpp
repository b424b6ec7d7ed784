#include "main/core/ColorName.h"

#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include "velcoredata/core/LocalStrings.h"

namespace {

using CoreData::StringId;
using CoreData::detail::ColorName;

// English; the names that are known by the number of their key only, as that number.
std::string NameOrId(StringId id)
{
    static unsigned const byId[] = {0xA15591B9, 0xC36CA448, 0x37C26950, 0xCDF4ACC5, 0xADA12D80,
                                    0x9071C701, 0x92EA1040, 0xD249D299, 0x29B3A099};
    for (unsigned const number : byId)
        if (static_cast<unsigned>(id) == number) {
            char text[16];
            std::snprintf(text, sizeof text, "%08X", number);
            return text;
        }
    return CoreData::LookupTStrExported(id).toStdString();
}

std::string NameOrId(float h, float s, float v)
{
    return NameOrId(ColorName(h, s, v));
}

TEST(ColorName, EveryCellOfTheTableHasItsText)
{
    static char const * const expected[11][5] = {
        {"Gray", "Very Light Gray", "A15591B9", "Dark Gray", "Very Dark Gray"},
        {"Red", "C36CA448", "Pink", "Dark Red", "Brown"},
        {"Orange", "Beige", "Light Orange", "Brown", "37C26950"},
        {"Yellow", "Very Light Yellow", "Light Yellow", "Olive Green", "Dark Gray"},
        {"Yellow-Green", "Very Light Yellow-Green", "Light Yellow-Green", "Dark Yellow-Green", "Dark Gray"},
        {"Green", "Very Light Green", "Light Green", "CDF4ACC5", "Very Dark Green"},
        {"Teal", "Very Light Teal", "Light Teal", "Dark Teal", "Very Dark Teal"},
        {"ADA12D80", "Very Light Blue", "9071C701", "Dark Blue", "Very Dark Blue"},
        {"92EA1040", "Very Light Purple", "Light Purple", "Dark Purple", "Very Dark Purple"},
        {"Pink", "Very Light Pink", "D249D299", "Dark Pink", "Very Dark Pink"},
        {"Brown", "Very Light Brown", "Light Brown", "29B3A099", "Very Dark Brown"},
    };
    for (unsigned row = 0; row < 11; ++row)
        for (unsigned shade = 0; shade < 5; ++shade)
            EXPECT_EQ(NameOrId(CoreData::detail::ColorNameOfCell(row, shade)), expected[row][shade])
                << row << ' ' << shade;
}

// The rows that hang on the hue alone, with a colour for each shade that leaves room around every bound.
TEST(ColorName, EveryShadeOfARowIsReached)
{
    static struct
    {
        unsigned row;
        float hue;
        float adjustment;  // what the colour's saturation is above the one that the shade is chosen by
    } const rows[] = {
        {1, 0.98F, 0}, {4, 0.20F, 0},      {5, 0.30F, 0},      {6, 0.45F, 0.09F},
        {7, 0.60F, 0}, {8, 0.75F, -0.06F}, {9, 0.91F, -0.08F},
    };
    static struct
    {
        float saturation, value;
    } const shades[] = {{0.8F, 0.75F}, {0.2F, 0.95F}, {0.4F, 0.75F}, {0.9F, 0.3F}, {0.9F, 0.18F}};
    for (auto const & row : rows)
        for (unsigned shade = 0; shade < 5; ++shade)
            EXPECT_EQ(ColorName(row.hue, shades[shade].saturation + row.adjustment, shades[shade].value),
                      CoreData::detail::ColorNameOfCell(row.row, shade))
                << row.hue << ' ' << shade;
}

TEST(ColorName, RowsThatHangOnTheValue)
{
    struct
    {
        float h, s, v;
        char const * name;
    } const rows[] = {
        // Gray: 1 - 1.65 s >= v.
        {0.5F, 0, 0.5F, "Gray"},
        {0.5F, 0.05F, 0.9F, "Very Light Gray"},
        {0.5F, 0, 0.75F, "A15591B9"},
        {0.5F, 0, 0.3F, "Dark Gray"},
        {0.5F, 0, 0.18F, "Very Dark Gray"},
        {0.3F, 0.30F, 0.5F, "Gray"},
        {0.3F, 0.31F, 0.5F, "Green"},
        // Red and brown.
        {0.02F, 0.9F, 0.84F, "Red"},
        {0.02F, 0.9F, 0.83F, "Brown"},
        {0.02F, 0.4F, 0.83F, "Light Brown"},
        {0.02F, 0.9F, 0.3F, "29B3A099"},
        {0.02F, 0.9F, 0.18F, "Very Dark Brown"},
        // Orange, whose saturation counts 0.14 less, and brown.
        {0.08F, 0.9F, 0.84F, "Orange"},
        {0.08F, 0.34F, 0.9F, "Beige"},
        {0.08F, 0.36F, 0.9F, "Light Orange"},
        {0.08F, 0.57F, 0.84F, "Light Orange"},
        {0.08F, 0.59F, 0.84F, "Orange"},
        {0.08F, 0.9F, 0.83F, "Brown"},
        {0.08F, 0.4F, 0.83F, "Light Brown"},
        // Yellow and yellow-green.
        {0.15F, 0.9F, 0.84F, "Yellow"},
        {0.15F, 0.2F, 0.9F, "Very Light Yellow"},
        {0.15F, 0.4F, 0.9F, "Light Yellow"},
        {0.15F, 0.9F, 0.83F, "Yellow-Green"},
        {0.15F, 0.9F, 0.3F, "Dark Yellow-Green"},
    };
    for (auto const & row : rows)
        EXPECT_EQ(NameOrId(row.h, row.s, row.v), row.name) << row.h << ' ' << row.s << ' ' << row.v;
}

TEST(ColorName, HuesChangeAtTheirBounds)
{
    struct
    {
        float bound;
        char const * below;
        char const * at;
        float value;
    } const rows[] = {
        {0.04F, "Red", "Orange", 0.9F},
        {0.11F, "Orange", "Yellow", 0.9F},
        {0.18F, "Yellow", "Yellow-Green", 0.9F},
        {0.22F, "Yellow-Green", "Green", 0.9F},
        {0.40F, "Green", "Teal", 0.9F},
        {0.50F, "Teal", "ADA12D80", 0.9F},
        {0.67F, "ADA12D80", "92EA1040", 0.9F},
        {0.88F, "92EA1040", "Pink", 0.9F},
        {0.95F, "Pink", "Red", 0.9F},
        {0.11F, "Brown", "Yellow-Green", 0.6F},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(NameOrId(row.bound - 0.001F, 0.9F, row.value), row.below) << row.bound;
        EXPECT_EQ(NameOrId(row.bound + 0.001F, 0.9F, row.value), row.at) << row.bound;
    }
    EXPECT_EQ(NameOrId(0.5F, 0.9F, 0.9F), "ADA12D80") << "the bound itself is the upper row's";
    EXPECT_EQ(NameOrId(0.0F, 0.9F, 0.9F), "Red");
    EXPECT_EQ(NameOrId(1.0F, 0.9F, 0.9F), "Red");
}

TEST(ColorName, ShadesChangeAtTheirBounds)
{
    struct
    {
        float s, v;
        char const * name;
    } const rows[] = {
        {0.209F, 0.851F, "Very Light Green"},
        {0.211F, 0.851F, "Light Green"},
        {0.209F, 0.849F, "Light Green"},
        {0.439F, 0.851F, "Light Green"},
        {0.441F, 0.851F, "Green"},
        {0.439F, 0.701F, "Light Green"},
        {0.439F, 0.699F, "Green"},
        {0.9F, 0.491F, "Green"},
        {0.9F, 0.489F, "CDF4ACC5"},
        {0.9F, 0.201F, "CDF4ACC5"},
        {0.9F, 0.199F, "Very Dark Green"},
    };
    for (auto const & row : rows)
        EXPECT_EQ(NameOrId(0.3F, row.s, row.v), row.name) << row.s << ' ' << row.v;
}

TEST(ColorName, SaturationsAreAdjustedForTheShade)
{
    struct
    {
        float h, bound;  // of the colour's own saturation, between light and plain
        char const * light;
        char const * plain;
    } const rows[] = {
        {0.45F, 0.53F, "Light Teal", "Teal"},   {0.75F, 0.38F, "Light Purple", "92EA1040"},
        {0.91F, 0.36F, "D249D299", "Pink"},     {0.30F, 0.44F, "Light Green", "Green"},
        {0.60F, 0.44F, "9071C701", "ADA12D80"}, {0.98F, 0.44F, "Pink", "Red"},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(NameOrId(row.h, row.bound - 0.002F, 0.9F), row.light) << row.h;
        EXPECT_EQ(NameOrId(row.h, row.bound + 0.002F, 0.9F), row.plain) << row.h;
    }
}

TEST(ColorName, WhiteAndBlackComeFirst)
{
    EXPECT_EQ(NameOrId(0.3F, 0.049F, 0.951F), "White");
    EXPECT_EQ(NameOrId(0.3F, 0.051F, 0.951F), "Very Light Green");
    EXPECT_EQ(NameOrId(0.3F, 0.0F, 0.949F), "Very Light Gray");
    EXPECT_EQ(NameOrId(0.3F, 1.0F, 0.149F), "Black");
    EXPECT_EQ(NameOrId(0.3F, 1.0F, 0.151F), "Very Dark Green");
}

TEST(ColorName, EveryCellThatCanBeReachedIsNoEmptyText)
{
    for (int h = 0; h <= 100; ++h)
        for (int s = 0; s <= 50; ++s)
            for (int v = 0; v <= 50; ++v)
                ASSERT_FALSE(
                    CoreData::LookupTStrExported(
                        ColorName(static_cast<float>(h) / 100, static_cast<float>(s) / 50, static_cast<float>(v) / 50))
                        .isEmpty());
}

}  // namespace
