#include "velcoredata/string/TCalendar.h"

#include "main/string/TCalendarImpl.h"
#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/string/ICUUtils.h"
#include "velsys/ThrowSite.h"

namespace {

constexpr std::int32_t CLEARS_PER_CALENDAR = 100000;

}  // namespace

TCalendar::Impl::Impl()
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    m_calendar = VelICU::ICUCalendar::createInstance(status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0xAA8CD228);
}

TCalendar::Impl::Impl(VelICU_V2::ICUSimpleDateFormat const & format) : m_calendar(format.getCalendar()) {}

TCalendar::Impl::~Impl() = default;

void TCalendar::Impl::set(DateTime value, FYSValues fiscalYearStart)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    if (m_calendar->getDynamicClassID() != VelICU::ICUGregorianCalendar::getStaticClassID()) {
        m_calendar->setTime(ICUUtils::ConvertToTDate(value, true), status);
        VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0xE21BB022);
    } else if (fiscalYearStart == FYS_JANUARY) {
        DateTime::YearMonthDay const date = value.GetYearMonthDay();
        m_calendar->set(date.year, date.month - 1, date.day, value.GetHour(), value.GetMinute(), value.GetSecond());
        m_calendar->set(VelICU::ICUFieldMillisecond, static_cast<int>(value.GetFraction() * 1000.0 + 0.5));
    } else {
        int const firstDayOfWeek = m_calendar->getFirstDayOfWeek(status);
        VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0x16461F06);
        GregorianDateOptions const options(static_cast<SOWValue>(firstDayOfWeek), fiscalYearStart);
        m_calendar->setFiscal(value.GetFiscalYear(fiscalYearStart), value.GetFiscalQuarter(fiscalYearStart),
                              value.GetFiscalWeek(options));
    }
}

void TCalendar::Impl::WeekToYearScope()
{
    m_calendar->WeekToYearScope();
}

TCalendar::TCalendar() : TCalendar(new Impl()) {}

TCalendar::TCalendar(Impl * impl) : m_impl(impl) {}

TCalendar::~TCalendar() = default;

void TCalendar::clear()
{
    if (m_clearCount >= CLEARS_PER_CALENDAR) {
        m_clearCount = 0;
        m_impl = std::make_unique<Impl>();
    }
    ++m_clearCount;
    m_impl->GetCalendar().clear();
}

int TCalendar::get(TCalendarDateFields field, bool & ok) const
{
    if (field != Year && field != Month && field != DayOfMonth)
        VELTRIA_FAIL("false", 0x64F53280);
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    int const value = m_impl->GetCalendar().get(static_cast<VelICU::ICUCalendarDateFields>(field), status);
    ok = VelICU::ICU_SUCCESS(status);
    return value;
}

void TCalendar::set(int year, int month, int day)
{
    m_impl->GetCalendar().set(year, month, day);
}

double TCalendar::getTime() const
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    double const time = m_impl->GetCalendar().getTime(status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0x24915168);
    return time;
}

SOWValue TCalendar::getFirstDayOfWeek()
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    int const day = m_impl->GetCalendar().getFirstDayOfWeek(status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0x8AA125B8);
    return static_cast<SOWValue>(day);
}

void TCalendar::setFirstDayOfWeek(SOWValue day)
{
    m_impl->GetCalendar().setFirstDayOfWeek(day);
}

void TCalendar::setMinimalDaysInFirstWeek(unsigned char days)
{
    m_impl->GetCalendar().setMinimalDaysInFirstWeek(days);
}
