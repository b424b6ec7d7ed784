#include "main/core/DateTextTry.h"

#include "velcoredata/data/DateTime.h"
#include "velicu/ICUCalendar.h"
#include "velicu/ICUDateFormat.h"
#include "velsys/ThrowSite.h"

using VelICU::ICUCalendar;

namespace {

void Preset(ICUCalendar & calendar, DateTime const & reference)
{
    calendar.clear();
    if (reference.IsValid()) {
        DateTime::YearMonthDay const civil = reference.GetYearMonthDay();
        calendar.set(civil.year, civil.month - 1, civil.day);
    } else
        calendar.set(1899, 11, 30);
}

int WholeYear(int year)
{
    if (year < 30)
        return year + 2000;
    return year < 100 ? year + 1900 : year;
}

bool ReadFields(ICUCalendar const & calendar, DateTimeParseOptions options, DateTime & out)
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
    if ((options & ParseDateOnly) != 0) {
        VelICU::ICUErrorCode success = VelICU::U_ZERO_ERROR;
        year = calendar.get(VelICU::ICUFieldYear, success);
        month = calendar.get(VelICU::ICUFieldMonth, success);
        day = calendar.get(VelICU::ICUFieldDayOfMonth, success);
        if (VelICU::ICU_FAILURE(success))
            return false;
        year = WholeYear(year);
    }
    if ((options & ParseTimeOnly) != 0) {
        VelICU::ICUErrorCode success = VelICU::U_ZERO_ERROR;
        hour = calendar.get(VelICU::ICUFieldHourOfDay, success);
        if (VelICU::ICU_FAILURE(success))
            return false;
        minute = calendar.get(VelICU::ICUFieldMinute, success);
        VELTRIA_ASSERT(VelICU::ICU_SUCCESS(success), 0xC71ECD6B);
        second = calendar.get(VelICU::ICUFieldSecond, success);
        VELTRIA_ASSERT(VelICU::ICU_SUCCESS(success), 0x71D7BADA);
        millisecond = calendar.get(VelICU::ICUFieldMillisecond, success);
        VELTRIA_ASSERT(VelICU::ICU_SUCCESS(success), 0xC8790510);
    }
    try {
        DateTime value;
        value.SetDateTime(year, month + 1, day, hour, minute, second, millisecond / 1000.0);
        out = value;
        return true;
    } catch (VeltriaException const &) {
        return false;
    }
}

}  // namespace

bool detail::TryDateText(VelICU::ICUDateFormat const & formatter, ICUCalendar & calendar, TString const & text,
                         DateTimeParseOptions options, DateTime const & reference, DateTime & out)
{
    Preset(calendar, reference);
    auto const position = VelICU::ICUParsePosition::createInstance();
    formatter.parse(text, calendar, *position);
    if (position->getErrorIndex() != -1 || position->getIndex() != text.length())
        return false;
    return ReadFields(calendar, options, out);
}
