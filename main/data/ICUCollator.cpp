#include "main/data/ICUCollator.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

#include "main/data/CollatorAttributes.h"
#include "main/data/CollatorText.h"
#include "velcoredata/string/CoreICUUtils.h"
#include "velicu/CharacterText.h"
#include "velicu/ICUVersion.h"
#include "velsys/Hash.h"
#include "velsys/ThrowSite.h"

using namespace detail;
using VelICU::ICU_FAILURE;
using VelICU::ICUErrorCode;

namespace {

constexpr std::size_t sortKeyBufferSize = 1024;
constexpr char16_t ignoreDigitsRule[] = u"&[last tertiary ignorable]='0'='1'='2'='3'='4'='5'='6'='7'='8'='9'";

// Apostrophe and hyphen become equal to U+0000, hence ignorable. The escape is ICU's: backslash, u, four zeros.
constexpr char wordSortRule[] = "&\\u0000=''='-'";

bool IsSpace(char16_t unit)
{
    return VelICU::t_u_isWhitespace(unit);
}

int UnitCount(char16_t const * text)
{
    return static_cast<int>(TextOf(text).size());
}

using CaseMapping = int (*)(char16_t *, int, char16_t const *, int, char const *, ICUErrorCode &) noexcept;

// A failed status leaves the empty text.
void MapCase(CaseMapping map, std::vector<char16_t> & out, char16_t const * text, std::string const & locale)
{
    std::u16string_view const in = TextOf(text);
    out.resize(in.size() + 1);
    for (int round = 0; round < 2 && text != nullptr; ++round) {
        ICUErrorCode status = VelICU::U_ZERO_ERROR;
        int const room = static_cast<int>(out.size());
        int const length = map(out.data(), room, text, static_cast<int>(in.size()), locale.c_str(), status);
        if (length >= room) {
            out.resize(static_cast<std::size_t>(length) + 1);
            continue;
        }
        if (ICU_FAILURE(status))
            break;
        out.resize(static_cast<std::size_t>(length) + 1);
        out.back() = 0;
        return;
    }
    out.assign(1, 0);
}

}  // namespace

ICUCollator::ICUCollator(CollatorPool const & pool, CollatorPoolKey const & key, CollatorSpec const & spec)
    : m_name(key.name), m_flags(key.flags), m_pool(&pool), m_locale(spec.locale), m_sortKeyBuffer(sortKeyBufferSize)
{
    ICUErrorCode status = VelICU::U_ZERO_ERROR;
    m_pUCollator = VelICU::t_ucol_open(m_locale.c_str(), status);
    if (m_pUCollator == nullptr || ICU_FAILURE(status))
        ThrowICU(status);
    try {
        for (auto const & [attribute, value] : spec.attributes)
            ApplyCollatorAttribute(attribute, value);
        if (m_locale == "en_US_WIN") {
            constexpr char16_t rule[] = u"&'#'<'@'";
            AppendCollationRules(rule, UnitCount(rule));
        }
    } catch (...) {
        VelICU::t_ucol_close(m_pUCollator);
        throw;
    }
}

ICUCollator::~ICUCollator()
{
    VelICU::t_usearch_close(m_search);
    VelICU::t_ucol_close(m_pUCollator);
}

void ICUCollator::ThrowICU(ICUErrorCode status) const
{
    CoreICUUtils::ThrowICUException(status, m_name);
}

void ICUCollator::ApplyCollatorAttribute(int attr, int value)
{
    if (attr == WORDSORT) {
        if (value != ON)
            return;
        char16_t rule[std::size(wordSortRule)];
        int const length = VelICU::t_u_unescape(wordSortRule, rule, static_cast<int>(std::size(rule)));
        AppendCollationRules(rule, length);
        return;
    }
    if (attr == IGNORE_DIGITS) {
        if (value != ON)
            return;
        char16_t const * const rule =
            VelICU::ICUVersion::Is_ICU_68() ? ignoreDigitsRule : VelICU::t_getIgnoreDigitsRule();
        AppendCollationRules(rule, UnitCount(rule));
        return;
    }
    VELTRIA_ASSERT_TEXT(attr < VelICU::UCOL_ATTRIBUTE_COUNT, "(attr) < VelICU::UCOL_ATTRIBUTE_COUNT", 0xABF34D3D);
    SetAttribute(m_pUCollator, attr, value);
}

