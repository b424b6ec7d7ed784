#include "main/data/BinaryCollator.h"

#include <algorithm>
#include <cstring>
#include <cwctype>

#include "main/data/CollatorText.h"
#include "velsys/Hash.h"
#include "velsys/NoDestructor.h"

using namespace detail;

namespace
{

bool IsSpace(char16_t unit)
{
    return std::iswspace(static_cast<std::wint_t>(unit)) != 0;
}

bool EqualUnits(char16_t const * a, char16_t const * b, std::size_t n)
{
    return n == 0 || std::memcmp(a, b, 2 * n) == 0;
}

// Four units at a time up to the first difference; std::char_traits<char16_t>::compare goes unit by unit.
int CompareUnits(char16_t const * a, char16_t const * b, std::size_t n)
{
    std::size_t i = 0;
    for (; i + 4 <= n; i += 4)
        if (std::memcmp(a + i, b + i, 8) != 0)
            break;
    for (; i < n; ++i)
        if (a[i] != b[i])
            return a[i] < b[i] ? -1 : 1;
    return 0;
}

int CompareViews(std::u16string_view a, std::u16string_view b)
{
    int const order = CompareUnits(a.data(), b.data(), std::min(a.size(), b.size()));
    if (order != 0 || a.size() == b.size())
        return order;
    return a.size() > b.size() ? 1 : -1;
}

// A result outside the basic plane would change the length; such a unit stays.
char16_t Mapped(char16_t unit, std::wint_t mapped)
{
    return mapped <= 0xFFFF ? static_cast<char16_t>(mapped) : unit;
}

}  // namespace

int BinaryCollator::Compare(char16_t const * a, int aLength, char16_t const * b, int bLength) const
{
    return CompareViews({a, LengthOf(a, aLength)}, {b, LengthOf(b, bLength)});
}

int BinaryCollator::Compare(char16_t const * a, char16_t const * b) const
{
    return CompareViews(TextOf(a), TextOf(b));
}

int BinaryCollator::Search(char16_t const * text, char16_t const * pattern, int start, int * matchLength) const
{
    std::u16string_view const in = TextOf(text);
    std::u16string_view const what = TextOf(pattern);
    if (what.empty())
        return -1;
    long long from = start;
    if (from < 0)
        from = std::max(0ll, from + static_cast<long long>(in.size()));
    std::size_t const at = in.find(what, static_cast<std::size_t>(from));
    if (at == std::u16string_view::npos)
        return -1;
    if (matchLength != nullptr)
        *matchLength = static_cast<int>(what.size());
    return static_cast<int>(at);
}

int BinaryCollator::Search(char16_t const * text, char16_t const * pattern) const
{
    return Search(text, pattern, 0, nullptr);
}

void BinaryCollator::Replace(std::vector<char16_t> & out,
                             char16_t const * text,
                             char16_t const * pattern,
                             char16_t const * replacement) const
{
    std::u16string_view const in = TextOf(text);
    std::u16string_view const what = TextOf(pattern);
    std::u16string_view const with = TextOf(replacement);
    out.clear();
    if (what.empty())
        return;
    std::size_t end = 0;
    for (std::size_t at = in.find(what); at != std::u16string_view::npos; at = in.find(what, end))
    {
        out.insert(out.end(), in.begin() + static_cast<std::ptrdiff_t>(end), in.begin() + static_cast<std::ptrdiff_t>(at));
        out.insert(out.end(), with.begin(), with.end());
        end = at + what.size();
    }
    out.insert(out.end(), in.begin() + static_cast<std::ptrdiff_t>(end), in.end());
    out.push_back(0);
}

bool BinaryCollator::StartsWith(char16_t const * text, char16_t const * pattern) const
{
    std::u16string_view const in = TextOf(text);
    std::u16string_view const what = TextOf(pattern);
    return what.size() <= in.size() && EqualUnits(in.data(), what.data(), what.size());
}

bool BinaryCollator::EndsWith(char16_t const * text, char16_t const * pattern) const
{
    std::u16string_view const in = TextOf(text);
    std::u16string_view const what = TextOf(pattern);
    return what.size() <= in.size() && EqualUnits(in.data() + (in.size() - what.size()), what.data(), what.size());
}

void BinaryCollator::Lower(std::vector<char16_t> & out, char16_t const * text) const
{
    AssignTerminated(out, TextOf(text));
    for (char16_t & unit : out)
        if (std::iswupper(unit) != 0)
            unit = Mapped(unit, std::towlower(unit));
}

void BinaryCollator::Upper(std::vector<char16_t> & out, char16_t const * text) const
{
    AssignTerminated(out, TextOf(text));
    for (char16_t & unit : out)
        if (std::iswlower(unit) != 0)
            unit = Mapped(unit, std::towupper(unit));
}

void BinaryCollator::LTrim(std::vector<char16_t> & out, char16_t const * text) const
{
    AssignTerminated(out, TrimmedLeft(TextOf(text), IsSpace));
}

void BinaryCollator::RTrim(std::vector<char16_t> & out, char16_t const * text) const
{
    AssignTerminated(out, TrimmedRight(TextOf(text), IsSpace));
}

void BinaryCollator::Trim(std::vector<char16_t> & out, char16_t const * text) const
{
    AssignTerminated(out, TrimmedLeft(TrimmedRight(TextOf(text), IsSpace), IsSpace));
}

unsigned BinaryCollator::Hash(char16_t const * text) const
{
    std::u16string_view const in = TextOf(text);
    return THash32(in.data(), 2 * in.size(), 0xFFFFFFFFu);
}

bool BinaryCollator::IsEquivalent(Collator const & other) const
{
    return dynamic_cast<BinaryCollator const *>(&other) != nullptr;
}

BinaryCollatorPool::BinaryCollatorPool() : m_name(u"binary") {}

TString const & BinaryCollatorPool::GetLanguage() const
{
    static NoDestructor<TString> language(u"binary");
    return *language;
}

TString const & BinaryCollatorPool::GetLocaleName() const
{
    static NoDestructor<TString> localeName(u"BINARY");
    return *localeName;
}

namespace
{

TString const & EmptyText()
{
    static NoDestructor<TString> empty;
    return *empty;
}

}  // namespace

TString const & BinaryCollatorPool::GetDisplayCountry() const
{
    return EmptyText();
}

TString const & BinaryCollatorPool::GetDisplayLanguage() const
{
    return EmptyText();
}
