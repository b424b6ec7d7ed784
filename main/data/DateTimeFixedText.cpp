#include "main/data/DateTimeFixedText.h"

#include "velcoredata/data/DateTime.h"
#include "velcoreplatform/TFormatString.h"

TString detail::FormatFixed(DateTime const & value)
{
    DateTime::YearMonthDay const civil = value.GetYearMonthDay();
    return TFormatString(u"%1-%2-%3T%4:%5:%6.%7")
        .arg(civil.year)
        .arg(civil.month, 2, 10, u'0')
        .arg(civil.day, 2, 10, u'0')
        .arg(value.GetHour(), 2, 10, u'0')
        .arg(value.GetMinute(), 2, 10, u'0')
        .arg(value.GetSecond(), 2, 10, u'0')
        .arg(value.GetMilliseconds(), 3, 10, u'0');
}
