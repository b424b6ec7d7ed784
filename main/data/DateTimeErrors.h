// The message that all faults of dates and times share.
#pragma once

#include "velcoredata/core/LocalStrings.h"
#include "velcoreplatform/TString.h"

namespace detail {

// "Invalid datetime value" in the session's language.
inline TString InvalidDateTimeText()
{
    return CoreData::LookupTStrExported(CoreData::StringId::IDS_DATETIME_ERROR);
}

}  // namespace detail
