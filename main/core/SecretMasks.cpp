#include "main/core/SecretMasks.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "velcoredata/core/ReStringParser.h"
#include "velcoredata/core/StringUtils.h"
#include "velicu/ICUCharacterClass.h"

namespace {

enum class Value
{
    NoSpace,      // \S*
    TokenAndEnd,  // [A-Za-z0-9-._~+/]*;
    Alnum         // [A-Za-z0-9]*
};

struct Mask
{
    std::u16string_view key;  // with its "="; searched for in any case
    char16_t const * pattern;
    char16_t const * replacement;
    Value value;
};

// In the order of their use: the result of each feeds the next.
constexpr std::array<Mask, 4> masks{{
    {u"PASSWORD=", u"[Pp][Aa][Ss][Ss][Ww][Oo][Rr][Dd]=\\S*", u"PASSWORD=********", Value::NoSpace},
    {u"PWD=", u"[Pp][Ww][Dd]=\\S*", u"PWD=********", Value::NoSpace},
    {u"TOKEN=", u"[Tt][Oo][Kk][Ee][Nn]=[A-Za-z0-9-._~+/]*;", u"TOKEN=********", Value::TokenAndEnd},
    {u"RTK=", u"[Rr][Tt][Kk]=[A-Za-z0-9]*", u"RTK=********", Value::Alnum},
}};

// By hand, the same: for texts without U+0000, where the pattern sees the whole text and the test before it only saves
// time. No replacement makes a new key word, since it ends in an asterisk or stands before a blank.

bool IsAlnum(char16_t c)
{
    char16_t const lower = c | 0x20;
    return (c >= u'0' && c <= u'9') || (lower >= u'a' && lower <= u'z' && c < 0x80);
}

bool IsSpace(char16_t c)
{
    if (c < 0x80)
        return c == u' ' || (c >= u'\t' && c <= u'\r');
    return VelICU_V2::t_hasCharacterClass(c, VelICU_V2::CharacterClassSpace);
}

bool IsTokenCharacter(char16_t c)
{
    return IsAlnum(c) || c == u'-' || c == u'.' || c == u'_' || c == u'~' || c == u'+' || c == u'/';
}

// The end of the value that begins at `from`, or npos if there is none.
std::size_t EndOfValue(std::u16string_view text, std::size_t from, Value value)
{
    std::size_t i = from;
    switch (value) {
    case Value::NoSpace:
        while (i < text.size() && !IsSpace(text[i]))
            ++i;
        return i;
    case Value::TokenAndEnd:
        while (i < text.size() && IsTokenCharacter(text[i]))
            ++i;
        return i < text.size() && text[i] == u';' ? i + 1 : text.npos;
    case Value::Alnum:
        while (i < text.size() && IsAlnum(text[i]))
            ++i;
        return i;
    }
    return text.npos;
}

// Whether `key` stands in text[from, to) and ends there; letters in any case.
bool KeyEndsAt(std::u16string_view text, std::size_t from, std::size_t to, std::u16string_view key)
{
    if (to - from < key.size())
        return false;
    std::size_t const start = to - key.size();
    for (std::size_t i = 0; i + 1 < key.size(); ++i) {
        char16_t const c = text[start + i];
        if (c >= 0x80 || (c & ~0x20) != key[i])
            return false;
    }
    return true;
}

std::size_t FindEqualsSign(std::u16string_view text, std::size_t from)
{
    auto const found =
        QStringView(text.data(), static_cast<qsizetype>(text.size())).indexOf(u'=', static_cast<qsizetype>(from));
    return found < 0 ? text.npos : static_cast<std::size_t>(found);
}

// False, with `result` undefined, if the mask matches nowhere.
bool Apply(Mask const & mask, std::u16string_view text, std::u16string & result)
{
    std::size_t kept = 0;  // everything before is in `result`
    bool matched = false;
    for (std::size_t equals = FindEqualsSign(text, 0); equals != text.npos; equals = FindEqualsSign(text, equals + 1)) {
        if (!KeyEndsAt(text, kept, equals + 1, mask.key))
            continue;
        std::size_t const end = EndOfValue(text, equals + 1, mask.value);
        if (end == text.npos)
            continue;
        if (!matched)
            result.clear();
        matched = true;
        result.append(text, kept, equals + 1 - mask.key.size() - kept);
        result.append(mask.replacement);
        kept = end;
        equals = end - 1;
    }
    if (matched)
        result.append(text, kept, text.npos);
    return matched;
}

// One bit per mask whose key word stands in the text.
unsigned MasksInQuestion(std::u16string_view text, std::size_t firstEquals)
{
    unsigned found = 0;
    for (std::size_t equals = firstEquals; equals != text.npos; equals = FindEqualsSign(text, equals + 1))
        for (std::size_t i = 0; i < masks.size(); ++i)
            if (KeyEndsAt(text, 0, equals + 1, masks[i].key))
                found |= 1u << i;
    return found;
}

}  // namespace

namespace detail {

TString ObfuscateSecretsByPatterns(TString const & text)
{
    TString result = text;
    for (Mask const & mask : masks)
        if (result.contains(TString::fromView(mask.key), TString::CaseInsensitive))
            result = ReStringParser::ReplaceAll(result, mask.pattern, mask.replacement);
    return result;
}

}  // namespace detail

TString ObfuscateSecretsInString(TString const & text)
{
    auto const units = text.View();
    std::size_t const firstEquals = FindEqualsSign(units, 0);
    if (firstEquals == units.npos)
        return text;
    if (text.contains(u'\0'))
        return detail::ObfuscateSecretsByPatterns(text);
    unsigned const wanted = MasksInQuestion(units, firstEquals);
    if (wanted == 0)
        return text;

    std::u16string current;
    std::u16string next;
    std::u16string_view view = units;
    for (std::size_t i = 0; i < masks.size(); ++i)
        if ((wanted & (1u << i)) != 0 && Apply(masks[i], view, next)) {
            current.swap(next);
            view = current;
        }
    return view.data() == units.data() ? text : TString::fromView(view);
}
