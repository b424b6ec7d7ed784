#include "velcoredata/core/LocalStrings.h"

#include "main/core/LocalStringsTranslation.h"
#include "main/core/StringTable.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace CoreData {

TString LookupTStrExported(StringId id)
{
    char const * const english = detail::StringTableEnglish(id);
    if (!CoreThreadContext::HasSessionId())
        return TString::fromUtf8(english);
    TString translated = detail::TranslateForSession(detail::StringTableKey(id), english);
    return translated.isEmpty() ? TString::fromUtf8(english) : translated;
}

TFormatString LookupTFormatStrExported(StringId id)
{
    return TFormatString(LookupTStrExported(id));
}

}  // namespace CoreData
