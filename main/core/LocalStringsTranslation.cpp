#include "main/core/LocalStringsTranslation.h"

#include <memory>

#include <QtCore/QTranslator>

#include "main/core/LocalStringTableCache.h"
#include "main/core/SessionLanguage.h"
#include "velcoredata/core/LanguageUtils.h"

namespace CoreData::detail {

TString TranslateForSession(char const * key, char const * english)
{
    TString const language = SessionLanguage();
    LocalStringTableCache & cache = LocalStringTableCache::GetInstance();
    std::shared_ptr<QTranslator> translator = cache.GetTranslator(language);
    bool const empty = translator == nullptr || translator->isEmpty();
    if (empty && !language.startsWith(LanguageUtils::GetDefaultLanguage()))
        translator = cache.GetTranslator(SessionLanguage());
    return translator == nullptr ? TString() : TString(translator->translate(key, english, nullptr, -1));
}

}  // namespace CoreData::detail
