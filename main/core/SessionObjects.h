// The locales among the named objects of a session.
#pragma once

#include <memory>

#include "velcoreplatform/TString.h"

class TLocale;

namespace CoreData::detail {

// The std::shared_ptr<TLocale> under a key of the calling thread's session; null if there is none. Raises
// boost::bad_any_cast if an object of another type is there.
std::shared_ptr<TLocale> FindSessionLocale(char16_t const * key);

}  // namespace CoreData::detail
