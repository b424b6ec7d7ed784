#include "velicu/ICULocale.h"

#include "NativeLocale.h"
#include "NativeString.h"
#include "velicu/LocaleNames.h"

namespace VelICU_V2 {

namespace {

std::unique_ptr<ICULocale> Make(icu::Locale locale)
{
    return std::make_unique<ICULocale>(std::unique_ptr<ICULocale::Native>(new ICULocale::Native{std::move(locale)}));
}

}  // namespace

icu::Locale WithCalendar(icu::Locale const & locale)
{
    icu::Locale result(locale);
    UErrorCode status = ::U_ZERO_ERROR;
    if (locale.getKeywordValue<std::string>("calendar", status).empty()) {
        status = ::U_ZERO_ERROR;
        // The root locale takes no keyword by name alone, but "und" does, which stands for the same.
        if (*result.getName() == '\0')
            result = icu::Locale("und");
        result.setKeywordValue("calendar", "gregorian", status);
    }
    return result;
}

ICULocale::ICULocale(std::unique_ptr<Native> native) : m_native(std::move(native)) {}

ICULocale::~ICULocale() = default;

std::unique_ptr<ICULocale> ICULocale::createInstance(char const * language, char const * country, char const * variant,
                                                     char const * keywords)
{
    return Make(icu::Locale(language == nullptr ? t_uloc_getDefault() : language, country, variant, keywords));
}

std::unique_ptr<ICULocale> ICULocale::createInstance(TString const & name)
{
    return createInstance(name.toLocal8Bit().c_str());
}

std::unique_ptr<ICULocale> ICULocale::getRoot()
{
    return Make(icu::Locale::getRoot());
}

std::unique_ptr<ICULocale> ICULocale::getDefault()
{
    return createInstance(t_uloc_getDefault());
}

std::vector<std::unique_ptr<ICULocale>> ICULocale::getAvailableLocales()
{
    std::int32_t count = 0;
    icu::Locale const * const locales = icu::Locale::getAvailableLocales(count);
    std::vector<std::unique_ptr<ICULocale>> result;
    result.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i)
        result.push_back(Make(locales[i]));
    return result;
}

std::unique_ptr<ICULocale> ICULocale::clone() const
{
    return Make(m_native->locale);
}

char const * ICULocale::getName() const noexcept
{
    return m_native->locale.getName();
}

char const * ICULocale::getLanguage() const noexcept
{
    return m_native->locale.getLanguage();
}

char const * ICULocale::getScript() const noexcept
{
    return m_native->locale.getScript();
}

char const * ICULocale::getCountry() const noexcept
{
    return m_native->locale.getCountry();
}

char const * ICULocale::getVariant() const noexcept
{
    return m_native->locale.getVariant();
}

char const * ICULocale::getISO3Country() const noexcept
{
    return m_native->locale.getISO3Country();
}

std::string ICULocale::getKeywordValue(char const * keyword) const
{
    UErrorCode status = ::U_ZERO_ERROR;
    std::string value = m_native->locale.getKeywordValue<std::string>(keyword, status);
    return U_FAILURE(status) ? std::string() : value;
}

TString ICULocale::getDisplayName(ICULocale const & displayLocale) const
{
    icu::UnicodeString name;
    m_native->locale.getDisplayName(displayLocale.GetNative().locale, name);
    return ToTString(name);
}

LCID ICULocale::getLCID() const noexcept
{
    return m_native->locale.getLCID();
}

bool operator==(ICULocale const & a, ICULocale const & b) noexcept
{
    return a.m_native->locale == b.m_native->locale;
}

}  // namespace VelICU_V2
