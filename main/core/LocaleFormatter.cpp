#include "velcoredata/core/LocaleFormatter.h"

#include "velicu/ICULocale.h"
#include "velsys/ThrowSite.h"

using VelICU_V2::ICUDateFormat;
using VelICU_V2::ICULocale;

LocaleFormatterSettings::~LocaleFormatterSettings() = default;

SimpleLocaleFormatterSettings::SimpleLocaleFormatterSettings(TString const & pattern_) : pattern(pattern_) {}
SimpleLocaleFormatterSettings::~SimpleLocaleFormatterSettings() = default;

DateLocaleFormatterSettings::DateLocaleFormatterSettings(ICUDateFormat::ICUEStyle dateStyle_) : dateStyle(dateStyle_) {}
DateLocaleFormatterSettings::~DateLocaleFormatterSettings() = default;

DateTimeLocaleFormatterSettings::DateTimeLocaleFormatterSettings(ICUDateFormat::ICUEStyle dateStyle_,
                                                                 ICUDateFormat::ICUEStyle timeStyle_)
    : dateStyle(dateStyle_), timeStyle(timeStyle_)
{}
DateTimeLocaleFormatterSettings::~DateTimeLocaleFormatterSettings() = default;

LocaleFormatter::LocaleFormatter(TString const & pattern, ICULocale const & locale)
    : m_settings(std::make_unique<SimpleLocaleFormatterSettings>(pattern))
{
    VelICU_V2::ICUErrorCode success = VelICU_V2::U_ZERO_ERROR;
    m_format = VelICU_V2::ICUSimpleDateFormat::createInstance(pattern, locale, success);
    // The object exists even when the status fails.
    m_format->setLenient(false);
    VELTRIA_ASSERT(VelICU_V2::ICU_SUCCESS(success), 0xC9BEB47B);
}

LocaleFormatter::LocaleFormatter(ICUDateFormat::ICUEStyle dateStyle, ICUDateFormat::ICUEStyle timeStyle,
                                 ICULocale const & locale)
    : m_format(ICUDateFormat::createDateTimeInstance(dateStyle, timeStyle, locale)),
      m_settings(std::make_unique<DateTimeLocaleFormatterSettings>(dateStyle, timeStyle))
{}

LocaleFormatter::LocaleFormatter(ICUDateFormat::ICUEStyle dateStyle, ICULocale const & locale)
    : m_format(ICUDateFormat::createDateInstance(dateStyle, locale)),
      m_settings(std::make_unique<DateLocaleFormatterSettings>(dateStyle))
{}

LocaleFormatter::~LocaleFormatter()
{
    m_settings.reset();
}
