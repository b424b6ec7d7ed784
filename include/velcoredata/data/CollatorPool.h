#pragma once

#include "velcoredata/core/Export.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

class Collator;

// The process-wide, immutable description of one collation, which hands each thread its own collator. Pools live until
// the process ends and may be read from any thread.
class VELCOREDATA_API CollatorPool
{
public:
    virtual ~CollatorPool();

    // The calling thread's collator, built on the thread's first call. It dies with the thread.
    virtual Collator const * GetCollator() const = 0;

    virtual TString const & GetName() const = 0;               // "LEN_RUS_S2", "binary"
    virtual bool IsCaseSensitive() const = 0;                  // strength above secondary
    virtual TString const & GetLanguage() const = 0;           // "en", "binary"
    virtual LCID GetLocale() const = 0;                        // 0x409; 0xFFFFFFFF for binary; 0x400 if unknown
    virtual TString const & GetLocaleName() const = 0;         // "en_US", "BINARY"
    virtual TString const & GetDisplayCountry() const = 0;     // "United States", in the process's display language
    virtual TString const & GetDisplayLanguage() const = 0;    // "English"
    virtual unsigned GetCmpFlags() const = 0;                  // 0x1 ignore case, 0x2 accents, 0x4 symbols, bit 31 Windows
    virtual bool HasWordSort() const = 0;                      // the token "WO"
    virtual bool IsWindowsSpecific() const = 0;                // the locale text contains "_WIN"

protected:
    CollatorPool() = default;
    CollatorPool(CollatorPool const &) = delete;
    CollatorPool & operator=(CollatorPool const &) = delete;
};
