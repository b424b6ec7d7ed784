// A bound on what one operation of a recursive matcher may take of the thread's stack and of time, and the iterator
// that enforces it. Xpressive has no limits of its own: (ab)* takes a stack frame per repetition, and (a+)+$ takes time
// exponential in the text.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <iterator>

namespace detail {

enum class MatchLimit
{
    Stack,
    Steps
};

// Throws the engine's own exception.
[[noreturn]] void ThrowMatchLimit(MatchLimit limit);

// The lowest address that the calling thread's stack may reach, with a reserve for what is called from there.
char const * LowestStackAddress();

class MatchGuard
{
public:
    explicit MatchGuard(std::size_t textLength)
        : m_lowest(LowestStackAddress()), m_steps(20'000'000 + 64 * static_cast<std::int64_t>(textLength))
    {}
    MatchGuard(MatchGuard const &) = delete;
    MatchGuard & operator=(MatchGuard const &) = delete;

    void Step()
    {
        if (--m_steps < 0) [[unlikely]]
            ThrowMatchLimit(MatchLimit::Steps);
        if (static_cast<char const *>(__builtin_frame_address(0)) < m_lowest) [[unlikely]]
            ThrowMatchLimit(MatchLimit::Stack);
    }

private:
    char const * m_lowest;
    std::int64_t m_steps;
};

// A pointer into the text that counts a step whenever it moves or is compared: a matcher can neither loop nor recurse
// without doing one of the two.
class GuardedIterator
{
public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = char16_t;
    using difference_type = std::ptrdiff_t;
    using pointer = char16_t const *;
    using reference = char16_t const &;

    GuardedIterator() = default;
    GuardedIterator(char16_t const * position, MatchGuard & guard) : m_position(position), m_guard(&guard) {}

    char16_t const * Position() const noexcept { return m_position; }

    reference operator*() const noexcept { return *m_position; }
    reference operator[](difference_type n) const noexcept { return m_position[n]; }
    GuardedIterator & operator++()
    {
        Step();
        ++m_position;
        return *this;
    }
    GuardedIterator & operator--()
    {
        Step();
        --m_position;
        return *this;
    }
    GuardedIterator operator++(int)
    {
        GuardedIterator const before = *this;
        ++*this;
        return before;
    }
    GuardedIterator operator--(int)
    {
        GuardedIterator const before = *this;
        --*this;
        return before;
    }
    GuardedIterator & operator+=(difference_type n)
    {
        Step();
        m_position += n;
        return *this;
    }
    GuardedIterator & operator-=(difference_type n) { return *this += -n; }
    friend GuardedIterator operator+(GuardedIterator i, difference_type n) { return i += n; }
    friend GuardedIterator operator+(difference_type n, GuardedIterator i) { return i += n; }
    friend GuardedIterator operator-(GuardedIterator i, difference_type n) { return i -= n; }
    friend difference_type operator-(GuardedIterator const & a, GuardedIterator const & b) noexcept
    {
        return a.m_position - b.m_position;
    }
    friend bool operator==(GuardedIterator const & a, GuardedIterator const & b)
    {
        a.Step();
        return a.m_position == b.m_position;
    }
    friend auto operator<=>(GuardedIterator const & a, GuardedIterator const & b)
    {
        a.Step();
        return a.m_position <=> b.m_position;
    }

private:
    void Step() const
    {
        if (m_guard != nullptr)
            m_guard->Step();
    }

    char16_t const * m_position = nullptr;
    MatchGuard * m_guard = nullptr;
};

}  // namespace detail
