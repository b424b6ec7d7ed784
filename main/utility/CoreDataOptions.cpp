#include "velcoredata/utility/CoreDataOptions.h"

#include <memory>

#include <boost/any.hpp>

#include "main/core/BiDiPseudoOption.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/StringWithCollationCache.h"
#include "velcoreplatform/InitOnce.h"

namespace CoreDataOptions {

namespace {

bool s_useCanadianFrenchUI = false;
bool s_useNonSessionSpecificLocale = false;

std::unique_ptr<TLocale> & SetLocale()
{
    static std::unique_ptr<TLocale> s_locale;
    return s_locale;
}

TLocale const & NamelessLocale()
{
    static void * s_slot = nullptr;
    InitOnce(
        &s_slot, [](void *) { return new boost::any(std::make_shared<TLocale>(TString())); }, nullptr,
        [](boost::any * made) -> void * { return boost::any_cast<std::shared_ptr<TLocale> &>(*made).get(); });
    return *static_cast<TLocale const *>(s_slot);
}

}  // namespace

bool GetUseBiDiPseudo()
{
    return CoreData::detail::GetUseBiDiPseudo();
}

void SetUseBiDiPseudo(bool use)
{
    CoreData::detail::SetUseBiDiPseudo(use);
}

bool GetUseCanadianFrenchUI()
{
    return s_useCanadianFrenchUI;
}

void SetUseCanadianFrenchUI(bool use)
{
    s_useCanadianFrenchUI = use;
}

bool GetUseNonSessionSpecificLocale()
{
    return s_useNonSessionSpecificLocale;
}

void SetUseNonSessionSpecificLocale(bool use)
{
    s_useNonSessionSpecificLocale = use;
}

TLocale const & GetDefaultLocaleObject()
{
    TLocale const * const locale = SetLocale().get();
    return locale == nullptr ? NamelessLocale() : *locale;
}

void SetDefaultLocale(TString const & name)
{
    SetLocale() = std::make_unique<TLocale>(name);
}

void SetStringPoolThreadLocalCacheSize(std::size_t size)
{
    StringWithCollationCache::SetStringPoolThreadLocalCacheSize(size);
}

}  // namespace CoreDataOptions