void ICUCollator::SetAttribute(VelICU::ICU_Collator * collator, int attribute, int value) const
{
    VELTRIA_ASSERT(collator, 0x4E01E9CE);
    ICUErrorCode status = VelICU::U_ZERO_ERROR;
    VelICU::t_ucol_setAttribute(collator, attribute, value, status);
    if (ICU_FAILURE(status))
        ThrowICU(status);
}

int ICUCollator::GetAttribute(int attribute) const
{
    VELTRIA_ASSERT(m_pUCollator, 0xD78D8E46);
    ICUErrorCode status = VelICU::U_ZERO_ERROR;
    int const value = VelICU::t_ucol_getAttribute(m_pUCollator, attribute, status);
    if (ICU_FAILURE(status))
        ThrowICU(status);
    return value;
}

void ICUCollator::AppendCollationRules(char16_t const * rule, int length)
{
    int oldLength = 0;
    char16_t const * const oldRules = VelICU::t_ucol_getRules(m_pUCollator, oldLength);
    std::u16string rules;
    if (oldLength >= 1)
        rules.assign(oldRules, static_cast<std::size_t>(oldLength));
    rules.append(rule, static_cast<std::size_t>(length));

    VelICU::ICUParseError parseError;
    ICUErrorCode status = VelICU::U_ZERO_ERROR;
    VelICU::ICU_Collator * const changed =
        VelICU::t_ucol_openRules(rules.data(), static_cast<int>(rules.size()), -1, -1, parseError, status);
    if (changed == nullptr || ICU_FAILURE(status))
        ThrowICU(status);
    try {
        for (ColAttributeCounter attribute; attribute.enumVal < ICU_ATTRIBUTE_COUNT; ++attribute)
            SetAttribute(changed, attribute.enumVal, GetAttribute(attribute.enumVal));
    } catch (...) {
        VelICU::t_ucol_close(changed);
        throw;
    }
    VelICU::t_ucol_close(m_pUCollator);
    m_pUCollator = changed;
}

void ICUCollator::UseTable(std::shared_ptr<CollationTable const> table)
{
    if (table == nullptr || GetAttribute(NUMERIC_COLLATION) == ON)
        return;
    bool const plainTies =
        GetAttribute(FRENCH_COLLATION) != ON && GetAttribute(CASE_LEVEL) != ON && GetAttribute(CASE_FIRST) == OFF;
    m_fast = CollationFastPath(std::move(table),
                               {GetAttribute(STRENGTH), GetAttribute(ALTERNATE_HANDLING) == SHIFTED, plainTies});
}

int ICUCollator::Compare(char16_t const * a, int aLength, char16_t const * b, int bLength) const
{
    int order = 0;
    if (aLength > 0 && bLength > 0 && a != nullptr && b != nullptr && m_pUCollator != nullptr &&
        m_fast.DecideByFirst(*a, *b, order)) [[likely]]
        return order;
    return CompareRest(a, aLength, b, bLength);
}

int ICUCollator::Compare(char16_t const * a, char16_t const * b) const
{
    int order = 0;
    if (a != nullptr && b != nullptr && m_pUCollator != nullptr && m_fast.DecideByFirst(*a, *b, order)) [[likely]]
        return order;
    return CompareRest(a, -1, b, -1);
}

// Out of the way, so that the common case needs no stack.
int ICUCollator::CompareRest(char16_t const * a, int aLength, char16_t const * b, int bLength) const
{
    VELTRIA_ASSERT(m_pUCollator, 0x5F14D391);
    int decided = CollationFastPath::undecided;
    if (a != nullptr && b != nullptr) {
        if (aLength >= 0 && bLength >= 0)
            decided = m_fast.Compare(a, a + aLength, b, b + bLength);
        else if (aLength < 0 && bLength < 0)
            decided = m_fast.Compare(a, b);
    }
    return decided != CollationFastPath::undecided ? decided
                                                   : VelICU::t_ucol_strcoll(m_pUCollator, a, aLength, b, bLength);
}

