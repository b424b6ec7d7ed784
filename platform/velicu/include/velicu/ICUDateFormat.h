#pragma once

#include <memory>

#include "velicu/ErrorCode.h"
#include "velicu/ICUCalendar.h"

namespace VelICU_V2 {

// How far a parse came. Made fresh for each parse.
class VELICU_API ICUParsePosition
{
public:
    struct Native;

    // Index 0, no error.
    static std::unique_ptr<ICUParsePosition> createInstance();
    ~ICUParsePosition();

    int getIndex() const noexcept;       // code units read
    int getErrorIndex() const noexcept;  // where it failed, -1 if it did not

    explicit ICUParsePosition(std::unique_ptr<Native> native);
    Native & GetNative() const noexcept { return *m_native; }

private:
    std::unique_ptr<Native> m_native;
};

// Which field a format is to report the place of; this one reports none.
class VELICU_API ICUFieldPosition
{
public:
    static std::unique_ptr<ICUFieldPosition> createInstance();
};

// A format of dates and times, in UTC and on the calendar that ICUCalendar tells of: Gregorian unless the locale names
// another. Parsing is lenient at first. Belongs to one thread at a time.
class VELICU_API ICUDateFormat
{
public:
    struct Native;

    enum ICUEStyle : int
    {
        kNone = -1,
        kFull = 0,
        kLong = 1,
        kMedium = 2,
        kShort = 3,
    };

    // Formats of a locale's own styles; kNone leaves the date or the time out. Null if ICU has none to give.
    static std::unique_ptr<ICUDateFormat> createDateInstance(ICUEStyle dateStyle, ICULocale const & locale);
    static std::unique_ptr<ICUDateFormat> createDateTimeInstance(ICUEStyle dateStyle, ICUEStyle timeStyle,
                                                                 ICULocale const & locale);

    virtual ~ICUDateFormat();
    virtual std::unique_ptr<ICUDateFormat> clone() const;

    // Text of a calendar's moment, by that calendar, or of milliseconds since 1970-01-01 UTC. Empty on failure.
    TString format(ICUCalendar & calendar, ICUErrorCode & status) const;
    TString format(double milliseconds, ICUErrorCode & status) const;
    TString format(ICUCalendar & calendar, ICUFieldPosition & position) const;

    // Two kinds of text are refused unread, at index 0: with a number of more than 300 digits, leading zeros apart;
    // and, by a pattern with fractions of a second, with 35 digits or more in two neighbouring numbers. Of the first
    // ICU makes zero in quadratic time, of the second a division by zero.

    // The start of the text as milliseconds; a text that does not fit is a failure, what follows the date is ignored.
    double parse(TString const & text, ICUErrorCode & status) const;
    // Fills the fields of the calendar; success and the end are told by the position alone.
    void parse(TString const & text, ICUCalendar & calendar, ICUParsePosition & position) const;

    void setLenient(bool lenient) noexcept;
    bool isLenient() const noexcept;
    // An ill-formed pattern is accepted; formatting with it fails.
    void applyPattern(TString const & pattern);
    TString toPattern() const;

    // How often the format was changed since it was made: by each setter, and by applyPattern.
    unsigned GetChanges() const noexcept { return m_changes; }

    // A copy of the format's calendar.
    std::unique_ptr<ICUCalendar> getCalendar() const;
    // Of the format's calendar. 1 = Sunday; values outside 1 to 7 are ignored.
    int getFirstDayOfWeek(ICUErrorCode & status) const noexcept;
    void setFirstDayOfWeek(int day) noexcept;
    void setMinimalDaysInFirstWeek(unsigned char days) noexcept;

    explicit ICUDateFormat(std::unique_ptr<Native> native);
    Native & GetNative() const noexcept { return *m_native; }

protected:
    void NoteChange() noexcept { ++m_changes; }

private:
    std::unique_ptr<Native> m_native;
    unsigned m_changes = 0;
};

// A format by a pattern in ICU's letters, "yyyy-MM-dd HH:mm:ss".
class VELICU_API ICUSimpleDateFormat : public ICUDateFormat
{
public:
    // For the default locale, or for a given one. On failure the object exists all the same and its operations fail.
    static std::unique_ptr<ICUSimpleDateFormat> createInstance(TString const & pattern, ICUErrorCode & status);
    static std::unique_ptr<ICUSimpleDateFormat> createInstance(TString const & pattern, ICULocale const & locale,
                                                               ICUErrorCode & status);

    std::unique_ptr<ICUDateFormat> clone() const override;
    std::unique_ptr<ICUSimpleDateFormat> cloneSimple() const;

    // The first moment of the 100 years into which "yy" puts a year of two digits.
    void set2DigitYearStart(double milliseconds, ICUErrorCode & status);
    double get2DigitYearStart(ICUErrorCode & status) const;

    // Edits the marks of the halves of the day, for formatting and parsing: with `shortForm` each is cut to its first
    // character, with `lowerCase` it is turned to lower case. (true, false) makes "AM" and "PM" "A" and "P".
    void editAmPmStrings(bool shortForm, bool lowerCase);

    using ICUDateFormat::ICUDateFormat;
    ~ICUSimpleDateFormat() override;
};

}  // namespace VelICU_V2
