#pragma once

#include <memory>

#include "velicu/ErrorCode.h"
#include "velicu/ICULocale.h"

namespace VelICU_V2 {

// Fields of a calendar by this layer's numbers.
enum ICUCalendarDateFields : int
{
    ICUFieldYear = 0,         // of the era
    ICUFieldMonth = 1,        // from 0
    ICUFieldDayOfMonth = 2,   // from 1
    ICUFieldHourOfDay = 3,    // 0 to 23
    ICUFieldMinute = 4,       // 0 to 59
    ICUFieldSecond = 5,       // 0 to 59
    ICUFieldMillisecond = 6,  // 0 to 999
    ICUFieldDayOfWeek = 7,    // 1 = Sunday
    ICUFieldWeekOfYear = 8,   // from 1, by the first day of the week and the minimal days
    ICUFieldWeekYear = 9,     // the year that the week belongs to
    ICUFieldDayOfYear = 10,   // from 1
};

using ICUClassID = void const *;

// A calendar: a moment, its fields, and the rules between them. Every calendar here runs in UTC, so that no local time
// gap moves a value. Months count from 0, days of the week from 1 = Sunday. A new calendar stands at the present moment
// and is lenient: fields out of range carry over. Belongs to one thread at a time.
//
// Which calendar: without the keyword "calendar" every locale has the Gregorian one, carried back without the Julian
// gap of 1582; with it the one that is named ("th_TH@calendar=buddhist"). The locale settles the first day of the week
// and the minimal days in the first week.
class VELICU_API ICUCalendar
{
public:
    struct Native;  // ICU's calendar, known to this layer's sources

    // For the default locale, or for a given one. Null on failure.
    static std::unique_ptr<ICUCalendar> createInstance(ICUErrorCode & status);
    static std::unique_ptr<ICUCalendar> createInstance(ICULocale const & locale, ICUErrorCode & status);

    virtual ~ICUCalendar();
    std::unique_ptr<ICUCalendar> clone() const;

    // Forgets all fields, and the zone that a text was read in: getTime then gives 1970-01-01 00:00:00.
    void clear() noexcept;
    // Fields that are not given stay as they are. Unknown field numbers change nothing.
    void set(int year, int month, int day) noexcept;
    void set(int year, int month, int day, int hour, int minute, int second) noexcept;
    void set(ICUCalendarDateFields field, int value) noexcept;

    // Milliseconds since 1970-01-01 00:00:00 UTC. Fails where a calendar that is not lenient holds an impossible field.
    double getTime(ICUErrorCode & status) const noexcept;
    void setTime(double milliseconds, ICUErrorCode & status) noexcept;
    // 0 and U_ILLEGAL_ARGUMENT_ERROR for an unknown field.
    int get(ICUCalendarDateFields field, ICUErrorCode & status) const noexcept;

    // 1 = Sunday to 7; other values are ignored by the setter.
    int getFirstDayOfWeek(ICUErrorCode & status) const noexcept;
    void setFirstDayOfWeek(int day) noexcept;
    // 1 to 7; values outside count as the nearer end.
    void setMinimalDaysInFirstWeek(unsigned char days) noexcept;
    unsigned char getMinimalDaysInFirstWeek() const noexcept;
    void setLenient(bool lenient) noexcept;
    bool isLenient() const noexcept;

    // Tells Gregorian calendars from others: compare with ICUGregorianCalendar::getStaticClassID().
    ICUClassID getDynamicClassID() const noexcept;

    // Sets the calendar so that its formats print the parts of a fiscal date in the places of the calendar's own: the
    // year field reads `year`, the quarter `quarter`, and, as far as the quarter reaches, the week of the year `week`.
    // The moment is midnight of the first day of that week, or the nearest day inside the quarter if the week begins
    // outside it. Example: weeks from Sunday, (2013, 2, 14) gives 2013-04-01, for week 14 begins on 31 March, a day
    // before the quarter.
    void setFiscal(int year, int quarter, int week) noexcept;

    // Brings week and year together: if the week that the moment stands in belongs to another year, moves the moment to
    // the nearest day of that year, so that year and week of year name one week. The time of day stays. Example: weeks
    // from Monday with 4 minimal days, 2019-12-30 (week 1 of 2020) becomes 2020-01-01; 2021-01-01 (week 53 of 2020)
    // becomes 2020-12-31.
    void WeekToYearScope() noexcept;

    explicit ICUCalendar(std::unique_ptr<Native> native);
    Native & GetNative() const noexcept { return *m_native; }

private:
    std::unique_ptr<Native> m_native;
};

// A calendar that is Gregorian whatever the locale says.
class VELICU_API ICUGregorianCalendar : public ICUCalendar
{
public:
    // Null on failure.
    static std::unique_ptr<ICUGregorianCalendar> createInstance(ICUErrorCode & status);
    static std::unique_ptr<ICUGregorianCalendar> createInstance(ICULocale const & locale, ICUErrorCode & status);

    static ICUClassID getStaticClassID() noexcept;

    using ICUCalendar::ICUCalendar;
    ~ICUGregorianCalendar() override;
};

}  // namespace VelICU_V2
