#pragma once

#include <memory>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/DateEnums.h"
#include "velcoreplatform/TString.h"

class TCalendar;
class TParsePosition;

namespace VelICU_V2 {
class ICULocale;
}

/// Dates and times to text and back by a pattern in ICU's letters, "yyyy-MM-dd HH:mm:ss.SSS", in UTC.
///
/// Building one is costly and applyPattern is not, so one object may be kept and used again. A TDate is a moment in
/// milliseconds since 1970-01-01 00:00:00 UTC. The calendar is Gregorian unless the locale names another. Parsing is
/// lenient, as ICU's is by default: "2020/1/2" fits "yyyy-MM-dd".
///
/// Belongs to one thread at a time. A failure of ICU raises the logic assertion "VelICU::ICU_SUCCESS(status)" with the
/// error that each operation names. An ill-formed pattern is accepted and raises when it is used.
class VELCOREDATA_API TDateTimeFormat
{
public:
    class Impl;

    /// In the default locale. Raises LogicException_LogicAssert_0x01400087.
    explicit TDateTimeFormat(TString const & pattern);
    /// Raises LogicException_LogicAssert_0x32806D6C.
    TDateTimeFormat(TString const & pattern, VelICU_V2::ICULocale const & locale);
    TDateTimeFormat(TDateTimeFormat const & other);
    ~TDateTimeFormat();
    TDateTimeFormat & operator=(TDateTimeFormat const &) = delete;

    void applyPattern(TString const & pattern);

    /// The moment of a calendar, told in that calendar's fields. Raises LogicException_LogicAssert_0xED505CF2.
    TString format(TCalendar & calendar) const;
    /// Raises LogicException_LogicAssert_0xE2672305.
    TString format(double tdate) const;

    /// The moment that a text tells, for text that is known to fit: any other raises
    /// LogicException_LogicAssert_0x19ED868B. What follows the date is ignored.
    double parse(TString const & text) const;
    /// The form that fails quietly: fills the calendar, and the position tells how far it came and where it failed.
    void parse(TString const & text, TCalendar & calendar, TParsePosition & position) const;

    /// The first moment of the 100 years into which "yy" puts a year of two digits. Raises
    /// LogicException_LogicAssert_0xA6426598.
    void set2DigitYearStart(double tdate);
    /// Cuts the marks of the day's halves to one character, turns them to lower case, or both: (true, false) makes "PM"
    /// "P".
    void editAmPmStrings(bool shortForm, bool lowerCase);

    /// A calendar of the format's own kind; a copy.
    std::unique_ptr<TCalendar> getCalendar();
    /// Of the format's own calendar. A format always has one, so no error is looked for.
    SOWValue getFirstDayOfWeek();
    void setFirstDayOfWeek(SOWValue day);
    void setMinimalDaysInFirstWeek(unsigned char days);

private:
    std::unique_ptr<Impl> m_impl;
};
