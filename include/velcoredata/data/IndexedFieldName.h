// IndexedFieldName: a field name with a position, a count from 0 of 64 bits. 0 is also "no position".
#pragma once

#include <cstddef>
#include <utility>

#include "velcoredata/data/FieldName.h"

class IndexedFieldName
{
public:
    // The empty name with index 0.
    IndexedFieldName() noexcept = default;
    // An empty name takes no index: index 0, whatever was given.
    IndexedFieldName(FieldName const & name, std::size_t index) noexcept
        : m_name(name), m_index(name.IsEmpty() ? 0 : index)
    {}
    // Keeps the index whatever the name; unlike the copying form, this one does not look.
    IndexedFieldName(FieldName && name, std::size_t index) noexcept : m_name(std::move(name)), m_index(index) {}

    FieldName const & GetFieldName() const noexcept { return m_name; }
    std::size_t GetIndex() const noexcept { return m_index; }
    // That of the name; the index plays no part.
    bool IsEmpty() const noexcept { return m_name.IsEmpty(); }

    friend bool operator==(IndexedFieldName const & a, IndexedFieldName const & b)
    {
        return a.m_index == b.m_index && a.m_name == b.m_name;
    }
    // By name, and equal names by index.
    friend bool operator<(IndexedFieldName const & a, IndexedFieldName const & b)
    {
        if (a.m_name < b.m_name)
            return true;
        return !(b.m_name < a.m_name) && a.m_index < b.m_index;
    }

private:
    FieldName m_name;
    std::size_t m_index = 0;
};
