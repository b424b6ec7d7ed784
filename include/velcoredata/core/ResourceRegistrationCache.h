// The resource archives beside the program: where they lie, which of them are registered with Qt, and under which Qt
// path a resource of them is found.
//
// Two archives in Qt's .rcc form, both optional: "veltria-oem.rcc" overrides texts for a brand, "vellangres.rcc" holds
// the resources of languages. Those of the default language lie in the resource directory itself, those of any other
// in a directory named by the language:
//
//   res/vellangres.rcc          en_US, registered at the root "/en_US"
//   res/de_DE/vellangres.rcc    de_DE, at "/de_DE"
//   res/de_DE/veltria-oem.rcc   the brand's de_DE, at "/OEM/de_DE"
//
// Nothing here raises: a missing or damaged archive is a false, a missing resource an empty path. All functions may be
// called from any thread.
#pragma once

#include <atomic>
#include <unordered_map>
#include <utility>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/Locks.h"
#include "velcoreplatform/TPath.h"
#include "velcoreplatform/TString.h"

/// The file `relative` in the resource directory, which is "res", or "../Resources" in an application bundle
/// (CorePlatformOptions::GetIsAppBundle). The first that exists: under the working directory (the answer is relative
/// then), beside this library, under CorePlatformOptions::GetApplicationDir. Empty if there is none.
///
///   FindResourceFile(u"de_DE/vellangres.rcc")  // "/opt/product/bin/res/de_DE/vellangres.rcc"
VELCOREDATA_API TPath FindResourceFile(TPath const & relative);

/// The language a short code stands for. Three or more code units come back as they are. Two get "_" and the country
/// that their name has, which is none: "de_" for "de". Fewer stand for the language of the calling thread's session,
/// outside a session for the default one, "en_US". When CoreThreadContext::HasSessionId is empty a text of fewer than
/// two code units raises std::bad_function_call.
VELCOREDATA_API TString GetCorrectedLangCode(TString const & language);

/// The archives that this process has registered, or tried to. Each attempt counts for good: an archive that was
/// missing when it was first asked for stays missing.
class VELCOREDATA_API ResourceRegistrationCache
{
public:
    static constexpr int sm_csInstancePriority = 3;

    /// The process's instance, made at the first call; that registers both archives of the default language.
    static ResourceRegistrationCache & GetInstance();

    ResourceRegistrationCache(ResourceRegistrationCache const &) = delete;
    ResourceRegistrationCache & operator=(ResourceRegistrationCache const &) = delete;
    /// Takes its archives out of Qt again. The process's instance is never destroyed.
    virtual ~ResourceRegistrationCache();

    /// Registers the archive `rccName` of a language, corrected by GetCorrectedLangCode, at the root "/language", or
    /// "/prefix/language" with a prefix. True if it is registered. The file is looked for only at the first call for a
    /// key, which is "language" or "prefix/language": the name of the archive is no part of it.
    ///
    /// An archive whose tables point outside the file is refused as if it were missing.
    ///
    ///   LoadResource(u"vellangres.rcc", u"de_DE", u"")  // the key is "de_DE"
    bool LoadResource(TString const & rccName, TString const & language, TString const & prefix);

    /// Whether LoadResource was called for the key, with success or without.
    bool IsResourceLoaded(TString const & key) const;

    /// The Qt path of a resource in a language, or the empty text. The first that exists of the brand's archive for the
    /// language, the brand's for the default language, the language archive for the language, that for the default
    /// language; archives not tried before are loaded on the way.
    ///
    ///   GetResourcePath(u"TQRC_VELSTRINGS", u"de_DE")  // ":/OEM/de_DE/TQRC_VELSTRINGS" or ":/de_DE/TQRC_VELSTRINGS"
    TString GetResourcePath(TString const & relativePath, TString const & language);

    /// From now on GetResourcePath passes the brand's archives over. There is no way back.
    void DisableOEMResources();
    bool OEMResourcesDisabled() const;

protected:
    ResourceRegistrationCache();

private:
    bool Register(TPath const & file, TString const & root);

    mutable TRecursiveMutex m_mutex;
    std::unordered_map<TString, bool> m_attempts;
    std::vector<std::pair<TString, TString>> m_registered;  // file and root, in the order of registration
    std::atomic<bool> m_oemDisabled = false;
};

/// Makes the process's instance ahead of its first use.
VELCOREDATA_API void InitResourceRegistrationCache();
