// MemberName: the name of a member of a field, which is the member's value.
#pragma once

#include <cstddef>

#include "velcoredata/data/DataValue.h"

class MemberName
{
public:
    // The typeless null.
    MemberName() noexcept = default;
    MemberName(DataValue const & value) : m_value(value) {}

    DataValue const & GetValue() const noexcept { return m_value; }

    // Those of DataValue: a == b implies a.Hash() == b.Hash() but for strings of different collations.
    friend bool operator==(MemberName const & a, MemberName const & b) { return a.m_value == b.m_value; }
    friend bool operator<(MemberName const & a, MemberName const & b) { return a.m_value < b.m_value; }
    std::size_t Hash() const { return m_value.Hash(); }

private:
    DataValue m_value;
};

struct MemberNameHashFunc
{
    std::size_t operator()(MemberName const & name) const { return name.Hash(); }
};
