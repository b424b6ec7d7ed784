#pragma once

#include <memory>
#include <string>

#include "main/data/CollatorSpec.h"
#include "velcoredata/data/CollatorPool.h"
#include "velcoredata/data/CollatorPoolKey.h"

class ICUCollator;
namespace detail {
class CollationTable;
}

// The description of one ICU collation. Immutable once built; each thread's collator stands in a thread-local table.
class VELCOREDATA_API ICUCollatorPool final : public CollatorPool
{
public:
    // Builds the calling thread's collator too. Raises what a bad name raises.
    explicit ICUCollatorPool(CollatorPoolKey const & key);
    ~ICUCollatorPool() override;

    Collator const * GetCollator() const override;
    TString const & GetName() const override { return m_name; }
    bool IsCaseSensitive() const override { return m_caseSensitive; }
    TString const & GetLanguage() const override { return m_language; }
    LCID GetLocale() const override { return m_lcid; }
    TString const & GetLocaleName() const override { return m_localeName; }
    TString const & GetDisplayCountry() const override { return m_displayCountry; }
    TString const & GetDisplayLanguage() const override { return m_displayLanguage; }
    unsigned GetCmpFlags() const override { return m_cmpFlags | m_key.flags; }
    bool HasWordSort() const override { return m_hasWordSort; }
    bool IsWindowsSpecific() const override { return m_isWindowsSpecific; }

private:
    // Takes the pool's entry out of the calling thread's table, so that a later pool at the same address does not find
    // the collator of one that failed or lost a race.
    struct ThreadEntry
    {
        ICUCollatorPool const * pool;
        ~ThreadEntry();
    };

    ICUCollator * GetICUCollator() const;
    ICUCollator * FindOrMakeCollator() const;
    void DeriveFlags(ICUCollator const & collator);

    CollatorPoolKey m_key;
    detail::CollatorSpec m_spec;
    TString m_name;
    bool m_caseSensitive = false;
    TString m_language;
    LCID m_lcid = 0;
    TString m_localeName;
    TString m_displayCountry;
    TString m_displayLanguage;
    unsigned m_cmpFlags = 0;
    bool m_hasWordSort = false;
    bool m_isWindowsSpecific = false;
    std::shared_ptr<detail::CollationTable const> m_table;  // null: ICU answers everything
    ThreadEntry m_threadEntry;
};
