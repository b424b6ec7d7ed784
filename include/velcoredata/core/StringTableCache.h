// The translators of the language archives beside the program.
#pragma once

#include <map>
#include <memory>

#include "velcoredata/core/Export.h"
#include "velcoreplatform/Locks.h"
#include "velcoreplatform/TString.h"

class QTranslator;

/// What the cache keeps of a language: its translator, once there was a resource to load it from.
struct VELCOREDATA_API QTranslatorInfo
{
    QTranslatorInfo();
    QTranslatorInfo(QTranslatorInfo &&) noexcept;
    QTranslatorInfo & operator=(QTranslatorInfo &&) noexcept;
    ~QTranslatorInfo();

    std::unique_ptr<QTranslator> translator;
};

/// Translators by language, from the resource "TQRC_VELSTRINGS" of "vellangres.rcc". The functions may be called from
/// any thread, and so may a translator's `translate`: it never changes once GetTranslator has given it out.
class VELCOREDATA_API StringTableCache
{
public:
    static constexpr int sm_csInstancePriority = 10;

    /// The process's instance. Raises "s_cache", LogicException_LogicAssert_0xD9D457CD, if there is none.
    static StringTableCache & GetInstance();

    StringTableCache();
    StringTableCache(StringTableCache const &) = delete;
    StringTableCache & operator=(StringTableCache const &) = delete;
    virtual ~StringTableCache();

    /// The translator of a language; the cache owns it. Null for the empty text and the default language, which need
    /// none, and where there is no resource, neither for the language nor for the supported one closest to it. A
    /// language without an archive of its own gets the translator of the default language's archive if that has one;
    /// the closest supported language is asked only after that. A resource that is no translation gives a translator
    /// without messages.
    QTranslator * GetTranslator(TString const & language);

protected:
    /// Gives the record a new translator and loads it; false if there is no resource, and the record stays as it is,
    /// or if it does not load. The name of the archive has no effect: GetResourcePath decides where the resource comes
    /// from. Bytes whose tables point outside the resource, and those that name further files, do
    /// not load.
    bool LoadTranslatorInfo(TString const & rccName, TString const & language, QTranslatorInfo & info);
    /// The same from "vellangres.rcc".
    bool LoadTranslatorInfo(TString const & language, QTranslatorInfo & info);

private:
    TRecursiveMutex m_mutex;
    std::map<TString, QTranslatorInfo> m_translators;
};
