// ThrowCounter: counts the exceptions that are made in the process while the object lives, caught ones too, whoever
// throws them. A test program that uses it lists tests/support/ThrowCounter.cpp among its sources; that file stands
// before the C++ run time's allocation of exceptions.
//
//   ThrowCounter const throws;
//   ReadOrNothing(text);
//   EXPECT_EQ(throws.Count(), 0u);
#pragma once

#include <cstddef>

class ThrowCounter
{
public:
    ThrowCounter() noexcept;
    ThrowCounter(ThrowCounter const &) = delete;
    ThrowCounter & operator=(ThrowCounter const &) = delete;

    std::size_t Count() const noexcept;

private:
    std::size_t m_before;
};
