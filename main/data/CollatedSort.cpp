#include "velcoredata/data/CollatedSort.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "main/data/CollationKey.h"

namespace {

struct Entry
{
    std::uint64_t prefix;
    unsigned position;
};

}  // namespace

std::vector<unsigned> CollatedOrder(Collation const & collation, std::vector<TString> const & texts)
{
    Collator const & collator = *collation.GetCollator();
    std::vector<Entry> entries(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
        entries[i] = {detail::KeyPrefix(collator, texts[i]), static_cast<unsigned>(i)};
    std::sort(entries.begin(), entries.end(), [&](Entry const & a, Entry const & b) {
        if (a.prefix != b.prefix)
            return a.prefix < b.prefix;
        int const order = collator.Compare(texts[a.position], texts[b.position]);
        return order != 0 ? order < 0 : a.position < b.position;
    });
    std::vector<unsigned> order;
    order.reserve(texts.size());
    for (Entry const & entry : entries)
        order.push_back(entry.position);
    return order;
}

void SortCollated(Collation const & collation, std::vector<TString> & texts)
{
    std::vector<unsigned> const order = CollatedOrder(collation, texts);
    std::vector<TString> sorted;
    sorted.reserve(texts.size());
    for (unsigned position : order)
        sorted.push_back(std::move(texts[position]));
    texts.swap(sorted);
}
