#include "velcoredata/core/StringUtils.h"

#include <algorithm>

#include <boost/container/small_vector.hpp>

#include "main/core/UnitHash.h"
#include "velcoredata/core/LocalStrings.h"
#include "velcoreplatform/TFormatString.h"
#include "velsys/Hash.h"
#include "velsys/ThrowSite.h"

namespace detail {

std::pair<std::uint64_t, std::uint64_t> UnitHash128(char16_t const * units, int len)
{
    VELTRIA_ASSERT(0 <= len, 0x9DD2957A);
    return THash128(units, sizeof(char16_t) * static_cast<std::size_t>(len), 0xDEADBEEFu, 0xCAFEBABEu);
}

}  // namespace detail

namespace {

template <class Iterator>
TString Join(Iterator first, Iterator last, TString const & separator)
{
    if (first == last)
        return TString();
    long long length = -static_cast<long long>(separator.length());
    for (Iterator item = first; item != last; ++item)
        length += static_cast<long long>(item->length()) + separator.length();
    if (length > 0x7FFFFFFF)
        VELTRIA_THROW(VeltriaException, 0xF43CCF25,
                      TFormatString(u"JoinString: calculated length %1 exceeds maximum length").arg(length));

    TString result;
    result.reserve(static_cast<int>(length));
    result.append(*first);
    for (++first; first != last; ++first)
        result.append(separator).append(*first);
    return result;
}

// The way through a text that SplitString takes. Where a quote was found is kept until the start has passed it, so that
// the whole text is looked at once.
class SeparatorSearch
{
public:
    SeparatorSearch(TString const & text, TString const & separator, TString const & quote)
        : m_text(text), m_separator(separator), m_quote(quote)
    {}

    // The separator that ends the token which begins at `start`, or -1.
    int Next(int start)
    {
        if (m_separator.isEmpty())
            VELTRIA_THROW(VeltriaException, 0xF6FE9A60,
                          CoreData::LookupTStrExported(CoreData::StringId::IDS_STRINGUTILS_MISSING_SEPARATOR));
        int const found = m_text.indexOf(m_separator, start);
        if (m_quote.isEmpty())
            return found;
        FindQuotes(start);
        if (m_firstQuote < 0 || found <= m_firstQuote)
            return found;
        return m_text.indexOf(m_separator, m_secondQuote + 1);
    }

private:
    // The two quotes of the first stretch at or after `start`.
    void FindQuotes(int start)
    {
        if (m_looked && (m_firstQuote < 0 || m_firstQuote >= start))
            return;
        m_looked = true;
        m_firstQuote = m_text.indexOf(m_quote, start);
        if (m_firstQuote < 0)
            return;
        m_secondQuote = m_text.indexOf(m_quote, m_firstQuote + 1);
        if (m_secondQuote < 0)
            VELTRIA_THROW(VeltriaException, 0x79B9C33C,
                          CoreData::LookupTFormatStrExported(CoreData::StringId::IDP_STRINGUTILS_MISMATCH_QUOTE)
                              .arg(m_text.mid(m_firstQuote)));
    }

    TString const & m_text;
    TString const & m_separator;
    TString const & m_quote;
    bool m_looked = false;
    int m_firstQuote = -1;
    int m_secondQuote = -1;
};

}  // namespace

unsigned int StringHash(TString const & text)
{
    return THash32(text.constData(), text.lengthInBytes(), 0xDEADBEEFu);
}

std::pair<std::uint64_t, std::uint64_t> StringHash128(TString const & text)
{
    return detail::UnitHash128(text.constData(), text.length());
}

std::uint64_t TStringHashCompare::hash(TString const & text)
{
    return StringHash(text);
}

bool TStringHashCompare::equal(TString const & a, TString const & b)
{
    return a == b;
}

bool LocaleAwareCaseInsensitiveSort(TString const & a, TString const & b)
{
    return a.CollateNoCase(b) < 0;
}

TString BooleanToString(bool value)
{
    return value ? u"true" : u"false";
}

bool HasAllAsciiCharacters(TString const & text)
{
    auto const units = text.View();
    return std::all_of(units.begin(), units.end(), [](char16_t c) { return c <= 127; });
}

TString LookupString(std::unordered_map<TString, TString> const & map, TString const & key)
{
    auto const found = map.find(key);
    return found == map.end() ? TString() : found->second;
}

TString LookupString(std::unordered_map<TString, TString> const & map, char16_t const * key)
{
    return LookupString(map, TString(key));
}

TString ReplaceLineFeedWithWhiteSpace(TString const & text)
{
    TString result = text;
    if (result.contains(u'\n'))
        result.replace(u'\n', u' ');
    return result;
}

std::string RemoveBytePadding(TString const & text)
{
    auto const units = text.View();
    std::string bytes(units.size(), '\0');
    std::transform(units.begin(), units.end(), bytes.begin(), [](char16_t c) { return static_cast<char>(c & 0xFF); });
    return bytes;
}

TString JoinString(std::set<TString> const & items, TString const & separator)
{
    return Join(items.begin(), items.end(), separator);
}

TString JoinString(std::vector<TString> const & items, TString const & separator)
{
    return Join(items.begin(), items.end(), separator);
}

TString JoinString(std::vector<TString> const & items, char16_t separator)
{
    return Join(items.begin(), items.end(), TString(separator, 1));
}

TString JoinString(boost::container::small_vector_base<TString> const & items, TString const & separator)
{
    return Join(items.begin(), items.end(), separator);
}

TString JoinString(boost::container::small_vector_base<TString> const & items, char16_t separator)
{
    return Join(items.begin(), items.end(), TString(separator, 1));
}

TString JoinString(std::set<TString>::const_iterator first, std::set<TString>::const_iterator last,
                   TString const & separator)
{
    return Join(first, last, separator);
}

TString JoinString(std::vector<TString>::const_iterator first, std::vector<TString>::const_iterator last,
                   TString const & separator)
{
    return Join(first, last, separator);
}

std::vector<TString> SplitString(TString const & text, TString const & separator, TString const & quote)
{
    std::vector<TString> tokens;
    SeparatorSearch search(text, separator, quote);
    int start = 0;
    for (int found = search.Next(start); found >= start; found = search.Next(start)) {
        tokens.push_back(text.mid(start, found - start));
        start = found + separator.length();
    }
    tokens.push_back(text.mid(start));
    return tokens;
}

std::vector<TString> SplitString(TString const & text, char16_t separator, TString const & quote)
{
    return SplitString(text, TString(separator, 1), quote);
}

void DeleteBetween(TString & text, TString const & open, TString const & close)
{
    if (open.isEmpty() && close.isEmpty())
        return;  // the search would stand still

    TString result;
    int kept = 0;  // everything before is in `result`
    int position = 0;
    for (int found = text.indexOf(open, position); found >= 0; found = text.indexOf(open, position)) {
        int const start = found + open.length();
        int const end = text.indexOf(close, start);
        if (end < 0)
            break;  // nor does one follow any later `open`
        result.append(text.View().data() + kept, start - kept);
        kept = end;
        position = end + open.length() + close.length();
    }
    if (kept == 0)
        return;
    text = result.append(text.View().data() + kept, text.length() - kept);
}
