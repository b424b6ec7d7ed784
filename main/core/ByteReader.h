// Big-endian numbers of a byte range, each read checked against its end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace detail {

class ByteReader
{
public:
    ByteReader(unsigned char const * bytes, std::size_t size) noexcept : m_bytes(bytes), m_size(size) {}

    std::size_t Size() const noexcept { return m_size; }
    unsigned char const * Bytes() const noexcept { return m_bytes; }
    bool Has(std::size_t at, std::size_t count) const noexcept { return at <= m_size && count <= m_size - at; }

    // Nothing if the number does not lie inside the range whole.
    std::optional<std::uint32_t> U8(std::size_t at) const noexcept { return Number(at, 1); }
    std::optional<std::uint32_t> U16(std::size_t at) const noexcept { return Number(at, 2); }
    std::optional<std::uint32_t> U32(std::size_t at) const noexcept { return Number(at, 4); }

private:
    std::optional<std::uint32_t> Number(std::size_t at, std::size_t count) const noexcept
    {
        if (!Has(at, count))
            return std::nullopt;
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < count; ++i)
            number = number << 8 | m_bytes[at + i];
        return number;
    }

    unsigned char const * m_bytes;
    std::size_t m_size;
};

}  // namespace detail
