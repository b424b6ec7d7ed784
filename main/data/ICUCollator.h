#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "main/data/CollationTable.h"
#include "main/data/CollatorSpec.h"
#include "velcoredata/data/Collator.h"
#include "velcoredata/data/CollatorPool.h"
#include "velcoredata/data/CollatorPoolKey.h"
#include "velicu/ICUCollator.h"
#include "velsys/TStringCore.h"

// One thread's collator of one ICU pool: the ICU collator, its string search and the scratch of both. Not to be shared
// between threads.
class VELCOREDATA_API ICUCollator final : public Collator
{
public:
    // A locale or attribute that ICU refuses raises the ICU exception.
    ICUCollator(CollatorPool const & pool, CollatorPoolKey const & key, detail::CollatorSpec const & spec);
    ~ICUCollator() override;
    ICUCollator(ICUCollator const &) = delete;
    ICUCollator & operator=(ICUCollator const &) = delete;

    // The handle, for building the table of this collator's rules.
    VelICU::ICU_Collator const * GetHandle() const { return m_pUCollator; }
    // Lets a table of the same rules answer what it can; ICU answers the rest.
    void UseTable(std::shared_ptr<detail::CollationTable const> table);
    // The first eight bytes of the primary level of the sort key, zeros behind its end.
    std::uint64_t KeyPrefix(char16_t const * text) const;
    detail::CollationFastPath const & GetFastPath() const { return m_fast; }

    // The value of one of ICU's own attributes, 0 to 7.
    int GetAttribute(int attribute) const;

    int Compare(char16_t const * a, int aLength, char16_t const * b, int bLength) const override;
    int Compare(char16_t const * a, char16_t const * b) const override;
    int Search(char16_t const * text, char16_t const * pattern, int start, int * matchLength) const override;
    int Search(char16_t const * text, char16_t const * pattern) const override;
    void Replace(std::vector<char16_t> & out, char16_t const * text, char16_t const * pattern,
                 char16_t const * replacement) const override;
    bool StartsWith(char16_t const * text, char16_t const * pattern) const override;
    bool EndsWith(char16_t const * text, char16_t const * pattern) const override;
    void Lower(std::vector<char16_t> & out, char16_t const * text) const override;
    void Upper(std::vector<char16_t> & out, char16_t const * text) const override;
    void LTrim(std::vector<char16_t> & out, char16_t const * text) const override;
    void RTrim(std::vector<char16_t> & out, char16_t const * text) const override;
    void Trim(std::vector<char16_t> & out, char16_t const * text) const override;
    // The hash of the text's sort key, which is never handed out.
    unsigned Hash(char16_t const * text) const override;
    bool IsEquivalent(Collator const & other) const override;

private:
    friend struct ICUCollatorTestAccess;

    [[gnu::noinline]] int CompareRest(char16_t const * a, int aLength, char16_t const * b, int bLength) const;
    void ApplyCollatorAttribute(int attr, int value);
    void SetAttribute(VelICU::ICU_Collator * collator, int attribute, int value) const;
    void AppendCollationRules(char16_t const * rule, int length);
    // The search for this pattern on this text, kept for the next text; null if ICU refuses.
    VelICU::ICUStringSearch * GetCollatorSearch(char16_t const * text, char16_t const * pattern) const;
    bool IsSearchable(char16_t const * text, char16_t const * pattern, bool & answer) const;
    [[noreturn]] void ThrowICU(VelICU::ICUErrorCode status) const;

    TString m_name;
    unsigned m_flags;
    VelICU::ICU_Collator * m_pUCollator = nullptr;  // owned
    CollatorPool const * m_pool;
    std::string m_locale;
    detail::CollationFastPath m_fast;
    mutable std::vector<std::uint8_t> m_sortKeyBuffer;
    mutable VelICU::ICUStringSearch * m_search = nullptr;  // owned; bound to m_searchPattern and m_pUCollator
    mutable TStringCore m_searchPattern;
};
