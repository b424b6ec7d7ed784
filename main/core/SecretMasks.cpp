#include "main/core/SecretMasks.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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

// What one look at a text finds.
struct Survey
{
    bool zero = false;       // a U+0000 stands in the text
    unsigned present = 0;    // one bit per mask whose key word stands in the text
    int keys = 0;            // key words in the text
    std::size_t equals = 0;  // the "=" of the last of them
};

// Four code units as they lie in memory, the first lowest.
constexpr std::uint64_t FourUnits(char16_t a, char16_t b, char16_t c, char16_t d)
{
    return static_cast<std::uint64_t>(a) | static_cast<std::uint64_t>(b) << 16 | static_cast<std::uint64_t>(c) << 32 |
           static_cast<std::uint64_t>(d) << 48;
}

std::uint64_t LoadFour(char16_t const * units)
{
    return FourUnits(units[0], units[1], units[2], units[3]);
}

// An "=" was seen: the four units that end with it tell all but two of the key words.
void NoteEquals(std::u16string_view text, std::size_t equals, Survey & survey)
{
    if (equals < 3)
        return;
    constexpr std::uint64_t lowerCase = FourUnits(0x20, 0x20, 0x20, 0);
    std::size_t mask = masks.size();
    switch (LoadFour(text.data() + equals - 3) | lowerCase) {
    case FourUnits(u'o', u'r', u'd', u'='): mask = 0; break;
    case FourUnits(u'p', u'w', u'd', u'='): mask = 1; break;
    case FourUnits(u'k', u'e', u'n', u'='): mask = 2; break;
    case FourUnits(u'r', u't', u'k', u'='): mask = 3; break;
    default: return;
    }
    if (!KeyEndsAt(text, 0, equals + 1, masks[mask].key))
        return;
    survey.present |= 1u << mask;
    survey.equals = equals;
    ++survey.keys;
}

Survey SurveyOf(std::u16string_view text)
{
    Survey survey;
    std::size_t i = 0;
#if defined(__SSE2__)
    __m128i const equals = _mm_set1_epi16(u'=');
    __m128i zeros = _mm_setzero_si128();
    for (; i + 16 <= text.size(); i += 16) {
        auto const units = reinterpret_cast<__m128i const *>(text.data() + i);
        __m128i const low = _mm_loadu_si128(units);
        __m128i const high = _mm_loadu_si128(units + 1);
        zeros = _mm_or_si128(
            zeros, _mm_or_si128(_mm_cmpeq_epi16(low, _mm_setzero_si128()), _mm_cmpeq_epi16(high, _mm_setzero_si128())));
        auto found = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_packs_epi16(_mm_cmpeq_epi16(low, equals), _mm_cmpeq_epi16(high, equals))));
        for (; found != 0; found &= found - 1)
            NoteEquals(text, i + static_cast<std::size_t>(std::countr_zero(found)), survey);
    }
    survey.zero = _mm_movemask_epi8(zeros) != 0;
#endif
    for (; i < text.size(); ++i) {
        if (text[i] == u'=')
            NoteEquals(text, i, survey);
        survey.zero |= text[i] == u'\0';
    }
    return survey;
}

// The text with its one key word masked.
TString ApplyOnce(Mask const & mask, TString const & text, std::size_t equals)
{
    auto const units = text.View();
    std::size_t const end = EndOfValue(units, equals + 1, mask.value);
    if (end == units.npos)
        return text;
    std::size_t const start = equals + 1 - mask.key.size();
    std::u16string_view const replacement(mask.replacement);
    TString result;
    result.reserve(static_cast<int>(start + replacement.size() + units.size() - end));
    result.append(units.data(), static_cast<int>(start));
    result.append(replacement.data(), static_cast<int>(replacement.size()));
    result.append(units.data() + end, static_cast<int>(units.size() - end));
    return result;
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
    Survey const survey = SurveyOf(units);
    if (survey.zero)
        return detail::ObfuscateSecretsByPatterns(text);
    if (survey.keys == 0)
        return text;
    if (survey.keys == 1)
        return ApplyOnce(masks[static_cast<std::size_t>(std::countr_zero(survey.present))], text, survey.equals);

    std::u16string current;
    std::u16string next;
    std::u16string_view view = units;
    for (std::size_t i = 0; i < masks.size(); ++i)
        if ((survey.present & (1u << i)) != 0 && Apply(masks[i], view, next)) {
            current.swap(next);
            view = current;
        }
    return view.data() == units.data() ? text : TString::fromView(view);
}
