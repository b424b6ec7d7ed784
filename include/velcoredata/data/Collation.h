#pragma once

#include <atomic>
#include <string>
#include <vector>

#include "velcoredata/core/Export.h"
#include "velcoredata/data/CollationOptions.h"
#include "velcoredata/data/CollatorRef.h"
#include "velcoreplatform/TString.h"
#include "velsys/Lcid.h"

namespace CollationType {

inline constexpr char16_t s_binary[] = u"binary";
inline constexpr char16_t s_unknown[] = u"LROOT";
inline constexpr unsigned short s_unknownCharset = 0;

}  // namespace CollationType

// How a string compares: a canonical collator name, an opaque character-set number and the shared pool that serves the
// name. A small value to be copied freely; it owns no collator and keeps no pool alive, since pools live until the
// process ends. Any number of threads may read one object: each gets its own collator behind it.
//
// Equality and order look at charset and name, equivalence at behaviour. Laws:
//   a == b implies a.GetHashCode() == b.GetHashCode()
//   a.CopyWithCharset(c) changes == but not the hash
//   a < b  <=>  (a.charset, a.name) < (b.charset, b.name), so < is a strict weak order
//   a.IsEquivalent(a); symmetric unless two locales contain "_WIN"
//   a.UseWordSort(true) then a.UseWordSort(false) gives an equal collation
//
// Every constructor may raise the errors of a bad name (see CollatorNames.h and CollatorPools.h); nothing is left behind
// then. Copying and the rest raise nothing but what is said.
class VELCOREDATA_API Collation : public CollationOptions
{
public:
    // "LROOT" without a charset: the collation of strings of which nothing is known.
    Collation();
    // A collator name, "LEN_RUS_S2"; null means "LROOT". Only the exact "binary" is the binary collation: "BINARY"
    // raises "Unhandled specifier".
    Collation(char16_t const * name, unsigned short charset);
    // An LCID and Windows compare flags, (0x409, 0x1, 0) being "LEN_RUS_S2"; 0xFFFFFFFF is binary.
    Collation(LCID lcid, unsigned cmpFlags, unsigned short charset);
    // An ICU locale, "-" or "_" between its parts, with options; `approximate` as in MakeICUCollatorName.
    Collation(std::string locale,
              bool approximate,
              CaseOpt caseOpt,
              AccentOpt accentOpt,
              SortOpt sortOpt,
              PunctOpt punctOpt,
              unsigned short charset);
    Collation(Collation const & other);
    Collation & operator=(Collation const & other);
    ~Collation();

    // As the constructor from a name, with compare flags that the pool adds to its own.
    static Collation Create(char16_t const * name, unsigned cmpFlags, unsigned short charset);
    // The collation of this one's LCID and flags. What they cannot say is lost: word sort, case first, ignored digits.
    // Bit 31 of the flags is kept only on request. Binary stays binary.
    Collation Clone(bool keepWindowsFlag) const;
    Collation CopyWithCharset(unsigned short charset) const;

    bool IsEqual(Collation const & other) const;
    bool IsLess(Collation const & other) const;
    // Whether both order texts alike, whatever the names; charset plays no part. See Collator::IsEquivalent.
    bool IsEquivalent(Collation const & other) const;
    // The hash of the name, computed once; charset plays no part.
    unsigned GetHashCode() const;

    TString const & GetName() const { return m_name; }
    unsigned short GetCharsetID() const { return m_charset; }
    bool HasCharsetID() const { return m_charset != CollationType::s_unknownCharset; }
    // The calling thread's collator.
    CollatorRef GetCollator() const { return CollatorRef(*m_pool); }

    // Descriptions; see CollatorPool.
    TString const & GetLanguage() const { return m_pool->GetLanguage(); }
    LCID GetLocale() const { return m_pool->GetLocale(); }
    TString const & GetDisplayCountry() const { return m_pool->GetDisplayCountry(); }
    TString const & GetDisplayLanguage() const { return m_pool->GetDisplayLanguage(); }
    unsigned GetCmpFlags() const { return m_pool->GetCmpFlags(); }
    bool IsCaseSensitive() const { return m_pool->IsCaseSensitive(); }
    bool HasWordSort() const { return m_pool->HasWordSort(); }
    // The same answer as HasWordSort.
    bool IsApproximation() const { return m_pool->HasWordSort(); }
    bool IsWindowsSpecific() const { return m_pool->IsWindowsSpecific(); }

