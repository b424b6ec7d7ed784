#include "velcoredata/core/StringTableCache.h"

#include <utility>

#include <QtCore/QTranslator>

#include "main/core/ResourceFiles.h"
#include "main/core/TableCacheInstance.h"
#include "main/core/TranslationData.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/TResource.h"

namespace {

constexpr int lockClass = 10;

}  // namespace

QTranslatorInfo::QTranslatorInfo() = default;
QTranslatorInfo::QTranslatorInfo(QTranslatorInfo &&) noexcept = default;
QTranslatorInfo & QTranslatorInfo::operator=(QTranslatorInfo &&) noexcept = default;
QTranslatorInfo::~QTranslatorInfo() = default;

StringTableCache & CoreData::detail::StringTableCacheIn(void ** slot, boost::any * (*create)(void *))
{
    return InstanceOf<StringTableCache>(slot, create,
                                        {__FILE__, __LINE__, 0xD9D457CD, u"LogicException_LogicAssert_0xD9D457CD"});
}

StringTableCache & StringTableCache::GetInstance()
{
    static void * s_instance = nullptr;
    return CoreData::detail::StringTableCacheIn(
        &s_instance, [](void *) { return new boost::any(std::make_shared<StringTableCache>()); });
}

StringTableCache::StringTableCache() : m_mutex(0) {}

StringTableCache::~StringTableCache() = default;

QTranslator * StringTableCache::GetTranslator(TString const & language)
{
    if (language.isEmpty() || language == LanguageUtils::GetDefaultISOString())
        return nullptr;
    AutoSynchronize const lock(m_mutex, lockClass, __FILE__, __func__, __LINE__);
    QTranslatorInfo & info = m_translators[language];
    if (info.translator == nullptr && !LoadTranslatorInfo(language, info)) {
        TString const closest = LanguageUtils::GetClosestSupportedLanguageCode(language);
        LoadTranslatorInfo(LanguageUtils::GetISOString(closest), info);
    }
    return info.translator.get();
}

bool StringTableCache::LoadTranslatorInfo(TString const & /*rccName*/, TString const & language, QTranslatorInfo & info)
{
    TResource const resource(TString(detail::translationResource), language);
    if (!resource.isValid())
        return false;
    info.translator = std::make_unique<QTranslator>();
    auto const size = static_cast<std::size_t>(resource.size());
    return detail::IsSoundTranslation(resource.GetPtr(), size) &&
           info.translator->load(resource.GetPtr(), resource.size(), QString());
}

bool StringTableCache::LoadTranslatorInfo(TString const & language, QTranslatorInfo & info)
{
    return LoadTranslatorInfo(TString(detail::languageArchive), language, info);
}
