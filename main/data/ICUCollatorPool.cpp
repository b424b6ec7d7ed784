#include "main/data/ICUCollatorPool.h"

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "main/data/CollationTable.h"
#include "main/data/CollatorAttributes.h"
#include "main/data/ICUCollator.h"
#include "velcoredata/string/CoreICUUtils.h"
#include "velicu/LocaleNames.h"
#include "velsys/NoDestructor.h"

using namespace detail;
using VelICU::ICUErrorCode;

namespace {

constexpr unsigned ignoreCase = 0x1;
constexpr unsigned ignoreAccents = 0x2;
constexpr unsigned ignoreSymbols = 0x4;
constexpr unsigned windowsSpecific = 0x80000000u;

struct ThreadTable
{
    std::map<ICUCollatorPool const *, std::shared_ptr<ICUCollator>> collators;

    ThreadTable();
    ~ThreadTable();
};

// The pool asked last, before the map. Plain pointers without a constructor, so reading them costs two loads; the TLS
// model keeps the access free of a call when the library is loaded late.
struct LastCollator
{
    ICUCollatorPool const * pool;
    ICUCollator * collator;
};
__attribute__((tls_model("initial-exec"))) thread_local LastCollator t_last{nullptr, nullptr};
thread_local bool t_hasTable = false;

ThreadTable::ThreadTable()
{
    t_hasTable = true;
}

ThreadTable::~ThreadTable()
{
    t_hasTable = false;
    t_last = {nullptr, nullptr};
}

ThreadTable & MyTable()
{
    thread_local ThreadTable table;
    return table;
}

using DisplayReader = int (*)(char const *, char const *, char16_t *, int, ICUErrorCode &) noexcept;

TString DisplayText(DisplayReader read, std::string const & locale, TString const & keyName)
{
    char16_t text[1024 + 1] = {};
    ICUErrorCode status = VelICU::U_ZERO_ERROR;
    read(locale.c_str(), nullptr, text, 1024, status);
    if (VelICU::ICU_FAILURE(status))
        CoreICUUtils::ThrowICUException(status, keyName);
    return TString(text);
}

TString LanguageOf(std::string const & locale, TString const & keyName)
{
    char text[11 + 1] = {};
    ICUErrorCode status = VelICU::U_ZERO_ERROR;
    VelICU::t_uloc_getLanguage(locale.c_str(), text, 11, status);
    if (VelICU::ICU_FAILURE(status))
        CoreICUUtils::ThrowICUException(status, keyName);
    return TString::fromLatin1(text);
}

// One table serves all pools with the same rules: those of one locale that ignore the same characters. Kept like the
// pools.
std::shared_ptr<CollationTable const> FindCollationTable(CollatorSpec const & spec,
                                                         VelICU::ICU_Collator const * collator)
{
    struct Tables
    {
        std::mutex mutex;
        std::map<std::string, std::shared_ptr<CollationTable const>> byRules;
    };
    static NoDestructor<Tables> tables;

    std::string rules = spec.locale;
    for (auto const & [attribute, value] : spec.attributes)
        if ((attribute == WORDSORT || attribute == IGNORE_DIGITS) && value == ON)
            rules += '|' + std::to_string(attribute);
    {
        std::lock_guard const lock(tables->mutex);
        auto const found = tables->byRules.find(rules);
        if (found != tables->byRules.end())
            return found->second;
    }
    std::shared_ptr<CollationTable const> made = CollationTable::Make(collator);
    std::lock_guard const lock(tables->mutex);
    return tables->byRules.emplace(std::move(rules), std::move(made)).first->second;
}

}  // namespace

ICUCollatorPool::ThreadEntry::~ThreadEntry()
{
    if (!t_hasTable)
        return;
    if (t_last.pool == pool)
        t_last = {nullptr, nullptr};
    MyTable().collators.erase(pool);
}

ICUCollatorPool::ICUCollatorPool(CollatorPoolKey const & key)
    : m_key(key), m_spec(ParseCollatorName(key.name)), m_threadEntry{this}
{
    ICUCollator * const collator = GetICUCollator();
    m_name = m_key.name;
    m_lcid = LCIDFromLocaleName(m_spec.locale, 0x400);
    m_isWindowsSpecific = m_spec.locale.find("_WIN") != std::string::npos;
    m_hasWordSort = std::find(m_spec.attributes.begin(), m_spec.attributes.end(), std::pair<int, int>(WORDSORT, ON)) !=
                    m_spec.attributes.end();
    m_displayLanguage = DisplayText(VelICU::t_uloc_getDisplayLanguage, m_spec.locale, m_key.name);
    m_displayCountry = DisplayText(VelICU::t_uloc_getDisplayCountry, m_spec.locale, m_key.name);
    m_localeName = TString::fromStdString(m_spec.locale);
    m_language = LanguageOf(m_spec.locale, m_key.name);
    DeriveFlags(*collator);
    m_table = FindCollationTable(m_spec, collator->GetHandle());
    collator->UseTable(m_table);
}

ICUCollatorPool::~ICUCollatorPool() = default;

void ICUCollatorPool::DeriveFlags(ICUCollator const & collator)
{
    int const strength = collator.GetAttribute(STRENGTH);
    if (strength == PRIMARY)
        m_cmpFlags = ignoreCase | ignoreAccents;
    else if (strength == SECONDARY)
        m_cmpFlags = ignoreCase;
    if (strength <= TERTIARY && collator.GetAttribute(ALTERNATE_HANDLING) == SHIFTED)
        m_cmpFlags |= ignoreSymbols;
    if (m_isWindowsSpecific)
        m_cmpFlags |= windowsSpecific;
    m_caseSensitive = strength > SECONDARY;
}

Collator const * ICUCollatorPool::GetCollator() const
{
    return GetICUCollator();
}

ICUCollator * ICUCollatorPool::GetICUCollator() const
{
    if (t_last.pool == this)
        return t_last.collator;
    return FindOrMakeCollator();
}

ICUCollator * ICUCollatorPool::FindOrMakeCollator() const
{
    std::shared_ptr<ICUCollator> & entry = MyTable().collators[this];
    if (entry == nullptr) {
        entry = std::make_shared<ICUCollator>(*this, m_key, m_spec);
        entry->UseTable(m_table);
    }
    t_last = {this, entry.get()};
    return entry.get();
}
