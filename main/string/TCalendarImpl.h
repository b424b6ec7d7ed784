#pragma once

#include <memory>

#include "velcoredata/data/DateTime.h"
#include "velcoredata/string/TCalendar.h"
#include "velicu/ICUCalendar.h"
#include "velicu/ICUDateFormat.h"

class VELCOREDATA_API TCalendar::Impl
{
public:
    // A calendar of the default locale. Raises LogicException_LogicAssert_0xAA8CD228.
    Impl();
    // A copy of the format's calendar.
    explicit Impl(VelICU_V2::ICUSimpleDateFormat const & format);
    ~Impl();

    // Sets the moment of a date-time.
    //  - A calendar that is not Gregorian takes it as milliseconds, rounded to whole seconds as
    //    ICUUtils::ConvertToTDate(value, true) does; raises LogicException_LogicAssert_0xE21BB022.
    //  - A Gregorian one with a fiscal year that starts in January takes the parts; the fraction becomes whole
    //    milliseconds, rounded half up, so that 0.9996 s is 1000 milliseconds.
    //  - A Gregorian one with another fiscal start takes fiscal year, quarter and week in the places of its own (see
    //    ICUCalendar::setFiscal); raises LogicException_LogicAssert_0x16461F06.
    void set(DateTime value, FYSValues fiscalYearStart);

    // See ICUCalendar::WeekToYearScope.
    void WeekToYearScope();

    VelICU_V2::ICUCalendar & GetCalendar() { return *m_calendar; }

private:
    std::unique_ptr<VelICU_V2::ICUCalendar> m_calendar;
};
