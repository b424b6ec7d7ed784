// Number format options in tests: their fields for comparison, and options whose every field is told from the defaults.
#pragma once

#include <tuple>

#include "velcoredata/string/NumberFormatOptions.h"

namespace test_support {

inline auto Fields(NumberFormatOptions const & o)
{
    return std::tuple(o.decimals, o.decimalSeparator, o.useGrouping, o.grouping, o.thousandSeparator, o.prefix,
                      o.suffix, static_cast<int>(o.units), static_cast<int>(o.negative));
}

inline NumberFormatOptions PresetOptions()
{
    return NumberFormatOptions(77, u"d", true, u"g", u"t", u"before", u"after", UnitsFormatEnum::M,
                               NegativeFormatEnum::MinusAfterPrefix);
}

}  // namespace test_support
