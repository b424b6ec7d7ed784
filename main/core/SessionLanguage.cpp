#include "main/core/SessionLanguage.h"

#include <memory>

#include <boost/any.hpp>

#include "velcoreplatform/CoreThreadContext.h"

namespace CoreData::detail {

TString SessionLanguage()
{
    std::shared_ptr<boost::any> const locale = CoreThreadContext::GetGenericObject(TString(u"locale"));
    // A host that knows no more than the language puts its ISO string there.
    TString const * const language = boost::any_cast<TString>(locale.get());
    return language == nullptr ? TString() : *language;
}

}  // namespace CoreData::detail
