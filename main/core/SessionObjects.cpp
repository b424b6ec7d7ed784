#include "main/core/SessionObjects.h"

#include <boost/any.hpp>

#include "velcoreplatform/CoreThreadContext.h"

namespace CoreData::detail {

std::shared_ptr<TLocale> FindSessionLocale(char16_t const * key)
{
    std::shared_ptr<boost::any> const object = CoreThreadContext::GetGenericObject(TString(key));
    return object == nullptr || object->empty() ? nullptr : boost::any_cast<std::shared_ptr<TLocale>>(*object);
}

}  // namespace CoreData::detail
