// The seam between resources and locales: resources lie below the rooms that know TLocale, so what they need of the
// session's locale is this one declared function.
#pragma once

#include "velcoreplatform/TString.h"

namespace CoreData::detail {

// The ISO string of the language of the session object "locale", a std::shared_ptr<TLocale>; empty if there is none or
// an object of another type. Called only inside a session.
TString SessionLanguage();

}  // namespace CoreData::detail
