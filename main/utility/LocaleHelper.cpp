#include "velcoredata/utility/LocaleHelper.h"

#include <memory>

#include "main/core/SessionObjects.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/utility/CoreDataOptions.h"
#include "velcoreplatform/CoreThreadContext.h"
#include "velsys/ThrowSite.h"

namespace LocaleHelper {

namespace {

constexpr LCID USER_DEFAULT_LCID = 1024;

// The locale of the session's workbook; null if there is none with a language.
std::shared_ptr<TLocale> WorkbookLocale()
{
    std::shared_ptr<TLocale> locale = CoreData::detail::FindSessionLocale(u"workbook-locale");
    if (locale != nullptr && locale->getLanguageCode().GetISOString().isEmpty())
        locale.reset();
    return locale;
}

}  // namespace

TLocale const & GetSessionLocaleObject()
{
    VELTRIA_ASSERT(CoreThreadContext::HasSessionId(), 0x34F99351);
    if (std::shared_ptr<TLocale> const workbookLocale = WorkbookLocale())
        return *workbookLocale;
    if (!CoreDataOptions::GetUseNonSessionSpecificLocale())
        return TLocale::GetUserDefaultLocale();
    std::shared_ptr<TLocale> const sessionLocale = CoreData::detail::FindSessionLocale(u"default-locale");
    VELTRIA_ASSERT(sessionLocale, 0x3B14929B);
    if (sessionLocale->GetLCID() != 0)
        return *sessionLocale;
    TLocale const & defaultLocale = CoreDataOptions::GetDefaultLocaleObject();
    return defaultLocale.GetLCID() != 0 ? defaultLocale : TLocale::GetUserDefaultLocale();
}

LanguageCode GetSessionLanguageCode()
{
    VELTRIA_ASSERT(CoreThreadContext::HasSessionId(), 0x74B5639B);
    if (std::shared_ptr<TLocale> const workbookLocale = WorkbookLocale())
        return workbookLocale->getLanguageCode();
    if (!CoreDataOptions::GetUseNonSessionSpecificLocale())
        return LanguageCode(USER_DEFAULT_LCID);
    std::shared_ptr<TLocale> const sessionLocale = CoreData::detail::FindSessionLocale(u"default-locale");
    VELTRIA_ASSERT(sessionLocale, 0x57DB634A);
    LanguageCode code(sessionLocale->getLanguageCode().GetISOString());
    if (code.GetLCID() == 0)
        code.SetLanguageCode(CoreDataOptions::GetDefaultLocaleObject().getLanguageCode().GetISOString(), false);
    return code.GetLCID() != 0 ? code : LanguageCode(USER_DEFAULT_LCID);
}

LCID GetSessionLCID()
{
    return GetSessionLanguageCode().GetLCID();
}

TString GetSessionLanguage()
{
    return GetSessionLanguageCode().GetLanguageName();
}

TString GetSessionLocale()
{
    return GetSessionLanguageCode();
}

}  // namespace LocaleHelper