VelICU::ICUStringSearch * ICUCollator::GetCollatorSearch(char16_t const * text, char16_t const * pattern) const
{
    ICUErrorCode status = VelICU::U_ZERO_ERROR;
    if (m_search != nullptr && m_searchPattern == pattern) {
        VelICU::t_usearch_setText(m_search, text, -1, status);
        return ICU_FAILURE(status) ? nullptr : m_search;
    }
    VelICU::t_usearch_close(m_search);
    m_search = nullptr;
    m_searchPattern = TStringCore(pattern);
    VelICU::ICUStringSearch * const opened = VelICU::t_usearch_openFromCollator(
        m_searchPattern.constData(), m_searchPattern.length(), text, -1, m_pUCollator, status);
    if (ICU_FAILURE(status)) {
        VelICU::t_usearch_close(opened);
        return nullptr;
    }
    m_search = opened;
    return m_search;
}

int ICUCollator::Search(char16_t const * text, char16_t const * pattern, int start, int * matchLength) const
{
    VELTRIA_ASSERT(m_pUCollator, 0x8AB385B9);
    if (text == nullptr || pattern == nullptr || *pattern == 0)
        return -1;
    VelICU::ICUStringSearch * const search = GetCollatorSearch(text, pattern);
    if (search == nullptr)
        return -1;
    ICUErrorCode status = VelICU::U_ZERO_ERROR;
    int const at =
        start > 0 ? VelICU::t_usearch_following(search, start, status) : VelICU::t_usearch_first(search, status);
    if (ICU_FAILURE(status))
        return -1;
    if (matchLength != nullptr)
        *matchLength = VelICU::t_usearch_getMatchedLength(search);
    return at;
}

int ICUCollator::Search(char16_t const * text, char16_t const * pattern) const
{
    return Search(text, pattern, 0, nullptr);
}

void ICUCollator::Replace(std::vector<char16_t> & out, char16_t const * text, char16_t const * pattern,
                          char16_t const * replacement) const
{
    VELTRIA_ASSERT(m_pUCollator, 0x80A3E088);
    if (text == nullptr || pattern == nullptr || replacement == nullptr || *pattern == 0)
        return;
    std::u16string_view const in(text);
    std::u16string_view const with(replacement);
    VelICU::ICUStringSearch * const search = GetCollatorSearch(text, pattern);
    out.clear();
    int end = 0;
    while (search != nullptr) {
        ICUErrorCode status = VelICU::U_ZERO_ERROR;
        int const at = end < 1 ? VelICU::t_usearch_first(search, status) : VelICU::t_usearch_next(search, status);
        if (ICU_FAILURE(status) || at == VelICU::SEARCH_DONE)
            break;
        int const length = VelICU::t_usearch_getMatchedLength(search);
        // An ignorable pattern matches nothing at every place: to go on would never end.
        if (length < 1 || at < end)
            break;
        out.insert(out.end(), text + end, text + at);
        out.insert(out.end(), with.begin(), with.end());
        end = at + length;
    }
    out.insert(out.end(), in.begin() + end, in.end());
    out.push_back(0);
}

// The tests that StartsWith and EndsWith share. False: `answer` is final.
bool ICUCollator::IsSearchable(char16_t const * text, char16_t const * pattern, bool & answer) const
{
    answer = text != nullptr && pattern != nullptr && *pattern == 0;
    return text != nullptr && pattern != nullptr && *pattern != 0 && *text != 0 &&
           TextOf(text).size() >= TextOf(pattern).size();
}

bool ICUCollator::StartsWith(char16_t const * text, char16_t const * pattern) const
{
    VELTRIA_ASSERT(m_pUCollator, 0xEA2FBB2E);
    bool answer = false;
    if (!IsSearchable(text, pattern, answer))
        return answer;
    VelICU::ICUStringSearch * const search = GetCollatorSearch(text, pattern);
    if (search == nullptr)
        return false;
    ICUErrorCode status = VelICU::U_ZERO_ERROR;
    int const at = VelICU::t_usearch_preceding(search, UnitCount(pattern), status);
    return !ICU_FAILURE(status) && at == 0;
}

bool ICUCollator::EndsWith(char16_t const * text, char16_t const * pattern) const
{
    VELTRIA_ASSERT(m_pUCollator, 0x549359F8);
    bool answer = false;
    if (!IsSearchable(text, pattern, answer))
        return answer;
    VelICU::ICUStringSearch * const search = GetCollatorSearch(text, pattern);
    if (search == nullptr)
        return false;
    int const length = UnitCount(text);
    ICUErrorCode status = VelICU::U_ZERO_ERROR;
    int const at = VelICU::t_usearch_following(search, length - UnitCount(pattern), status);
    return !ICU_FAILURE(status) && at + VelICU::t_usearch_getMatchedLength(search) == length;
}

