#include "main/data/CollationKey.h"

#include <algorithm>

#include "main/data/ICUCollator.h"

namespace detail {

std::uint64_t KeyPrefix(Collator const & collator, TString const & text)
{
    if (auto const * const icu = dynamic_cast<ICUCollator const *>(&collator))
        return icu->KeyPrefix(text);
    // Code units: the first four.
    std::uint64_t prefix = 0;
    char16_t const * unit = text;
    for (int i = 0; i < 4; ++i) {
        prefix = prefix << 16 | *unit;
        if (*unit != 0)
            ++unit;
    }
    return prefix;
}

}  // namespace detail
