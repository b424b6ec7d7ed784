#include "velcoredata/data/Interval.h"

#include <cmath>
#include <limits>
#include <ostream>

#include "main/data/DateTimeErrors.h"
#include "velsys/ThrowSite.h"

namespace {

long long Compose(long long days, long long hours, long long minutes, long long seconds, double fraction) noexcept
{
    using detail::WrapAdd, detail::WrapMul;
    long long const micros = fraction < 0.0 ? detail::WrapNeg(detail::RealToInt64(0.5 - fraction * 1e6))
                                            : detail::RealToInt64(fraction * 1e6 + 0.5);
    long long sum = WrapAdd(hours, WrapMul(days, 24LL));
    sum = WrapAdd(WrapMul(sum, 60LL), minutes);
    sum = WrapAdd(WrapMul(sum, 60LL), seconds);
    return WrapAdd(WrapMul(sum, 1000000LL), micros);
}

}  // namespace

Interval::Interval(int days, long long hours, long long minutes, long long seconds, double fraction) noexcept
    : m_micros(Compose(days, hours, minutes, seconds, fraction))
{}

void Interval::SetDateTimeSpan(int days, long long hours, long long minutes, long long seconds,
                               double fraction) noexcept
{
    m_micros = Compose(days, hours, minutes, seconds, fraction);
}

Interval Interval::operator*(double factor) const noexcept
{
    return detail::RealToInt64(static_cast<double>(m_micros) * factor);
}

Interval Interval::operator/(double divisor) const noexcept
{
    return detail::RealToInt64(static_cast<double>(m_micros) / divisor + 0.5);
}

Interval Interval::operator-(Time time) const
{
    auto const count = static_cast<long long>(time.GetRepresentation());
    long long const lowest = detail::WrapAdd(count, std::numeric_limits<long long>::min() + 1);
    if (m_micros < 0 && m_micros < lowest)
        VELTRIA_THROW(VeltriaException, 0x9370C2A6, TString(u"Output out of range for Interval Type"));
    return detail::WrapSub(m_micros, count);
}

bool Interval::IsFractionRounded(double fraction)
{
    if (fraction < 0.0 || fraction >= 1.0)
        VELTRIA_THROW(VeltriaException, 0x40C02767, detail::InvalidDateTimeText());
    return std::fmod(fraction * 1e6, 1.0) > std::numeric_limits<double>::epsilon();
}

std::ostream & operator<<(std::ostream & stream, Interval const & interval)
{
    return stream << interval.GetRepresentation() << "us";
}
