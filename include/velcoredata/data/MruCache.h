#pragma once

#include <iterator>
#include <list>
#include <map>
#include <utility>

#include "velcoredata/data/CacheDimensions.h"
#include "velcoreplatform/Locks.h"
#include "velcoreplatform/VelcoreplatformError.h"
#include "velsys/LogicException.h"

// A bounded table in order of use: the entry used longest ago is dropped first.
//
// Each entry has a weight, 1 at least; the sum of the weights never exceeds the maximum. Keys are compared exactly, by
// operator<. Every operation holds the table's own lock, so any thread may call any of them at any time; two calls in a
// row are two separate steps.
template <class Key, class Value, unsigned long long DefaultWeight>
class MruCache
{
public:
    using Weight = CacheDimensions<1>;

    explicit MruCache(Weight maximum) : m_lock(0), m_maximum(maximum) {}
    virtual ~MruCache() = default;
    MruCache(MruCache const &) = delete;
    MruCache & operator=(MruCache const &) = delete;

    // Copies the value out and makes the entry the most recently used one. False: no such key, `value` is as it was.
    bool Lookup(Key const & key, Value & value)
    {
        AutoSynchronize lock(m_lock, 13, __FILE__, __func__, __LINE__);
        auto const found = m_index.find(key);
        if (found == m_index.end())
            return false;
        MoveToFront(found->second);
        value = found->second->value;
        return true;
    }

    // Adds an entry or exchanges the value of the key, in front of all others, and drops the last ones while the sum of
    // weights exceeds the maximum. A weight above the maximum changes nothing.
    void Put(Key const & key, Value value, Weight weight = DefaultWeight)
    {
        if (IsExceededBy(m_maximum, weight))
            return;
        weight.RaiseTo(1);
        AutoSynchronize lock(m_lock, 13, __FILE__, __func__, __LINE__);
        auto const found = m_index.find(key);
        if (found == m_index.end()) {
            m_list.push_front(Node{key, std::move(value), weight});
            auto const result = m_index.emplace(key, m_list.begin());
            if (!result.second) [[unlikely]] {
                m_list.pop_front();
                ThrowLogicException(__FILE__, __LINE__, "result.second == true",
                                    VelcoreplatformError::LogicAssert_0x4CE9D476());
            }
        } else {
            Node & node = *found->second;
            OnLeaving(found->second);
            std::swap(node.value, value);
            m_size -= node.weight;
            node.weight = weight;
            MoveToFront(found->second);
        }
        OnEntered(m_list.begin());
        m_size += weight;
        while (IsExceededBy(m_maximum, m_size)) {
            OnLeaving(std::prev(m_list.end()));
            m_index.erase(m_list.back().key);
            m_size -= m_list.back().weight;
            m_list.pop_back();
        }
    }

    void Clear()
    {
        AutoSynchronize lock(m_lock, 13, __FILE__, __func__, __LINE__);
        for (auto node = m_list.begin(); node != m_list.end(); ++node)
            OnLeaving(node);
        m_index.clear();
        m_list.clear();
        m_size = Weight();
    }

    // The sum of the weights.
    Weight GetSize() const
    {
        AutoSynchronize lock(m_lock, 13, __FILE__, __func__, __LINE__);
        return m_size;
    }

protected:
    struct Node
    {
        Key key;
        Value value;
        Weight weight;
    };
    using List = std::list<Node>;  // most recently used first
    using Position = typename List::iterator;

    // For tables that find entries in another way too. Both are called under the lock: a value has come in, a value is
    // about to go out. Neither may raise.
    virtual void OnEntered(Position) {}
    virtual void OnLeaving(Position) {}

    TRecursiveMutex & GetLock() const { return m_lock; }
    // Under the lock.
    void MoveToFront(Position node)
    {
        if (node != m_list.begin())
            m_list.splice(m_list.begin(), m_list, node);
    }

private:
    List m_list;
    std::map<Key, Position> m_index;
    mutable TRecursiveMutex m_lock;
    Weight m_size;
    Weight m_maximum;
};
