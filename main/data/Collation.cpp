#include "velcoredata/data/Collation.h"

#include <algorithm>
#include <utility>

#include "main/data/CollatorAttributes.h"
#include "main/data/CollatorSpec.h"
#include "velcoredata/data/CollatorNames.h"
#include "velcoredata/data/CollatorPools.h"
#include "velcoreplatform/TFormatString.h"

namespace {

constexpr LCID binaryLcid = 0xFFFFFFFFu;
constexpr unsigned windowsSpecific = 0x80000000u;

CollatorPool * FindCollatorPool(char16_t const * name, unsigned cmpFlags)
{
    if (TString::compare(name, CollationType::s_binary, TString::CaseSensitive) == 0)
        return &GetBinaryCollatorPool();
    return &GetICUCollatorPool({name, cmpFlags});
}

CollatorPool * PoolOfLcid(LCID lcid, unsigned cmpFlags)
{
    if (lcid < binaryLcid)
        return FindCollatorPool(MakeCollatorName(lcid, cmpFlags, false), cmpFlags);
    return &GetBinaryCollatorPool();
}

TString NameOfLocale(std::string locale,
                     bool approximate,
                     Collation::CaseOpt caseOpt,
                     Collation::AccentOpt accentOpt,
                     Collation::SortOpt sortOpt,
                     Collation::PunctOpt punctOpt)
{
    std::replace(locale.begin(), locale.end(), '-', '_');
    return MakeICUCollatorName(locale, approximate, caseOpt, accentOpt, sortOpt, punctOpt);
}

char16_t const * OrUnknown(char16_t const * name)
{
    return name == nullptr ? CollationType::s_unknown : name;
}

struct FixedCollations
{
    Collation binary{CollationType::s_binary, CollationType::s_unknownCharset};
    Collation unknown;
};

FixedCollations const & GetFixedCollations()
{
    static FixedCollations const * const fixed = new FixedCollations;
    return *fixed;
}

}  // namespace

Collation::Collation() : Collation(nullptr, CollationType::s_unknownCharset) {}

Collation::Collation(char16_t const * name, unsigned short charset)
    : m_charset(charset), m_hash(0), m_pool(FindCollatorPool(OrUnknown(name), 0))
{
    m_name = m_pool->GetName();
}

Collation::Collation(LCID lcid, unsigned cmpFlags, unsigned short charset)
    : m_charset(charset), m_hash(0), m_pool(PoolOfLcid(lcid, cmpFlags))
{
    m_name = m_pool->GetName();
}

Collation::Collation(std::string locale,
                     bool approximate,
                     CaseOpt caseOpt,
                     AccentOpt accentOpt,
                     SortOpt sortOpt,
                     PunctOpt punctOpt,
                     unsigned short charset)
    : m_name(NameOfLocale(std::move(locale), approximate, caseOpt, accentOpt, sortOpt, punctOpt)),
      m_charset(charset),
      m_hash(0),
      m_pool(FindCollatorPool(m_name, 0))
{
}

Collation::Collation(TString const & name, unsigned short charset, CollatorPool * pool)
    : m_name(name), m_charset(charset), m_hash(0), m_pool(pool)
{
}

Collation::Collation(Collation const & other)
    : CollationOptions(other),
      m_name(other.m_name),
      m_charset(other.m_charset),
      m_hash(other.m_hash.load(std::memory_order_relaxed)),
      m_pool(other.m_pool)
{
}

Collation & Collation::operator=(Collation const & other)
{
    m_name = other.m_name;
    m_charset = other.m_charset;
    m_hash.store(other.m_hash.load(std::memory_order_relaxed), std::memory_order_relaxed);
    m_pool = other.m_pool;
    return *this;
}

Collation::~Collation() = default;

Collation Collation::Create(char16_t const * name, unsigned cmpFlags, unsigned short charset)
{
    CollatorPool * const pool = FindCollatorPool(OrUnknown(name), cmpFlags);
    return Collation(pool->GetName(), charset, pool);
}

Collation Collation::Clone(bool keepWindowsFlag) const
{
    unsigned const flags = GetCmpFlags();
    return Collation(GetLocale(), keepWindowsFlag ? flags : flags & ~windowsSpecific, m_charset);
}

Collation Collation::CopyWithCharset(unsigned short charset) const
{
    Collation copy(*this);
    copy.m_charset = charset;
    return copy;
}

bool Collation::IsEqual(Collation const & other) const
{
    return m_charset == other.m_charset && m_name == other.m_name;
}

bool Collation::IsLess(Collation const & other) const
{
    if (m_charset != other.m_charset)
        return m_charset < other.m_charset;
    return m_name < other.m_name;
}

bool Collation::IsEquivalent(Collation const & other) const
{
    if (m_pool == other.m_pool)
        return true;
    return GetCollator()->IsEquivalent(*other.GetCollator());
}

unsigned Collation::GetHashCode() const
{
    unsigned hash = m_hash.load(std::memory_order_relaxed);
    if (hash == 0)
    {
        hash = HashOf(m_name);
        m_hash.store(hash, std::memory_order_relaxed);
    }
    return hash;
}

void Collation::UseWordSort(bool on)
{
    if (on == m_pool->HasWordSort())
        return;
    TString const name = detail::WithCollatorAttribute(m_name, detail::WORDSORT, on ? detail::ON : detail::OFF);
    m_pool = FindCollatorPool(name, m_pool->GetCmpFlags());
    m_name = m_pool->GetName();
    m_hash.store(0, std::memory_order_relaxed);
}

TString Collation::GetDescription() const
{
    TString text = TFormatString(u"charset=0x%1 ").arg(m_charset, 0, 16, u' ');
    text += m_pool->GetLocaleName();
    text += u" (";
    text += m_name;
    text += u")";
    return text;
}

LCID Collation::LCIDFromLocale(TString const & name, LCID defaultLcid)
{
    if (name == CollationType::s_binary || name == u"C")
        return binaryLcid;
    return detail::LCIDFromLocaleName(name.toStdString(), defaultLcid);
}

bool Equivalent(Collation const & a, Collation const & b)
{
    return a.IsEquivalent(b);
}

Collation const & GetBinaryCollation()
{
    return GetFixedCollations().binary;
}

Collation const & GetUnknownCollation()
{
    return GetFixedCollations().unknown;
}

namespace CollationAdapter {

Collation GetCollation(LCID lcid, unsigned cmpFlags, unsigned short charset)
{
    return Collation(lcid, cmpFlags, charset);
}

Collation GetCollation(char16_t const * name,
                       Collation::CaseOpt caseOpt,
                       Collation::AccentOpt accentOpt,
                       Collation::SortOpt sortOpt,
                       Collation::PunctOpt punctOpt,
                       unsigned short charset)
{
    return Collation(MakeCollatorName(name, caseOpt, accentOpt, sortOpt, punctOpt), charset);
}

LCID LCIDFromLocale(char16_t const * name, LCID defaultLcid)
{
    return Collation::LCIDFromLocale(name, defaultLcid);
}

}  // namespace CollationAdapter
