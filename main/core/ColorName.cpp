#include "main/core/ColorName.h"

namespace CoreData::detail {

namespace {

enum Row
{
    Gray,
    Red,
    Orange,
    Yellow,
    YellowGreen,
    Green,
    Teal,
    Blue,
    Purple,
    Pink,
    Brown,
    RowCount
};

enum Shade
{
    Plain,
    VeryLight,
    Light,
    Dark,
    VeryDark,
    ShadeCount
};

#define SHADES(color)                                                                                                  \
    {                                                                                                                  \
        StringId::IDS_PALETTE_TOOLTIP_##color, StringId::IDS_PALETTE_TOOLTIP_VERY_LIGHT_##color,                       \
            StringId::IDS_PALETTE_TOOLTIP_LIGHT_##color, StringId::IDS_PALETTE_TOOLTIP_DARK_##color,                   \
            StringId::IDS_PALETTE_TOOLTIP_VERY_DARK_##color                                                            \
    }

constexpr StringId names[RowCount][ShadeCount] = {
    SHADES(GRAY), SHADES(RED),  SHADES(ORANGE), SHADES(YELLOW), SHADES(YELLOW_GREEN), SHADES(GREEN),
    SHADES(TEAL), SHADES(BLUE), SHADES(PURPLE), SHADES(PINK),   SHADES(BROWN),
};

#undef SHADES

// Pale colours look paler in some hues than in others: `s` is the saturation by which the shade is chosen.
Row RowOf(float h, float & s, float v) noexcept
{
    bool const bright = v >= 0.835;
    if (1 - 1.65 * s >= v)
        return Gray;
    if (h < 0.04)
        return bright ? Red : Brown;
    if (h < 0.11) {
        if (!bright)
            return Brown;
        s = static_cast<float>(s - 0.14);
        return Orange;
    }
    if (h < 0.18)
        return bright ? Yellow : YellowGreen;
    if (h < 0.22)
        return YellowGreen;
    if (h < 0.4)
        return Green;
    if (h < 0.5) {
        s = static_cast<float>(s - 0.09);
        return Teal;
    }
    if (h < 0.67)
        return Blue;
    if (h < 0.88) {
        s = static_cast<float>(s + 0.06);
        return Purple;
    }
    if (h < 0.95) {
        s = static_cast<float>(s + 0.08);
        return Pink;
    }
    return Red;
}

Shade ShadeOf(float s, float v) noexcept
{
    if (v >= 0.85 && s < 0.21)
        return VeryLight;
    if (v >= 0.7 && s < 0.44)
        return Light;
    if (v < 0.2)
        return VeryDark;
    if (v < 0.49)
        return Dark;
    return Plain;
}

}  // namespace

StringId ColorName(float hue, float saturation, float value) noexcept
{
    if (saturation < 0.05 && value >= 0.95)
        return StringId::IDS_PALETTE_TOOLTIP_WHITE;
    if (value < 0.15)
        return StringId::IDS_PALETTE_TOOLTIP_BLACK;
    Row const row = RowOf(hue, saturation, value);
    return names[row][ShadeOf(saturation, value)];
}

StringId ColorNameOfCell(unsigned row, unsigned shade) noexcept
{
    return names[row][shade];
}

}  // namespace CoreData::detail
