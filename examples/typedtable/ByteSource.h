// ByteSource: where a CSV reader gets its bytes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace typedtable {

/// A sequence of bytes, read once from front to back. One thread at a time.
class ByteSource
{
public:
    virtual ~ByteSource() = default;

    /// Fills at most `size` bytes (size > 0) and returns how many; 0 at the end, then and ever after. Throws UserError
    /// when reading fails.
    virtual std::size_t Read(char * bytes, std::size_t size) = 0;
};

/// Text that stands in memory; the caller keeps it alive.
class MemoryBytes : public ByteSource
{
public:
    explicit MemoryBytes(std::string_view text) : m_rest(text) {}

    std::size_t Read(char * bytes, std::size_t size) override
    {
        std::size_t const count = std::min(size, m_rest.size());
        if (count != 0)
            std::memcpy(bytes, m_rest.data(), count);
        m_rest.remove_prefix(count);
        return count;
    }

private:
    std::string_view m_rest;
};

}  // namespace typedtable
