#include "velicu/ICUCalendar.h"

#include <unicode/gregocal.h>

#include <algorithm>

#include "NativeCalendar.h"
#include "NativeLocale.h"
#include "StatusScope.h"
#include "velicu/LocaleNames.h"

namespace VelICU_V2 {

namespace {

constexpr double MILLISECONDS_PER_DAY = 86400000.0;
// The first moment that ICU's calendars reach, in the year -5838270.
constexpr double FIRST_MOMENT = -184303902528000000.0;

// The change from the Julian calendar moved before all time: the Gregorian rules hold for every year.
void MakeProleptic(icu::Calendar & calendar, UErrorCode & status)
{
    if (auto * const gregorian = dynamic_cast<icu::GregorianCalendar *>(&calendar))
        gregorian->setGregorianChange(FIRST_MOMENT, status);
}

constexpr UCalendarDateFields NATIVE_FIELDS[] = {UCAL_YEAR,         UCAL_MONTH,    UCAL_DATE,        UCAL_HOUR_OF_DAY,
                                                 UCAL_MINUTE,       UCAL_SECOND,   UCAL_MILLISECOND, UCAL_DAY_OF_WEEK,
                                                 UCAL_WEEK_OF_YEAR, UCAL_YEAR_WOY, UCAL_DAY_OF_YEAR};

bool IsField(ICUCalendarDateFields field) noexcept
{
    return field >= ICUFieldYear && field <= ICUFieldDayOfYear;
}

std::unique_ptr<ICUCalendar::Native> Wrap(std::unique_ptr<icu::Calendar> calendar)
{
    return std::unique_ptr<ICUCalendar::Native>(new ICUCalendar::Native{std::move(calendar)});
}

icu::Locale DefaultLocale()
{
    return icu::Locale(t_uloc_getDefault());
}

std::unique_ptr<ICUCalendar> MakeCalendar(icu::Locale const & locale, ICUErrorCode & status)
{
    StatusScope scope(status);
    auto calendar = MakeNativeCalendar(locale, scope);
    return calendar == nullptr ? nullptr : std::make_unique<ICUCalendar>(Wrap(std::move(calendar)));
}

std::unique_ptr<ICUGregorianCalendar> MakeGregorian(icu::Locale locale, ICUErrorCode & status)
{
    StatusScope scope(status);
    if (scope.Failed())
        return nullptr;
    auto calendar = std::make_unique<icu::GregorianCalendar>(*icu::TimeZone::getGMT(), locale, scope);
    MakeProleptic(*calendar, scope);
    return scope.Failed() ? nullptr : std::make_unique<ICUGregorianCalendar>(Wrap(std::move(calendar)));
}

}  // namespace

std::unique_ptr<icu::Calendar> MakeNativeCalendar(icu::Locale const & locale, UErrorCode & status)
{
    if (U_FAILURE(status))
        return nullptr;
    std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), WithCalendar(locale), status));
    if (calendar != nullptr)
        MakeProleptic(*calendar, status);
    return U_FAILURE(status) ? nullptr : std::move(calendar);
}

ICUCalendar::ICUCalendar(std::unique_ptr<Native> native) : m_native(std::move(native)) {}

ICUCalendar::~ICUCalendar() = default;

std::unique_ptr<ICUCalendar> ICUCalendar::createInstance(ICUErrorCode & status)
{
    return MakeCalendar(DefaultLocale(), status);
}

std::unique_ptr<ICUCalendar> ICUCalendar::createInstance(ICULocale const & locale, ICUErrorCode & status)
{
    return MakeCalendar(locale.GetNative().locale, status);
}

std::unique_ptr<ICUCalendar> ICUCalendar::clone() const
{
    return std::make_unique<ICUCalendar>(Wrap(std::unique_ptr<icu::Calendar>(m_native->calendar->clone())));
}

void ICUCalendar::clear() noexcept
{
    m_native->calendar->clear();
    // Reading a text with a time zone puts the calendar into that zone.
    if (m_native->calendar->getTimeZone() != *icu::TimeZone::getGMT())
        m_native->calendar->setTimeZone(*icu::TimeZone::getGMT());
}

void ICUCalendar::set(int year, int month, int day) noexcept
{
    m_native->calendar->set(year, month, day);
}

void ICUCalendar::set(int year, int month, int day, int hour, int minute, int second) noexcept
{
    m_native->calendar->set(year, month, day, hour, minute, second);
}

void ICUCalendar::set(ICUCalendarDateFields field, int value) noexcept
{
    if (IsField(field))
        m_native->calendar->set(NATIVE_FIELDS[field], value);
}

