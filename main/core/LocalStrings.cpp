#include "velcoredata/core/LocalStrings.h"

#include <string_view>

#include "main/core/LocalStringsTranslation.h"
#include "main/core/StringTable.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace CoreData {

namespace {

TString English(StringId id)
{
    std::string_view const english = detail::StringTableEnglish(id);
    return TString::fromUtf8(english.data(), static_cast<int>(english.size()));
}

TString LookupInSession(StringId id)
{
    TString translated = detail::TranslateForSession(detail::StringTableKey(id), detail::StringTableEnglish(id).data());
    return translated.isEmpty() ? English(id) : translated;
}

}  // namespace

TString LookupTStrExported(StringId id)
{
    return CoreThreadContext::HasSessionId() ? LookupInSession(id) : English(id);
}

TFormatString LookupTFormatStrExported(StringId id)
{
    return TFormatString(LookupTStrExported(id));
}

}  // namespace CoreData
