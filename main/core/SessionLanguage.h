// The seam between resources and locales: resources lie below the rooms that know TLocale, so what they need of the
// session's locale is this one declared function.
#pragma once

#include "velcoreplatform/TString.h"

namespace CoreData::detail {

// The ISO string of the language of the session object "locale", a std::shared_ptr<TLocale> or the ISO string itself;
// empty if there is none. Called only inside a session.
TString SessionLanguage();

}  // namespace CoreData::detail
