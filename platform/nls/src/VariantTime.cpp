#include "velnls/VariantTime.h"

#include <chrono>
#include <cmath>

bool VariantTimeToSystemTime(double date, SYSTEMTIME & out)
{
    using namespace std::chrono;
    constexpr double firstDay = -657434;  // 0100-01-01
    constexpr double lastDay = 2958465;   // 9999-12-31
    if (!(date > firstDay - 1 && date < lastDay + 1))
        return false;

    double const wholeDays = std::trunc(date);
    auto second = static_cast<int>(std::floor(std::fabs(date - wholeDays) * 86400.0 + 0.5));
    auto dayCount = static_cast<int>(wholeDays);
    if (second == 86400) {
        second = 0;
        ++dayCount;
    }
    if (dayCount > lastDay)
        return false;

    sys_days const day = sys_days{year{1899} / 12 / 30} + days{dayCount};
    year_month_day const parts{day};
    auto const narrow = [](auto part) { return static_cast<std::uint16_t>(part); };
    out = {narrow(static_cast<int>(parts.year())),
           narrow(static_cast<unsigned>(parts.month())),
           narrow(weekday{day}.c_encoding()),
           narrow(static_cast<unsigned>(parts.day())),
           narrow(second / 3600),
           narrow(second / 60 % 60),
           narrow(second % 60),
           0};
    return true;
}
