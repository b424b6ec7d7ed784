#include "main/core/LocalStringTableCache.h"

#include <QtCore/QTranslator>

#include "main/core/StringTable.h"
#include "main/core/TableCacheInstance.h"
#include "velcoredata/core/LanguageUtils.h"

namespace CoreData {

namespace {

constexpr int lockClass = 10;

bool Load(QTranslator & translator, TString const & language)
{
    // Empty, not null: null stands for separators and an ending of Qt's choice.
    QString const none = QStringLiteral("");
    return translator.load(TString(u":/velcoredata/TQRC_MODSTRINGS_" + language).toQString(), none, none, none);
}

}  // namespace

LocalStringTableCache & detail::LocalStringTableCacheIn(void ** slot, boost::any * (*create)(void *))
{
    return InstanceOf<LocalStringTableCache>(
        slot, create, {StringTableFile(), __LINE__, 0x5C1E7B92, u"LogicException_LogicAssert_0x5C1E7B92"});
}

LocalStringTableCache & LocalStringTableCache::GetInstance()
{
    static void * s_instance = nullptr;
    return detail::LocalStringTableCacheIn(
        &s_instance, [](void *) { return new boost::any(std::make_shared<LocalStringTableCache>()); });
}

LocalStringTableCache::LocalStringTableCache() : m_mutex(0) {}

LocalStringTableCache::~LocalStringTableCache() = default;

std::shared_ptr<QTranslator> LocalStringTableCache::GetTranslator(TString const & language)
{
    if (language.isEmpty() || language == LanguageUtils::GetDefaultISOString())
        return nullptr;
    AutoSynchronize const lock(m_mutex, lockClass, __FILE__, __func__, __LINE__);
    auto const found = m_translators.find(language);
    if (found != m_translators.end())
        return found->second;
    auto const translator = std::make_shared<QTranslator>();
    if (!Load(*translator, language))
        Load(*translator, LanguageUtils::GetISOString(LanguageUtils::GetClosestSupportedLanguageCode(language)));
    m_translators.emplace(language, translator);
    return translator;
}

}  // namespace CoreData
