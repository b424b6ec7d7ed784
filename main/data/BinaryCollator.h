#pragma once

#include "velcoredata/data/Collator.h"
#include "velcoredata/data/CollatorPool.h"

// Compares UTF-16 code units; no state, one object for all threads. Case and white space follow the process's C locale,
// one code unit at a time. Null texts count as empty.
class VELCOREDATA_API BinaryCollator final : public Collator
{
public:
    int Compare(char16_t const * a, int aLength, char16_t const * b, int bLength) const override;
    int Compare(char16_t const * a, char16_t const * b) const override;
    // A negative start counts from the end.
    int Search(char16_t const * text, char16_t const * pattern, int start, int * matchLength) const override;
    int Search(char16_t const * text, char16_t const * pattern) const override;
    void Replace(std::vector<char16_t> & out,
                 char16_t const * text,
                 char16_t const * pattern,
                 char16_t const * replacement) const override;
    bool StartsWith(char16_t const * text, char16_t const * pattern) const override;
    bool EndsWith(char16_t const * text, char16_t const * pattern) const override;
    void Lower(std::vector<char16_t> & out, char16_t const * text) const override;
    void Upper(std::vector<char16_t> & out, char16_t const * text) const override;
    void LTrim(std::vector<char16_t> & out, char16_t const * text) const override;
    void RTrim(std::vector<char16_t> & out, char16_t const * text) const override;
    void Trim(std::vector<char16_t> & out, char16_t const * text) const override;
    // The one hash of the library that is seeded with 0xFFFFFFFF.
    unsigned Hash(char16_t const * text) const override;
    bool IsEquivalent(Collator const & other) const override;
};

class VELCOREDATA_API BinaryCollatorPool final : public CollatorPool
{
public:
    BinaryCollatorPool();

    Collator const * GetCollator() const override { return &m_collator; }
    TString const & GetName() const override { return m_name; }
    bool IsCaseSensitive() const override { return true; }
    TString const & GetLanguage() const override;
    LCID GetLocale() const override { return 0xFFFFFFFFu; }
    TString const & GetLocaleName() const override;
    TString const & GetDisplayCountry() const override;
    TString const & GetDisplayLanguage() const override;
    unsigned GetCmpFlags() const override { return 0; }
    bool HasWordSort() const override { return false; }
    bool IsWindowsSpecific() const override { return false; }

private:
    BinaryCollator m_collator;
    TString m_name;
};
