// Equality and hash of the content of spatial objects, and the structure that follows from a content.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "velgeo/Shapes.h"
#include "velsys/Hash.h"

namespace velgeo::detail {

// One bit pattern for both zeros and one for all NaNs, so that what is equal hashes alike and every object equals its
// copy.
inline std::uint64_t CanonicalBits(double value) noexcept
{
    if (value == 0.0)
        return 0;
    return std::bit_cast<std::uint64_t>(std::isnan(value) ? std::numeric_limits<double>::quiet_NaN() : value);
}

template <class Coordinate>
bool SamePlace(Coordinate const & a, Coordinate const & b) noexcept
{
    return CanonicalBits(a.First()) == CanonicalBits(b.First()) &&
           CanonicalBits(a.Second()) == CanonicalBits(b.Second());
}

template <class Element>
bool SameContent(ResourceVector<Element> const & a, ResourceVector<Element> const & b) noexcept
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if constexpr (requires { a[i].First(); }) {
            if (!SamePlace(a[i], b[i]))
                return false;
        } else if (!SameContent(a[i], b[i])) {
            return false;
        }
    }
    return true;
}

template <class Coordinate>
bool SameShapes(Shapes<Coordinate> const & a, Shapes<Coordinate> const & b) noexcept
{
    return a.structure == b.structure && SameContent(a.points, b.points) && SameContent(a.lineStrings, b.lineStrings) &&
           SameContent(a.polygons, b.polygons);
}

// A hash over words of any number, in little memory.
class WordHash
{
public:
    explicit WordHash(std::uint64_t seed) noexcept : m_low(seed), m_high(0) {}

    void Add(std::uint64_t word) noexcept
    {
        m_words[m_count++] = word;
        if (m_count == kWords)
            Fold();
    }
    std::uint64_t Finish() noexcept
    {
        Fold();
        return m_low;
    }

private:
    static constexpr std::size_t kWords = 64;

    void Fold() noexcept
    {
        auto const [low, high] = THash128(m_words, m_count * sizeof m_words[0], m_low, m_high);
        m_low = low;
        m_high = high;
        m_count = 0;
    }

    std::uint64_t m_words[kWords];
    std::size_t m_count = 0;
    std::uint64_t m_low;
    std::uint64_t m_high;
};

template <class Element>
void AddContent(WordHash & hash, ResourceVector<Element> const & list) noexcept
{
    hash.Add(list.size());
    for (auto const & element : list) {
        if constexpr (requires { element.First(); }) {
            hash.Add(CanonicalBits(element.First()));
            hash.Add(CanonicalBits(element.Second()));
        } else {
            AddContent(hash, element);
        }
    }
}

// `kind` keeps geometries and geographies apart.
template <class Coordinate>
std::uint64_t HashOfShapes(Shapes<Coordinate> const & shapes, std::uint64_t kind) noexcept
{
    WordHash hash(kind);
    hash.Add(shapes.structure.size());
    for (ShapeNode const & node : shapes.structure)
        hash.Add(static_cast<std::uint64_t>(node.kind) << 32 | node.count);
    AddContent(hash, shapes.points);
    AddContent(hash, shapes.lineStrings);
    AddContent(hash, shapes.polygons);
    return hash.Finish();
}

}  // namespace velgeo::detail
