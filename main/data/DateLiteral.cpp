#include "main/data/DateLiteral.h"

#include "velcoreplatform/TFormatString.h"

namespace {

TString Digits(int value, int width)
{
    return TString::number(value, width, 10, u'0');
}

}  // namespace

TString detail::DateLiteral(DateTime const & value)
{
    return TFormatString(u"%1-%2-%3")
        .arg(Digits(value.GetYear(), 4), Digits(value.GetMonth(), 2), Digits(value.GetDay(), 2));
}

TString detail::DateTimeLiteral(DateTime const & value)
{
    TString const clock =
        TFormatString(u" %1:%2:%3")
            .arg(Digits(value.GetHour(), 2), Digits(value.GetMinute(), 2), Digits(value.GetSecond(), 2));
    TString const text = DateLiteral(value) + clock;
    int const milliseconds = value.GetMilliseconds();
    return milliseconds > 0 ? text + u'.' + Digits(milliseconds, 3) : text;
}
