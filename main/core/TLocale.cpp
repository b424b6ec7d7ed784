#include "velcoredata/core/TLocale.h"

#include <QtCore/QLocale>

#include "main/core/DateReading.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/LocaleFormatter.h"
#include "velicu/ICUCalendar.h"
#include "velicu/ICUDateFormat.h"
#include "velicu/ICULocale.h"
#include "velnls/LocaleInfo.h"
#include "velsys/NoDestructor.h"
#include "velsys/ThrowSite.h"

using VelICU_V2::ICULocale;

namespace {

constexpr LCID USER_DEFAULT_LCID = 1024;
constexpr LCID SYSTEM_DEFAULT_LCID = 2048;
constexpr LCID PRIMARY_LANGUAGE_MASK = 0x3FF;

std::unique_ptr<ICULocale> WithCalendar(TString const & name, TString const & calendar)
{
    if (calendar.isEmpty())
        return ICULocale::createInstance(name);
    std::string const keyword = "calendar=" + calendar.toLocal8Bit();
    return ICULocale::createInstance(name.toLocal8Bit().c_str(), nullptr, nullptr, keyword.c_str());
}

}  // namespace

TLocale::TLocale(TString const & name)
    : m_icuLocale(ICULocale::createInstance(name)), m_languageCode(std::make_unique<LanguageCode>(name))
{}

TLocale::TLocale(LCID lcid) : TLocale(lcid, TString()) {}

TLocale::TLocale(LCID lcid, TString const & calendar) : m_languageCode(std::make_unique<LanguageCode>(lcid))
{
    m_icuLocale = WithCalendar(LanguageUtils::GetLocaleStr(m_languageCode->GetLCID()), calendar);
}

TLocale::TLocale(TLocale const & other)
    : m_icuLocale(ICULocale::createInstance(other.m_languageCode->GetISOString())),
      m_languageCode(std::make_unique<LanguageCode>(other.m_languageCode->GetISOString())),
      m_dateFormatCache(other.CloneICUDateFormatCache()),
      m_parseNative(other.m_parseNative),
      m_cacheFormatter(other.m_cacheFormatter)
{}

TLocale const & TLocale::operator=(TLocale const & other)
{
    // All is built before anything is replaced: `other` may be this object, and building may throw.
    DateFormatCache formats = other.CloneICUDateFormatCache();
    auto icuLocale = ICULocale::createInstance(other.m_languageCode->GetISOString());
    auto languageCode = std::make_unique<LanguageCode>(other.m_languageCode->GetISOString());

    m_icuLocale = std::move(icuLocale);
    m_languageCode = std::move(languageCode);
    m_calendar.reset();
    m_formatterCache.reset();
    m_reading.reset();
    m_digits = Digits::Unasked;
    m_parseCount = 0;
    m_lastParseNative = false;
    m_parseNative = other.m_parseNative;
    m_cacheFormatter = other.m_cacheFormatter;
    {
        ScopedWriteLock const lock(m_dateFormatCacheLock);
        m_dateFormatCache.swap(formats);
    }
    return *this;
}

TLocale::~TLocale() = default;

LCID TLocale::GetLCID() const
{
    return m_languageCode->GetLCID();
}

void TLocale::SetFormatterCache(std::unique_ptr<LocaleFormatter const> & formatter)
{
    if (&formatter == &m_formatterCache)
        return;
    m_formatterCache = std::move(formatter);
    if (m_reading != nullptr)
        m_reading->strict = false;
}

TLocale::DateFormatCache TLocale::CloneICUDateFormatCache() const
{
    DateFormatCache clones;
    ScopedReadLock const lock(m_dateFormatCacheLock);
    for (auto const & [pattern, format] : m_dateFormatCache)
        clones.emplace(pattern, format->clone());
    return clones;
}

TLocale const & TLocale::GetISODefaultLocale()
{
    static detail::NoDestructor<TLocale> s_locale(LanguageUtils::GetDefaultISOString());
    return *s_locale;
}

TLocale const & TLocale::GetSystemInvariantLocale()
{
    static detail::NoDestructor<TLocale> s_locale(SYSTEM_DEFAULT_LCID);
    return *s_locale;
}

TLocale const & TLocale::GetUserDefaultLocale()
{
    static detail::NoDestructor<TLocale> s_locale(USER_DEFAULT_LCID);
    return *s_locale;
}

TString const & TLocale::GetUserDefaultICULocale()
{
    static detail::NoDestructor<TString> s_name(TString::fromLocal8Bit(ICULocale::getDefault()->getName()));
    return *s_name;
}

LCID TLocale::GetUserDefaultLCID()
{
    return ::GetUserDefaultLCID();
}

unsigned short TLocale::GetPrimaryLanguage(LCID lcid)
{
    return static_cast<unsigned short>(LanguageUtils::ConvertDefaultLocale(lcid) & PRIMARY_LANGUAGE_MASK);
}

void TLocale::GetQLocale(LCID lcid, QLocale & out)
{
    switch (lcid) {
    case 0: out = QLocale(QLocale::English, QLocale::AnyTerritory); break;
    case USER_DEFAULT_LCID: out = QLocale::system(); break;
    default: out = QLocale(QString::fromStdString(LanguageUtils::GetLocaleNarrowStr(lcid))); break;
    }
}
