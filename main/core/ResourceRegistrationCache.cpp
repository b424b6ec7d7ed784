#include "velcoredata/core/ResourceRegistrationCache.h"

#include <memory>

#include <QtCore/QFile>
#include <QtCore/QResource>

#include "main/core/ResourceArchive.h"
#include "main/core/ResourceFiles.h"
#include "main/core/SessionLanguage.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/string/ICUUtils.h"
#include "velcoreplatform/CoreThreadContext.h"
#include "velcoreplatform/InitOnce.h"

namespace {

constexpr int lockClass = 3;

// ":/OEM/de_DE/TQRC_VELSTRINGS", or without a prefix ":/de_DE/TQRC_VELSTRINGS".
TString QtPath(TString const & prefix, TString const & language, TString const & relativePath)
{
    TString path(detail::resourceRoot);
    if (!prefix.isEmpty())
        path = path + prefix + u'/';
    return path + language + u'/' + relativePath;
}

}  // namespace

TString GetCorrectedLangCode(TString const & language)
{
    if (language.length() >= 3)
        return language;
    TString code = language;
    if (code.length() < 2) {
        code = CoreThreadContext::HasSessionId() ? CoreData::detail::SessionLanguage()
                                                 : LanguageUtils::GetDefaultISOString();
    }
    if (code.length() == 2)
        return code + u'_' + ICUUtils::GetCountryName(code);
    return code;
}

ResourceRegistrationCache & ResourceRegistrationCache::GetInstance()
{
    using Holder = std::shared_ptr<ResourceRegistrationCache>;
    static void * s_instance = nullptr;
    InitOnce(
        &s_instance, [](void *) { return new boost::any(Holder(new ResourceRegistrationCache)); }, nullptr,
        [](boost::any * made) -> void * { return boost::any_cast<Holder &>(*made).get(); });
    return *static_cast<ResourceRegistrationCache *>(s_instance);
}

void InitResourceRegistrationCache()
{
    ResourceRegistrationCache::GetInstance();
}

ResourceRegistrationCache::ResourceRegistrationCache() : m_mutex(0)
{
    TString const language = LanguageUtils::GetDefaultISOString();
    LoadResource(detail::brandArchive, language, detail::brandPrefix);
    LoadResource(detail::languageArchive, language, TString());
}

ResourceRegistrationCache::~ResourceRegistrationCache()
{
    for (auto const & [file, root] : m_registered)
        QResource::unregisterResource(file.toQString(), root.toQString());
}

bool ResourceRegistrationCache::LoadResource(TString const & rccName, TString const & language, TString const & prefix)
{
    AutoSynchronize const lock(m_mutex, lockClass, __FILE__, __func__, __LINE__);
    TString const corrected = GetCorrectedLangCode(language);
    TString const key = prefix.isEmpty() ? corrected : prefix + u'/' + corrected;
    auto const before = m_attempts.find(key);
    if (before != m_attempts.end())
        return before->second;
    TPath const file = FindResourceFile(
        corrected != LanguageUtils::GetDefaultISOString() ? TPath(corrected) / TPath(rccName) : TPath(rccName));
    bool const registered = !file.IsEmpty() && Register(file, u'/' + key);
    m_attempts.emplace(key, registered);
    return registered;
}

bool ResourceRegistrationCache::Register(TPath const & file, TString const & root)
{
    TString const name = file;
    if (!detail::IsSoundArchiveFile(name) || !QResource::registerResource(name.toQString(), root.toQString()))
        return false;
    m_registered.emplace_back(name, root);
    return true;
}

bool ResourceRegistrationCache::IsResourceLoaded(TString const & key) const
{
    AutoSynchronize const lock(m_mutex, lockClass, __FILE__, __func__, __LINE__);
    return m_attempts.count(key) != 0;
}

TString ResourceRegistrationCache::GetResourcePath(TString const & relativePath, TString const & language)
{
    TString const corrected = GetCorrectedLangCode(language);
    TString const standard = LanguageUtils::GetDefaultISOString();
    auto const find = [&](char16_t const * archive, TString const & prefix, TString const & of) {
        if (!LoadResource(archive, of, prefix))
            return TString();
        TString path = QtPath(prefix, of, relativePath);
        return QFile::exists(path.toQString()) ? path : TString();
    };
    std::pair<char16_t const *, char16_t const *> const archives[] = {{detail::brandArchive, detail::brandPrefix},
                                                                      {detail::languageArchive, u""}};
    for (auto const & [archive, prefix] : archives) {
        if (archive == detail::brandArchive && OEMResourcesDisabled())
            continue;
        TString path = find(archive, prefix, corrected);
        if (path.isEmpty() && corrected != standard)
            path = find(archive, prefix, standard);
        if (!path.isEmpty())
            return path;
    }
    return TString();
}

void ResourceRegistrationCache::DisableOEMResources()
{
    m_oemDisabled.store(true, std::memory_order_relaxed);
}

bool ResourceRegistrationCache::OEMResourcesDisabled() const
{
    return m_oemDisabled.load(std::memory_order_relaxed);
}
