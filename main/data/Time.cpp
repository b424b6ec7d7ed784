#include "velcoredata/data/Time.h"

#include <cmath>
#include <iomanip>
#include <limits>
#include <ostream>

#include "main/data/DateTimeErrors.h"
#include "velsys/Arithmetic.h"
#include "velsys/ThrowSite.h"

namespace {

bool AreParts(unsigned hour, unsigned minute, unsigned second, unsigned micro)
{
    return hour < 24 && minute < 60 && second < 60 && micro < 1000001;
}

unsigned long long Compose(unsigned long long hour, unsigned minute, unsigned second, unsigned micro)
{
    return ((hour * 60 + minute) * 60 + second) * 1000000 + micro;
}

}  // namespace

Time::Time(unsigned hour, unsigned minute, unsigned second, unsigned micro)
    : m_micros(Compose(hour, minute, second, micro))
{
    if (!AreParts(hour, minute, second, micro))
        VELTRIA_THROW(VeltriaException, 0x5A975297, detail::InvalidDateTimeText());
}

Time::Time(unsigned hour, unsigned minute, unsigned second, double fraction) : m_micros(0)
{
    auto const micro = static_cast<unsigned>(detail::RealToInt64(fraction * 1e6 + 0.5));
    if (!AreParts(hour, minute, second, micro))
        VELTRIA_THROW(VeltriaException, 0x22D59FE2, detail::InvalidDateTimeText());
    m_micros = Compose(hour, minute, second, micro);
}

bool Time::IsFractionRounded(double fraction)
{
    if (fraction < 0.0 || fraction >= 1.0)
        VELTRIA_THROW(VeltriaException, 0xBE17C602, detail::InvalidDateTimeText());
    return std::fmod(fraction * 1e6, 1.0) > std::numeric_limits<double>::epsilon();
}

std::ostream & operator<<(std::ostream & stream, Time const & time)
{
    char const fill = stream.fill('0');
    stream << unsigned{time.GetHour()} << ':' << std::setw(2) << unsigned{time.GetMinute()} << ':' << std::setw(2)
           << unsigned{time.GetSecond()} << '.' << std::setw(6) << time.GetMicrosecond();
    stream.fill(fill);
    return stream;
}
