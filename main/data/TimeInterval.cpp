// The members of Time that need Interval, which stands above it.

#include "velcoredata/data/Interval.h"
#include "velcoredata/data/Time.h"
#include "velsys/Arithmetic.h"

Time::operator Interval() const noexcept
{
    return Interval(static_cast<long long>(m_micros));
}

Interval Time::operator-(Time const & other) const noexcept
{
    return Interval(static_cast<long long>(m_micros - other.m_micros));
}

void Time::MoveForward(unsigned long long micros) noexcept
{
    m_micros = (m_micros + micros) % MicrosecondsPerDay;
}

void Time::MoveBack(unsigned long long micros) noexcept
{
    m_micros = m_micros > micros ? m_micros - micros : m_micros - micros + MicrosecondsPerDay;
}

Time Time::operator+=(Interval interval) noexcept
{
    long long const part = interval.GetTimePart();
    if (part < 0)
        MoveBack(detail::Magnitude(part));
    else
        MoveForward(detail::Magnitude(part));
    return *this;
}

Time Time::operator-=(Interval interval) noexcept
{
    long long const part = interval.GetTimePart();
    if (part >= 1)
        MoveBack(detail::Magnitude(part));
    else
        MoveForward(detail::Magnitude(part));
    return *this;
}

Time Time::operator+(Interval interval) const noexcept
{
    return Time(*this) += interval;
}

Time Time::operator-(Interval interval) const noexcept
{
    return Time(*this) -= interval;
}
