// The translators of the library's own texts, from the translations that are compiled into it.
#pragma once

#include <map>
#include <memory>

#include "velcoreplatform/Locks.h"
#include "velcoreplatform/TString.h"

class QTranslator;

namespace CoreData {

class LocalStringTableCache
{
public:
    // The process's instance. Raises "s_cache", LogicException_LogicAssert_0x5C1E7B92, if there is none.
    static LocalStringTableCache & GetInstance();

    LocalStringTableCache();
    ~LocalStringTableCache();
    LocalStringTableCache(LocalStringTableCache const &) = delete;
    LocalStringTableCache & operator=(LocalStringTableCache const &) = delete;

    // The translator of the language or, where that has no translations, of the supported language closest to it. Null
    // for the empty text and the default language; without messages where neither has translations. A language is tried
    // once per process. Any thread; a translator does not change any more.
    std::shared_ptr<QTranslator> GetTranslator(TString const & language);

private:
    TRecursiveMutex m_mutex;
    std::map<TString, std::shared_ptr<QTranslator>> m_translators;
};

}  // namespace CoreData
