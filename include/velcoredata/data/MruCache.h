#pragma once

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
        value = found->second.value;
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
            auto const result = m_index.try_emplace(key, std::move(value), weight);
            if (!result.second) [[unlikely]]
                ThrowLogicException(__FILE__, __LINE__, "result.second == true",
                                    VelcoreplatformError::LogicAssert_0x4CE9D476());
            result.first->second.self = result.first;
            LinkInFront(result.first->second);
        } else {
            Node & node = found->second;
            OnLeaving(node);
            std::swap(node.value, value);
            m_size -= node.weight;
            node.weight = weight;
            MoveToFront(node);
        }
        OnEntered(Front());
        m_size += weight;
        while (IsExceededBy(m_maximum, m_size)) {
            Node & last = static_cast<Node &>(*m_ends.previous);
            OnLeaving(last);
            m_size -= last.weight;
            Unlink(last);
            m_index.erase(last.self);
        }
    }

    void Clear()
    {
        AutoSynchronize lock(m_lock, 13, __FILE__, __func__, __LINE__);
        for (auto & [key, node] : m_index)
            OnLeaving(node);
        m_index.clear();
        m_ends = Link();
        m_size = Weight();
    }

    // The sum of the weights.
    Weight GetSize() const
    {
        AutoSynchronize lock(m_lock, 13, __FILE__, __func__, __LINE__);
        return m_size;
    }

protected:
    struct Node;
    // A ring through the entries and the table itself, most recently used first. std::list would cost a call into the
    // library to move an entry and a second block for each.
    struct Link
    {
        Link() : next(this), previous(this) {}
        Link(Link const &) : Link() {}
        Link & operator=(Link const &)
        {
            next = previous = this;
            return *this;
        }

        Link * next;
        Link * previous;
    };
    struct Node : Link
    {
        Node(Value && initial, Weight const & size) : value(std::move(initial)), weight(size) {}

        Value value;
        Weight weight;
        typename std::map<Key, Node>::iterator self;
    };

    // For tables that find entries in another way too. Both are called under the lock: a value has come in, a value is
    // about to go out.
    virtual void OnEntered(Node &) {}
    virtual void OnLeaving(Node &) {}

    TRecursiveMutex & GetLock() const { return m_lock; }
    // Under the lock.
    void MoveToFront(Node & node)
    {
        if (m_ends.next == &node)
            return;
        Unlink(node);
        LinkInFront(node);
    }

private:
    Node & Front() { return static_cast<Node &>(*m_ends.next); }
    static void Unlink(Node & node)
    {
        node.previous->next = node.next;
        node.next->previous = node.previous;
    }
    void LinkInFront(Node & node)
    {
        node.next = m_ends.next;
        node.previous = &m_ends;
        m_ends.next->previous = &node;
        m_ends.next = &node;
    }

    Link m_ends;
    std::map<Key, Node> m_index;
    mutable TRecursiveMutex m_lock;
    Weight m_size;
    Weight m_maximum;
};