void ICUCollator::Lower(std::vector<char16_t> & out, char16_t const * text) const
{
    VELTRIA_ASSERT(m_pUCollator, 0x843AAD7A);
    MapCase(VelICU::t_u_strToLower, out, text, m_locale);
}

void ICUCollator::Upper(std::vector<char16_t> & out, char16_t const * text) const
{
    VELTRIA_ASSERT(m_pUCollator, 0xB0CF0C15);
    MapCase(VelICU::t_u_strToUpper, out, text, m_locale);
}

void ICUCollator::LTrim(std::vector<char16_t> & out, char16_t const * text) const
{
    VELTRIA_ASSERT(m_pUCollator, 0xAF6C523C);
    AssignTerminated(out, TrimmedLeft(TextOf(text), IsSpace));
}

void ICUCollator::RTrim(std::vector<char16_t> & out, char16_t const * text) const
{
    VELTRIA_ASSERT(m_pUCollator, 0xDD0CFB72);
    AssignTerminated(out, TrimmedRight(TextOf(text), IsSpace));
}

void ICUCollator::Trim(std::vector<char16_t> & out, char16_t const * text) const
{
    VELTRIA_ASSERT(m_pUCollator, 0xEF708586);
    AssignTerminated(out, TrimmedLeft(TrimmedRight(TextOf(text), IsSpace), IsSpace));
}

unsigned ICUCollator::Hash(char16_t const * text) const
{
    VELTRIA_ASSERT(m_pUCollator, 0x2FCDB475);
    if (text != nullptr) {
        std::uint8_t key[CollationFastPath::maxKeySize];
        std::size_t const size = m_fast.WriteSortKey(text, key);
        if (size != 0)
            return THash32(key, size, 0xDEADBEEFu);
    }
    // The first request offers half the buffer.
    int capacity = static_cast<int>(std::min<std::size_t>(m_sortKeyBuffer.size() / 2, std::numeric_limits<int>::max()));
    int length = VelICU::t_ucol_getSortKey(m_pUCollator, text, -1, m_sortKeyBuffer.data(), capacity);
    if (length > capacity) {
        m_sortKeyBuffer.resize(2 * static_cast<std::size_t>(length));
        capacity = static_cast<int>(std::min<std::size_t>(m_sortKeyBuffer.size(), std::numeric_limits<int>::max()));
        length = VelICU::t_ucol_getSortKey(m_pUCollator, text, -1, m_sortKeyBuffer.data(), capacity);
    }
    if (length < 0 || static_cast<std::size_t>(length) > m_sortKeyBuffer.size())
        CoreICUUtils::ThrowICUException(u"error generating sort key", m_name);
    return THash32(m_sortKeyBuffer.data(), static_cast<std::size_t>(length), 0xDEADBEEFu);
}

std::uint64_t ICUCollator::KeyPrefix(char16_t const * text) const
{
    std::uint64_t prefix = 0;
    if (m_fast.PrimaryPrefix(text, prefix))
        return prefix;
    // A long text's key is cut; its first bytes are the same.
    std::uint8_t key[sortKeyBufferSize];
    int const length = VelICU::t_ucol_getSortKey(m_pUCollator, text, -1, key, static_cast<int>(sizeof key));
    bool ended = false;
    for (int i = 0; i < 8; ++i) {
        // 1 separates levels, and nothing lower stands inside one.
        ended = ended || i >= length || key[i] <= 1;
        prefix = prefix << 8 | (ended ? 0u : key[i]);
    }
    return prefix;
}

bool ICUCollator::IsEquivalent(Collator const & other) const
{
    auto const * const that = dynamic_cast<ICUCollator const *>(&other);
    if (that == nullptr)
        return false;
    if (m_pool == that->m_pool)
        return true;
    if (m_locale != that->m_locale) {
        if (m_pool->IsWindowsSpecific()) {
            if (m_locale.find(that->m_locale) == std::string::npos)
                return false;
        } else if (that->m_pool->IsWindowsSpecific()) {
            if (that->m_locale.find(m_locale) == std::string::npos)
                return false;
        } else
            return false;
    }
    for (ColAttributeCounter attribute; attribute.enumVal < ICU_ATTRIBUTE_COUNT; ++attribute)
        if (GetAttribute(attribute.enumVal) != that->GetAttribute(attribute.enumVal))
            return false;
    return m_pool->HasWordSort() == that->m_pool->HasWordSort();
}
