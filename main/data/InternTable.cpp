#include "main/data/InternTable.h"

#include <utility>

namespace detail {

unsigned InternTable::SlotHash(TString const & text)
{
    unsigned const hash = HashOf(text);
    return hash != 0 ? hash : 1;
}

InternedString InternTable::LookupText(TString const & text)
{
    unsigned const hash = SlotHash(text);
    AutoSynchronize lock(GetLock(), 13, __FILE__, __func__, __LINE__);
    for (std::size_t i = Home(hash); m_slots[i].hash != 0; i = Next(i)) {
        if (m_slots[i].hash != hash || !(m_slots[i].entry->value->GetString() == text))
            continue;
        MoveToFront(m_slots[i].entry);
        return m_slots[i].entry->value;
    }
    return {};
}

void InternTable::Insert(unsigned hash, Position entry)
{
    std::size_t i = Home(hash);
    while (m_slots[i].hash != 0)
        i = Next(i);
    m_slots[i] = {hash, entry};
}

void InternTable::OnEntered(Position entry)
{
    if (2 * (m_used + 1) > m_slots.size()) {
        std::vector<Slot> const old = std::exchange(m_slots, std::vector<Slot>(2 * m_slots.size()));
        for (Slot const & slot : old)
            if (slot.hash != 0)
                Insert(slot.hash, slot.entry);
    }
    Insert(SlotHash(entry->value->GetString()), entry);
    ++m_used;
}

void InternTable::OnLeaving(Position entry)
{
    std::size_t gap = Home(SlotHash(entry->value->GetString()));
    while (m_slots[gap].hash == 0 || m_slots[gap].entry != entry)
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
