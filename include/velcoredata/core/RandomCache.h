// RandomCache: a size-bounded map from keys to values that cost much to make, with random eviction.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <functional>
#include <random>
#include <unordered_map>
#include <utility>
#include <vector>

#include "velcoreplatform/Locks.h"
#include "velsys/TStringCore.h"

/// Keeps up to `capacity` values, at least five. A hit takes the read lock alone, so readers run in parallel; a miss
/// makes its value outside any lock. Which entry leaves a full cache is drawn by a generator with a fixed seed: the
/// same sequence of lookups evicts the same entries in every process. The newest entry is never the one to leave.
///
/// All operations may be called from any thread. A value that was handed out is a copy: use a shared pointer for what
/// has to outlive its eviction. Laws, for a cache c of capacity n:
///
///   c.Size() <= max(n, 5)
///   c.Get(k, f); c.Contains(k)                                 as long as no other thread looks up
///   same sequence of Get on c1 and c2  =>  c1.Contains(k) == c2.Contains(k) for every k
///
/// Example:
///   RandomCache<TString, int, std::hash<TString>> lengths(TStringCore(), 100);
///   lengths.Get(u"abc", [](TString const & key) { return key.length(); });  // 3, counted once
template <class Key, class Value, class Hash = std::hash<Key>>
class RandomCache
{
public:
    /// `name` is for diagnostics and may be empty. A capacity below 5 is raised to 5.
    RandomCache(TStringCore name, unsigned capacity)
        : m_lock(0), m_name(std::move(name)), m_capacity(std::max(capacity, 5u))
    {}
    RandomCache(RandomCache const &) = delete;
    RandomCache & operator=(RandomCache const &) = delete;
    virtual ~RandomCache() = default;

    /// The value of the key, made by `compile(key)` when it is absent. Two threads that miss the same key at once may
    /// both make a value; the first to come back is kept and both get it. What `compile` throws leaves the cache as it
    /// was.
    template <class Compile>
    Value Get(Key const & key, Compile && compile)
    {
        {
            ScopedReadLock const read(m_lock);
            Count(m_lookups);
            if (auto const found = m_table.find(key); found != m_table.end()) {
                Count(m_hits);
                return found->second.value;
            }
        }
        Value made = std::forward<Compile>(compile)(key);

        ScopedWriteLock const write(m_lock);
        if (m_entries.size() == m_entries.capacity())
            m_entries.reserve(std::max<std::size_t>(16, 2 * m_entries.size()));  // so that push_back cannot throw
        auto const [entry, isNew] = m_table.try_emplace(key, std::move(made), m_entries.size());
        if (isNew)
            m_entries.push_back(&*entry);
        Value result = entry->second.value;
        if (m_entries.size() > m_capacity)
            EvictOne();
        return result;
    }

    /// Takes the key out; false if it is not there.
    virtual bool Remove(Key const & key)
    {
        ScopedWriteLock const write(m_lock);
        auto const found = m_table.find(key);
        if (found == m_table.end())
            return false;
        Swap(found->second.index, m_entries.size() - 1);
        m_entries.pop_back();
        m_table.erase(found);
        return true;
    }

    /// Empties the cache. The generator goes on where it stands.
    virtual void Clear()
    {
        ScopedWriteLock const write(m_lock);
        m_entries.clear();
        m_table.clear();
    }

    bool Contains(Key const & key) const
    {
        ScopedReadLock const read(m_lock);
        return m_table.find(key) != m_table.end();
    }
    std::size_t Size() const
    {
        ScopedReadLock const read(m_lock);
        return m_entries.size();
    }
    unsigned GetCapacity() const noexcept { return m_capacity; }
    TStringCore const & GetName() const noexcept { return m_name; }
    /// Counts of Get and of its hits. Under several threads a count may get lost.
    unsigned GetLookups() const noexcept { return m_lookups.load(std::memory_order_relaxed); }
    unsigned GetHits() const noexcept { return m_hits.load(std::memory_order_relaxed); }

private:
    struct Entry
    {
        Entry(Value && v, std::size_t i) : value(std::move(v)), index(i) {}
        Value value;
        std::size_t index;  // where m_entries points to this entry
    };
    using Table = std::unordered_map<Key, Entry, Hash>;

    // Not a read-modify-write: readers must not contend for the counters.
    static void Count(std::atomic<unsigned> & counter)
    {
        counter.store(counter.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    }

    void Swap(std::size_t a, std::size_t b)
    {
        std::swap(m_entries[a], m_entries[b]);
        m_entries[a]->second.index = a;
        m_entries[b]->second.index = b;
    }

    // The victim trades places with the last but one and leaves from there; the newest entry moves up by one.
    void EvictOne()
    {
        std::size_t const lastButOne = m_entries.size() - 2;
        Swap(std::uniform_int_distribution<std::size_t>(0, lastButOne)(m_generator), lastButOne);
        auto * const victim = m_entries[lastButOne];
        Swap(lastButOne, lastButOne + 1);
        m_entries.pop_back();
        m_table.erase(m_table.find(victim->first));
    }

    mutable TReadWriteLock m_lock;
    TStringCore m_name;
    unsigned m_capacity;
    std::atomic<unsigned> m_lookups{0};
    std::atomic<unsigned> m_hits{0};
    Table m_table;
    std::vector<typename Table::value_type *> m_entries;
    std::mt19937 m_generator;  // standard seed, 5489; touched under the write lock alone
};
