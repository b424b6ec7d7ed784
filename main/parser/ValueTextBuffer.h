// The text of one value while it is written. Own code: a standard container tests its capacity for every code unit, and
// here it is tested once for each value.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include <QtCore/QString>

#include "velcoreplatform/TString.h"

namespace detail {

class ValueTextBuffer
{
public:
    ValueTextBuffer() = default;
    ValueTextBuffer(ValueTextBuffer const &) = delete;
    ValueTextBuffer & operator=(ValueTextBuffer const &) = delete;

    // Room for `count` code units behind the end. What was written before is out of reach afterwards.
    void Reserve(std::size_t count)
    {
        if (static_cast<std::size_t>(m_limit - m_end) < count) [[unlikely]]
            Grow(count);
    }

    // The end, for writing into the room behind it.
    char16_t * End() noexcept { return m_end; }
    void SetEnd(char16_t * end) noexcept { m_end = end; }
    // Within the room that was reserved.
    void PutReserved(char16_t c) noexcept { *m_end++ = c; }

    void Put(char16_t c)
    {
        Reserve(1);
        *m_end++ = c;
    }
    void Put(std::u16string_view text)
    {
        Reserve(text.size());
        m_end = std::copy(text.begin(), text.end(), m_end);
    }
    void Put(std::size_t count, char16_t c)
    {
        Reserve(count);
        m_end = std::fill_n(m_end, count, c);
    }

    TString Text() const
    {
        if (m_full.empty())
            return TString(m_start, static_cast<int>(m_end - m_start));
        QString text(static_cast<qsizetype>(m_fullSize) + (m_end - m_start), Qt::Uninitialized);
        CopyTo(reinterpret_cast<char16_t *>(text.data()));
        return TString(std::move(text));
    }

    void AppendTo(TString & out) const
    {
        if (m_full.empty())
            out.append(m_start, static_cast<int>(m_end - m_start));
        else
            out.append(Text());
    }

private:
    struct Block
    {
        std::unique_ptr<char16_t[]> units;
        std::size_t size;
    };

    // What is written stays where it is; the next block is twice as large.
    [[gnu::noinline]] void Grow(std::size_t count)
    {
        auto const size = static_cast<std::size_t>(m_end - m_start);
        std::size_t const next = std::max(2 * static_cast<std::size_t>(m_limit - m_start), count);
        auto units = std::make_unique_for_overwrite<char16_t[]>(next);
        m_full.push_back({std::move(m_block), size});
        m_fullSize += size;
        m_block = std::move(units);
        m_start = m_end = m_block.get();
        m_limit = m_start + next;
    }

    void CopyTo(char16_t * out) const
    {
        // The first one is that of this object.
        out = std::copy_n(m_first, m_full.front().size, out);
        for (std::size_t i = 1; i < m_full.size(); ++i)
            out = std::copy_n(m_full[i].units.get(), m_full[i].size, out);
        std::copy(m_start, m_end, out);
    }

    char16_t m_first[256];       // most values fit
    std::vector<Block> m_full;   // before the block that is written to
    std::size_t m_fullSize = 0;  // of these
    std::unique_ptr<char16_t[]> m_block;
    char16_t * m_start = m_first;
    char16_t * m_end = m_first;
    char16_t * m_limit = m_first + 256;
};

}  // namespace detail
