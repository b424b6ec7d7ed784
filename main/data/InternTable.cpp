#include "main/data/InternTable.h"

#include <cstdint>
#include <cstring>
#include <utility>

#ifndef XXH_INLINE_ALL
#define XXH_INLINE_ALL
#endif
#include <xxhash.h>

namespace detail {

unsigned InternTable::SlotHash(TString const & text)
{
    // Inline, unlike HashOf: half of a hit is calls otherwise.
    auto const hash = static_cast<unsigned>(XXH3_64bits(text.View().data(), text.lengthInBytes()));
    return hash != 0 ? hash : 1;
}

namespace {

// Inline for the short texts that columns repeat.
inline bool EqualUnits(char16_t const * a, char16_t const * b, int length)
{
    auto const eightBytes = [](char16_t const * at) {
        std::uint64_t word;
        std::memcpy(&word, at, sizeof word);
        return word;
    };
    if (length < 4)
        return length <= 0 || (a[0] == b[0] && a[length / 2] == b[length / 2] && a[length - 1] == b[length - 1]);
    for (int i = 0; i + 4 < length; i += 4)
        if (eightBytes(a + i) != eightBytes(b + i))
            return false;
    return eightBytes(a + length - 4) == eightBytes(b + length - 4);
}

}  // namespace

InternedString InternTable::LookupText(TString const & text)
{
    unsigned const hash = SlotHash(text);
    int const length = text.length();
    char16_t const * const units = text.View().data();
    AutoSynchronize lock(GetLock(), 13, __FILE__, __func__, __LINE__);
    for (std::size_t i = Home(hash);; i = Next(i)) {
        Slot const & slot = m_slots[i];
        if (slot.hash == 0)
            return {};
        if (slot.hash != hash || slot.length != length || !EqualUnits(slot.text, units, length))
            continue;
        MoveToFront(*slot.entry);
        return slot.entry->value;
    }
}

void InternTable::Insert(Slot const & slot)
{
    std::size_t i = Home(slot.hash);
    while (m_slots[i].hash != 0)
        i = Next(i);
    m_slots[i] = slot;
}

void InternTable::OnEntered(Node & entry)
{
    if (2 * (m_used + 1) > m_slots.size()) {
        std::vector<Slot> const old = std::exchange(m_slots, std::vector<Slot>(2 * m_slots.size()));
        for (Slot const & slot : old)
            if (slot.hash != 0)
                Insert(slot);
    }
    TString const & text = entry.value->GetString();
    Insert({SlotHash(text), text.length(), text.View().data(), &entry});
    ++m_used;
}

void InternTable::OnLeaving(Node & entry)
{
    std::size_t gap = Home(SlotHash(entry.value->GetString()));
    while (m_slots[gap].entry != &entry)
        gap = Next(gap);
    // Later slots of the run move up unless that would put them before their home.
    for (std::size_t i = Next(gap); m_slots[i].hash != 0; i = Next(i)) {
        std::size_t const mask = m_slots.size() - 1;
        std::size_t const home = Home(m_slots[i].hash);
        if (((i - home) & mask) < ((i - gap) & mask))
            continue;
        m_slots[gap] = m_slots[i];
        gap = i;
    }
    m_slots[gap] = Slot();
    --m_used;
}

}  // namespace detail
