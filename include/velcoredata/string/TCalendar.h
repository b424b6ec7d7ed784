#pragma once

#include <cstdint>
#include <memory>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DateEnums.h"

/// A calendar that takes fields and gives a moment, or the other way round, without showing ICU. It runs in UTC on the
/// proleptic Gregorian calendar, unless it comes from a format whose locale names another calendar. Lenient: month 12
/// is January of the next year.
///
///     TCalendar calendar;
///     calendar.clear();                // holds mutable state: clear it before it is used again
///     calendar.set(2020, 0, 31);       // 31 January, months count from 0
///     calendar.getTime();              // 1580428800000.0, milliseconds since 1970-01-01 00:00:00 UTC (a TDate)
///
/// Belongs to one thread at a time. A failure of ICU raises the logic assertion "VelICU::ICU_SUCCESS(status)" with the
/// error that each operation names.
class VELCOREDATA_API TCalendar
{
public:
    class Impl;

    enum TCalendarDateFields : std::int32_t
    {
        Year = 0,
        Month = 1,  ///< from 0
        DayOfMonth = 2,
    };

    /// A calendar of the default locale at the present moment. Raises LogicException_LogicAssert_0xAA8CD228.
    TCalendar();
    /// Takes the object over.
    explicit TCalendar(Impl * impl);
    ~TCalendar();
    TCalendar(TCalendar const &) = delete;
    TCalendar & operator=(TCalendar const &) = delete;

    /// Forgets all fields. Every 100,000 calls the next one also throws the calendar away for a new one of the default
    /// locale: a calendar that came from a format is an ordinary one from then on.
    void clear();

    /// The field; `ok` tells whether the calendar could answer. A number that is none of the three raises the logic
    /// assertion "false" (LogicException_LogicAssert_0x64F53280).
    int get(TCalendarDateFields field, bool & ok) const;
    /// The time of day stays; the month counts from 0.
    void set(int year, int month, int day);

    /// Milliseconds since 1970-01-01 00:00:00 UTC. Raises LogicException_LogicAssert_0x24915168.
    double getTime() const;

    /// Raises LogicException_LogicAssert_0x8AA125B8.
    SOWValue getFirstDayOfWeek();
    void setFirstDayOfWeek(SOWValue day);
    /// Week 1 of a year is the first that lies in it with so many days, 1 to 7.
    void setMinimalDaysInFirstWeek(unsigned char days);

    Impl & getImpl() { return *m_impl; }

private:
    std::int32_t m_clearCount = 0;
    std::unique_ptr<Impl> m_impl;
};
