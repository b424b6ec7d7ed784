#pragma once

#include <vector>

#include "velcoredata/data/MruCache.h"
#include "velcoredata/data/StringWithCollation.h"

namespace detail {

using InternedString = RefCntPtr<StringWithCollation, RefCntObject>;

// The table of interned strings, keyed by collation hash, which also finds an entry by its exact text. A text stands in
// at most one entry, that of its collation hash, so both ways agree; the second one needs no collation hash.
class InternTable : public MruCache<unsigned, InternedString, 1>
{
public:
    explicit InternTable(unsigned long long maximum) : MruCache(maximum), m_slots(16) {}

    // The entry with exactly this text, which becomes the most recently used one, or null.
    InternedString LookupText(TString const & text);

private:
    // Open addressing: a hit costs one slot, the text and the entry. Emptied slots are closed up, so there are no grave
    // marks.
    struct Slot
    {
        unsigned hash = 0;  // of the text; 0 is an empty slot
        int length = 0;
        char16_t const * text = nullptr;  // the entry's own
        Node * entry = nullptr;
    };

    void OnEntered(Node & entry) override;
    void OnLeaving(Node & entry) override;

    static unsigned SlotHash(TString const & text);
    std::size_t Next(std::size_t i) const { return (i + 1) & (m_slots.size() - 1); }
    std::size_t Home(unsigned hash) const { return hash & (m_slots.size() - 1); }
    void Insert(Slot const & slot);

    std::vector<Slot> m_slots;  // a power of two, at most half full
    std::size_t m_used = 0;
};

}  // namespace detail
