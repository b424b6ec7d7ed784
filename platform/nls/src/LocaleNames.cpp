#include "velnls/LocaleNames.h"

#include <algorithm>
#include <iterator>

namespace VelNLS {

namespace {

constexpr PublishedLocaleName publishedNames[] = {
#include "LocaleNameTable.inc"
};

}  // namespace

std::span<PublishedLocaleName const> GetPublishedLocaleNames() noexcept
{
    return publishedNames;
}

char const * FindPublishedLocaleName(LCID lcid) noexcept
{
    auto const * const row =
        std::lower_bound(std::begin(publishedNames), std::end(publishedNames), lcid,
                         [](PublishedLocaleName const & entry, LCID wanted) { return entry.lcid < wanted; });
    return row != std::end(publishedNames) && row->lcid == lcid ? row->name : nullptr;
}

}  // namespace VelNLS
