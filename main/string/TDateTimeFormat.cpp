#include "velcoredata/string/TDateTimeFormat.h"

#include "main/string/TCalendarImpl.h"
#include "main/string/TParsePositionImpl.h"
#include "velicu/ICUDateFormat.h"
#include "velsys/ThrowSite.h"

class TDateTimeFormat::Impl
{
public:
    explicit Impl(std::unique_ptr<VelICU::ICUSimpleDateFormat> made) : format(std::move(made)) {}

    std::unique_ptr<VelICU::ICUSimpleDateFormat> const format;
};

TDateTimeFormat::TDateTimeFormat(TString const & pattern)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    m_impl = std::make_unique<Impl>(VelICU::ICUSimpleDateFormat::createInstance(pattern, status));
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0x01400087);
}

TDateTimeFormat::TDateTimeFormat(TString const & pattern, VelICU_V2::ICULocale const & locale)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    m_impl = std::make_unique<Impl>(VelICU::ICUSimpleDateFormat::createInstance(pattern, locale, status));
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0x32806D6C);
}

TDateTimeFormat::TDateTimeFormat(TDateTimeFormat const & other)
    : m_impl(std::make_unique<Impl>(other.m_impl->format->cloneSimple()))
{}

TDateTimeFormat::~TDateTimeFormat() = default;

void TDateTimeFormat::applyPattern(TString const & pattern)
{
    m_impl->format->applyPattern(pattern);
}

TString TDateTimeFormat::format(TCalendar & calendar) const
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    TString text = m_impl->format->format(calendar.getImpl().GetCalendar(), status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0xED505CF2);
    return text;
}

TString TDateTimeFormat::format(double tdate) const
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    TString text = m_impl->format->format(tdate, status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0xE2672305);
    return text;
}

double TDateTimeFormat::parse(TString const & text) const
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    double const tdate = m_impl->format->parse(text, status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0x19ED868B);
    return tdate;
}

void TDateTimeFormat::parse(TString const & text, TCalendar & calendar, TParsePosition & position) const
{
    m_impl->format->parse(text, calendar.getImpl().GetCalendar(), position.getImpl().GetPosition());
}

void TDateTimeFormat::set2DigitYearStart(double tdate)
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    m_impl->format->set2DigitYearStart(tdate, status);
    VELTRIA_ASSERT(VelICU::ICU_SUCCESS(status), 0xA6426598);
}

void TDateTimeFormat::editAmPmStrings(bool shortForm, bool lowerCase)
{
    m_impl->format->editAmPmStrings(shortForm, lowerCase);
}

std::unique_ptr<TCalendar> TDateTimeFormat::getCalendar()
{
    return std::make_unique<TCalendar>(new TCalendar::Impl(*m_impl->format));
}

SOWValue TDateTimeFormat::getFirstDayOfWeek()
{
    VelICU::ICUErrorCode status = VelICU::U_ZERO_ERROR;
    return static_cast<SOWValue>(m_impl->format->getFirstDayOfWeek(status));
}

void TDateTimeFormat::setFirstDayOfWeek(SOWValue day)
{
    m_impl->format->setFirstDayOfWeek(day);
}

void TDateTimeFormat::setMinimalDaysInFirstWeek(unsigned char days)
{
    m_impl->format->setMinimalDaysInFirstWeek(days);
}
