#include "main/core/SessionObjects.h"

#include <boost/any.hpp>

#include "main/core/SessionLanguage.h"
#include "velcoredata/core/TLocale.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace CoreData::detail {

std::shared_ptr<TLocale> FindSessionLocale(char16_t const * key)
{
    std::shared_ptr<boost::any> const object = CoreThreadContext::GetGenericObject(TString(key));
    return object == nullptr || object->empty() ? nullptr : boost::any_cast<std::shared_ptr<TLocale>>(*object);
}

TString SessionLanguage()
{
    std::shared_ptr<boost::any> const object = CoreThreadContext::GetGenericObject(TString(u"locale"));
    // Texts do not raise: what is no locale says no language.
    auto const * const locale = boost::any_cast<std::shared_ptr<TLocale>>(object.get());
    return locale == nullptr || *locale == nullptr ? TString() : (*locale)->getLanguageCode().GetISOString();
}

}  // namespace CoreData::detail
