#include "velcoredata/data/StringWithCollation.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

StringWithCollation::StringWithCollation(TString const & text, Collation const & collation)
    : m_hash(0), m_string(text), m_collation(collation)
{}

StringWithCollation::StringWithCollation(StringWithCollation const & other)
    : RefCntObject(other),
      m_hash(other.m_hash.load(std::memory_order_relaxed)),
      m_string(other.m_string),
      m_collation(other.m_collation)
{}

StringWithCollation::StringWithCollation(StringWithCollation && other)
    : RefCntObject(other),
      m_hash(other.m_hash.exchange(0, std::memory_order_relaxed)),
      m_string(std::move(other.m_string)),
      m_collation(other.m_collation)
{}

StringWithCollation & StringWithCollation::operator=(StringWithCollation const & other)
{
    if (this != &other) {
        m_string = other.m_string;
        m_collation = other.m_collation;
        m_hash.store(other.m_hash.load());
    }
    return *this;
}

StringWithCollation & StringWithCollation::operator=(StringWithCollation && other)
{
    if (this != &other) {
        m_string = std::move(other.m_string);
        m_collation = other.m_collation;
        m_hash.store(other.m_hash.exchange(0));
    }
    return *this;
}

StringWithCollation::~StringWithCollation() = default;

unsigned StringWithCollation::ComputeHash() const
{
    unsigned const hash = m_collation.Hash(m_string);
    m_hash.exchange(hash);
    return hash;
}

namespace {

// The calling thread's collator. One address is one pool, so that equal addresses are equivalent collations.
Collator const & CollatorOf(StringWithCollation const & text)
{
    return *text.GetCollation().GetCollator();
}

Collator const & Binary()
{
    static Collator const & s_binary = *GetBinaryCollation().GetCollator();
    return s_binary;
}

constexpr bool HasZeroUnit(std::uint64_t fourUnits)
{
    return ((fourUnits - 0x0001000100010001u) & ~fourUnits & 0x8000800080008000u) != 0;
}

// The comparison of the binary collator on terminated texts, four code units at a time since the lengths are known.
int CompareUnits(std::u16string_view a, std::u16string_view b)
{
    std::size_t const common = std::min(a.size(), b.size());
    std::size_t i = 0;
    for (; i + 4 <= common; i += 4) {
        std::uint64_t x;
        std::uint64_t y;
        std::memcpy(&x, a.data() + i, sizeof x);
        std::memcpy(&y, b.data() + i, sizeof y);
        if (x != y)
            break;
        if (HasZeroUnit(x))
            return 0;
    }
    for (;; ++i) {
        char16_t const x = i < a.size() ? a[i] : u'\0';
        char16_t const y = i < b.size() ? b[i] : u'\0';
        if (x != y)
            return x < y ? -1 : 1;
        if (x == u'\0')
            return 0;
    }
}

}  // namespace

bool operator==(StringWithCollation const & a, StringWithCollation const & b)
{
    if (a.HasHash() && b.HasHash() && a.GetHash() != b.GetHash())
        return false;
    Collator const & collator = CollatorOf(a);
    if (&collator != &CollatorOf(b) && !a.GetCollation().IsEquivalent(b.GetCollation()))
        return false;
    if (&collator == &Binary())
        return CompareUnits(a.GetString().View(), b.GetString().View()) == 0;
    return collator.Compare(a.GetString(), b.GetString()) == 0;
}

bool operator<(StringWithCollation const & a, StringWithCollation const & b)
{
    Collator const & collator = CollatorOf(a);
    if (&collator != &CollatorOf(b) && !Equivalent(a.GetCollation(), b.GetCollation()))
        return a.GetCollation() < b.GetCollation();
    if (&collator == &Binary())
        return CompareUnits(a.GetString().View(), b.GetString().View()) < 0;
    return collator.Compare(a.GetString(), b.GetString()) < 0;
}