double ICUCalendar::getTime(ICUErrorCode & status) const noexcept
{
    StatusScope scope(status);
    return m_native->calendar->getTime(scope);
}

void ICUCalendar::setTime(double milliseconds, ICUErrorCode & status) noexcept
{
    StatusScope scope(status);
    m_native->calendar->setTime(milliseconds, scope);
}

int ICUCalendar::get(ICUCalendarDateFields field, ICUErrorCode & status) const noexcept
{
    StatusScope scope(status);
    if (!IsField(field)) {
        scope.Fail(::U_ILLEGAL_ARGUMENT_ERROR);
        return 0;
    }
    return m_native->calendar->get(NATIVE_FIELDS[field], scope);
}

int ICUCalendar::getFirstDayOfWeek(ICUErrorCode & status) const noexcept
{
    StatusScope scope(status);
    return m_native->calendar->getFirstDayOfWeek(scope);
}

void ICUCalendar::setFirstDayOfWeek(int day) noexcept
{
    if (day >= UCAL_SUNDAY && day <= UCAL_SATURDAY)
        m_native->calendar->setFirstDayOfWeek(static_cast<UCalendarDaysOfWeek>(day));
}

void ICUCalendar::setMinimalDaysInFirstWeek(unsigned char days) noexcept
{
    m_native->calendar->setMinimalDaysInFirstWeek(static_cast<std::uint8_t>(std::clamp<int>(days, 1, 7)));
}

unsigned char ICUCalendar::getMinimalDaysInFirstWeek() const noexcept
{
    return m_native->calendar->getMinimalDaysInFirstWeek();
}

void ICUCalendar::setLenient(bool lenient) noexcept
{
    m_native->calendar->setLenient(lenient);
}

bool ICUCalendar::isLenient() const noexcept
{
    return m_native->calendar->isLenient();
}

ICUClassID ICUCalendar::getDynamicClassID() const noexcept
{
    return m_native->calendar->getDynamicClassID();
}

void ICUCalendar::setFiscal(int year, int quarter, int week) noexcept
{
    icu::Calendar & calendar = *m_native->calendar;
    bool const wasLenient = calendar.isLenient();
    calendar.setLenient(true);
    UErrorCode status = ::U_ZERO_ERROR;
    auto const startOfMonth = [&](int month) {
        calendar.clear();
        calendar.set(year, month, 1);
        return calendar.getTime(status);
    };
    int const firstMonth = 3 * (std::clamp(quarter, 1, 4) - 1);
    double const firstDay = startOfMonth(firstMonth);
    double const lastDay = startOfMonth(firstMonth + 3) - MILLISECONDS_PER_DAY;

    calendar.clear();
    calendar.set(UCAL_YEAR_WOY, year);
    calendar.set(UCAL_WEEK_OF_YEAR, std::clamp(week, 1, 54));
    calendar.set(UCAL_DAY_OF_WEEK, calendar.getFirstDayOfWeek(status));
    double const startOfWeek = calendar.getTime(status);
    calendar.setTime(std::max(firstDay, std::min(lastDay, startOfWeek)), status);
    calendar.setLenient(wasLenient);
}

void ICUCalendar::WeekToYearScope() noexcept
{
    icu::Calendar & calendar = *m_native->calendar;
    UErrorCode status = ::U_ZERO_ERROR;
    int const year = calendar.get(UCAL_EXTENDED_YEAR, status);
    int const weekYear = calendar.get(UCAL_YEAR_WOY, status);
    int const dayOfYear = calendar.get(UCAL_DAY_OF_YEAR, status);
    if (U_FAILURE(status) || weekYear == year)
        return;
    int const daysToMove =
        weekYear < year ? -dayOfYear : calendar.getActualMaximum(UCAL_DAY_OF_YEAR, status) + 1 - dayOfYear;
    calendar.add(UCAL_DATE, daysToMove, status);
}

ICUGregorianCalendar::~ICUGregorianCalendar() = default;

std::unique_ptr<ICUGregorianCalendar> ICUGregorianCalendar::createInstance(ICUErrorCode & status)
{
    return MakeGregorian(DefaultLocale(), status);
}

std::unique_ptr<ICUGregorianCalendar> ICUGregorianCalendar::createInstance(ICULocale const & locale,
                                                                           ICUErrorCode & status)
{
    return MakeGregorian(locale.GetNative().locale, status);
}

ICUClassID ICUGregorianCalendar::getStaticClassID() noexcept
{
    return icu::GregorianCalendar::getStaticClassID();
}

}  // namespace VelICU_V2