    // The operations of the calling thread's collator; see Collator.
    int Compare(char16_t const * a, char16_t const * b) const { return Mine().Compare(a, b); }
    int Compare(char16_t const * a, int aLength, char16_t const * b, int bLength) const
    {
        return Mine().Compare(a, aLength, b, bLength);
    }
    int Search(char16_t const * text, char16_t const * pattern) const { return Mine().Search(text, pattern); }
    int Search(char16_t const * text, char16_t const * pattern, int start, int * matchLength) const
    {
        return Mine().Search(text, pattern, start, matchLength);
    }
    bool StartsWith(char16_t const * text, char16_t const * pattern) const { return Mine().StartsWith(text, pattern); }
    bool EndsWith(char16_t const * text, char16_t const * pattern) const { return Mine().EndsWith(text, pattern); }
    void Replace(std::vector<char16_t> & out,
                 char16_t const * text,
                 char16_t const * pattern,
                 char16_t const * replacement) const
    {
        Mine().Replace(out, text, pattern, replacement);
    }
    void Lower(std::vector<char16_t> & out, char16_t const * text) const { Mine().Lower(out, text); }
    void Upper(std::vector<char16_t> & out, char16_t const * text) const { Mine().Upper(out, text); }
    void LTrim(std::vector<char16_t> & out, char16_t const * text) const { Mine().LTrim(out, text); }
    void RTrim(std::vector<char16_t> & out, char16_t const * text) const { Mine().RTrim(out, text); }
    void Trim(std::vector<char16_t> & out, char16_t const * text) const { Mine().Trim(out, text); }
    unsigned Hash(char16_t const * text) const { return Mine().Hash(text); }

    // Rewrites the name so that word sort is on or off. Switching it on for the binary collation is a logic assertion.
    // Not to be called while another thread reads the object.
    void UseWordSort(bool on);

    // "charset=0x4e4 en_US (LEN_RUS_S2)"; "charset=0x0 BINARY (binary)".
    TString GetDescription() const;

    // 0xFFFFFFFF for "binary" and "C", else ICU's LCID of the locale name, or `defaultLcid` if it has none.
    static LCID LCIDFromLocale(TString const & name, LCID defaultLcid);

private:
    Collation(TString const & name, unsigned short charset, CollatorPool * pool);

    Collator const & Mine() const { return *m_pool->GetCollator(); }

    TString m_name;
    unsigned short m_charset;
    mutable std::atomic<unsigned> m_hash;  // 0: not computed
    CollatorPool * m_pool;
};

inline bool operator==(Collation const & a, Collation const & b)
{
    return a.IsEqual(b);
}
inline bool operator<(Collation const & a, Collation const & b)
{
    return a.IsLess(b);
}
VELCOREDATA_API bool Equivalent(Collation const & a, Collation const & b);

struct VELCOREDATA_API CollationHashFunc
{
    std::size_t operator()(Collation const & collation) const { return collation.GetHashCode(); }
};

// The two fixed identities, made on first use and never freed: code-unit order, and the ICU root collation.
VELCOREDATA_API Collation const & GetBinaryCollation();
VELCOREDATA_API Collation const & GetUnknownCollation();

// For callers that deal in wide C strings.
namespace CollationAdapter {

VELCOREDATA_API Collation GetCollation(LCID lcid, unsigned cmpFlags, unsigned short charset);
// The collation of MakeCollatorName(name, options).
VELCOREDATA_API Collation GetCollation(char16_t const * name,
                                       Collation::CaseOpt caseOpt,
                                       Collation::AccentOpt accentOpt,
                                       Collation::SortOpt sortOpt,
                                       Collation::PunctOpt punctOpt,
                                       unsigned short charset);
VELCOREDATA_API LCID LCIDFromLocale(char16_t const * name, LCID defaultLcid);

}  // namespace CollationAdapter
