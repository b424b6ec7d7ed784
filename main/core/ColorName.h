// The spoken name of a colour.
#pragma once

#include "velcoredata/core/Export.h"
#include "velcoredata/core/StringIds.h"

namespace CoreData::detail {

// The key of the name of the colour with this hue, saturation and value, each from 0 to 1. Opaque or not does not
// count.
VELCOREDATA_API StringId ColorName(float hue, float saturation, float value) noexcept;

// The key of a cell: rows gray, red, orange, yellow, yellow-green, green, teal, blue, purple, pink, brown, from 0;
// shades plain, very light, light, dark, very dark, from 0. Some cells are reached by no colour.
VELCOREDATA_API StringId ColorNameOfCell(unsigned row, unsigned shade) noexcept;

}  // namespace CoreData::detail
