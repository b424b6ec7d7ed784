#pragma once

#include <array>
#include <cstddef>

#include "velcoreplatform/VelcoreplatformError.h"
#include "velsys/LogicException.h"

// Weights of cache entries and their sums: a small array of counts.
template <std::size_t N>
class CacheDimensions
{
public:
    using Count = unsigned long long;

    CacheDimensions() = default;
    // The same count in each dimension.
    CacheDimensions(Count count) { m_dimensions.fill(count); }

    Count operator[](std::size_t i) const { return m_dimensions[i]; }

    CacheDimensions & operator+=(CacheDimensions const & rhs)
    {
        for (std::size_t i = 0; i < N; ++i)
            m_dimensions[i] += rhs.m_dimensions[i];
        return *this;
    }
    // Asserts that no count falls below zero.
    CacheDimensions & operator-=(CacheDimensions const & rhs)
    {
        for (std::size_t i = 0; i < N; ++i) {
            if (m_dimensions[i] < rhs.m_dimensions[i]) [[unlikely]]
                ThrowLogicException(__FILE__, __LINE__, "m_dimensions[i] >= rhs.m_dimensions[i]",
                                    VelcoreplatformError::LogicAssert_0x2D8C440D());
            m_dimensions[i] -= rhs.m_dimensions[i];
        }
        return *this;
    }
    // Raises each count to at least that of `floor`.
    void RaiseTo(CacheDimensions const & floor)
    {
        for (std::size_t i = 0; i < N; ++i)
            if (m_dimensions[i] < floor.m_dimensions[i])
                m_dimensions[i] = floor.m_dimensions[i];
    }

    friend CacheDimensions operator+(CacheDimensions a, CacheDimensions const & b) { return a += b; }
    friend CacheDimensions operator-(CacheDimensions a, CacheDimensions const & b) { return a -= b; }
    friend bool operator==(CacheDimensions const & a, CacheDimensions const & b)
    {
        return a.m_dimensions == b.m_dimensions;
    }
    // Whether any count of b exceeds a's: a table with this maximum and that size is too full.
    friend bool IsExceededBy(CacheDimensions const & a, CacheDimensions const & b)
    {
        for (std::size_t i = 0; i < N; ++i)
            if (a.m_dimensions[i] < b.m_dimensions[i])
                return true;
        return false;
    }

private:
    std::array<Count, N> m_dimensions{};
};
