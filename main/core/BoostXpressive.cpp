// The back end of Boost.Xpressive. The only source that includes it.

// A broken assumption of the engine about a pattern becomes its exception and not the end of the process.
#define BOOST_ENABLE_ASSERT_HANDLER
#include <boost/assert.hpp>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include <boost/xpressive/xpressive_dynamic.hpp>

#include "main/core/MatchGuard.h"
#include "main/core/RegExBackEnd.h"
#include "velicu/ICUCharacterClass.h"
#include "velicu/ICURegex.h"

namespace xpressive = boost::xpressive;

namespace boost {

void assertion_failed(char const * expression, char const *, char const *, long)
{
    throw xpressive::regex_error(xpressive::regex_constants::error_internal, expression);
}

void assertion_failed_msg(char const * expression, char const *, char const *, char const *, long)
{
    throw xpressive::regex_error(xpressive::regex_constants::error_internal, expression);
}

}  // namespace boost

namespace detail {

namespace {

using VelICU_V2::t_hasCharacterClass;

// Longer or deeper patterns would run out of stack while they are linked or released, where nothing counts.
constexpr std::size_t longestPattern = 2048;
constexpr int deepestPattern = 128;

struct ClassName
{
    std::string_view name;
    unsigned mask;
};

// What ICU's classes do not have.
constexpr unsigned classUnderscore = 0x10000;
constexpr unsigned classNewline = 0x20000;

constexpr unsigned classAlnum = VelICU_V2::CharacterClassAlpha | VelICU_V2::CharacterClassDigit;

constexpr std::array<ClassName, 17> classNames{{
    {"alnum", classAlnum},
    {"alpha", VelICU_V2::CharacterClassAlpha},
    {"blank", VelICU_V2::CharacterClassBlank},
    {"cntrl", VelICU_V2::CharacterClassControl},
    {"d", VelICU_V2::CharacterClassDigit},
    {"digit", VelICU_V2::CharacterClassDigit},
    {"graph", VelICU_V2::CharacterClassGraph},
    {"lower", VelICU_V2::CharacterClassLower},
    {"newline", classNewline},
    {"print", VelICU_V2::CharacterClassPrint},
    {"punct", VelICU_V2::CharacterClassPunct},
    {"s", VelICU_V2::CharacterClassSpace},
    {"space", VelICU_V2::CharacterClassSpace},
    {"upper", VelICU_V2::CharacterClassUpper},
    {"w", classAlnum | classUnderscore},
    {"xdigit", VelICU_V2::CharacterClassHexDigit},
    {"underscore", classUnderscore},
}};

// UTF-16 code units with the properties that ICU gives them; a surrogate has none.
struct UnicodeTraits
{
    using char_type = char16_t;
    using string_type = std::vector<char16_t>;  // as Xpressive defines it for a type that is not char or wchar_t
    using locale_type = int;
    using char_class_type = unsigned;
    using version_tag = xpressive::regex_traits_version_2_tag;

    bool operator==(UnicodeTraits const &) const { return true; }

    static char_type widen(char c) { return static_cast<unsigned char>(c); }
    static unsigned char hash(char_type c) { return static_cast<unsigned char>(c); }
    static char_type translate(char_type c) { return c; }
    static char_type translate_nocase(char_type c) { return Narrow(VelICU_V2::t_u_foldCase(c), c); }
    static char_type tolower(char_type c) { return Narrow(VelICU_V2::t_u_tolower(c), c); }
    static char_type toupper(char_type c) { return Narrow(VelICU_V2::t_u_toupper(c), c); }

    static bool in_range(char_type first, char_type last, char_type c) { return first <= c && c <= last; }
    static bool in_range_nocase(char_type first, char_type last, char_type c)
    {
        return in_range(first, last, c) || in_range(first, last, tolower(c)) || in_range(first, last, toupper(c)) ||
               in_range(first, last, translate_nocase(c));
    }

    template <class Iterator>
    static string_type transform(Iterator begin, Iterator end)
    {
        return string_type(begin, end);
    }
    template <class Iterator>
    static string_type transform_primary(Iterator begin, Iterator end)
    {
        return string_type(begin, end);
    }
    template <class Iterator>
    static string_type lookup_collatename(Iterator, Iterator)
    {
        return string_type();
    }

    template <class Iterator>
    static char_class_type lookup_classname(Iterator begin, Iterator end, bool icase)
    {
        std::string name;
        for (; begin != end; ++begin) {
            auto const c = static_cast<char16_t>(*begin);
            if (c >= 0x80)
                return 0;
            name += static_cast<char>(c >= u'A' && c <= u'Z' ? c + 0x20 : c);  // \S asks for "S" and negates
        }
        auto const found = std::find_if(classNames.begin(), classNames.end(),
                                        [&name](ClassName const & candidate) { return candidate.name == name; });
        if (found == classNames.end())
            return 0;
        constexpr unsigned cases = VelICU_V2::CharacterClassLower | VelICU_V2::CharacterClassUpper;
        return icase && (found->mask & cases) != 0 ? found->mask | cases : found->mask;
    }

    static bool isctype(char_type c, char_class_type mask)
    {
        return ((mask & classUnderscore) != 0 && c == u'_') || ((mask & classNewline) != 0 && IsNewline(c)) ||
               t_hasCharacterClass(c, mask);
    }

    static int value(char_type c, int radix)
    {
        int const digit = c >= u'0' && c <= u'9'   ? c - u'0'
                          : c >= u'a' && c <= u'f' ? c - u'a' + 10
                          : c >= u'A' && c <= u'F' ? c - u'A' + 10
                                                   : radix;
        return digit < radix ? digit : -1;
    }

    static locale_type imbue(locale_type loc) { return loc; }
    static locale_type getloc() { return 0; }

private:
    static bool IsNewline(char_type c)
    {
        return c == u'\n' || c == u'\r' || c == u'\f' || c == 0x85 || c == 0x2028 || c == 0x2029;
    }
    // A mapping that leaves the 16-bit range is no mapping of one code unit.
    static char_type Narrow(char32_t mapped, char_type unmapped)
    {
        return mapped <= 0xFFFF ? static_cast<char_type>(mapped) : unmapped;
    }
};

using Regex = xpressive::basic_regex<GuardedIterator>;
using Match = xpressive::match_results<GuardedIterator>;
using MatchWalk = xpressive::regex_iterator<GuardedIterator>;

[[noreturn]] void ThrowTooComplex(char const * what)
{
    throw xpressive::regex_error(xpressive::regex_constants::error_complexity, what);
}

void RefuseHugePattern(std::u16string_view pattern)
{
    if (pattern.size() > longestPattern)
        ThrowTooComplex("pattern too long");
    int depth = 0;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == u'\\')
            ++i;
        else if (pattern[i] == u'(' && ++depth > deepestPattern)
            ThrowTooComplex("groups nested too deeply");
        else if (pattern[i] == u')' && depth > 0)
            --depth;
    }
}

Regex Compile(char16_t const * pattern, unsigned flags)
{
    std::u16string_view const text = pattern == nullptr ? std::u16string_view() : std::u16string_view(pattern);
    RefuseHugePattern(text);
    auto const syntax = (flags & VelICU_V2::UREGEX_CASE_INSENSITIVE) != 0
                            ? xpressive::regex_constants::icase_ | xpressive::regex_constants::ECMAScript
                            : xpressive::regex_constants::ECMAScript;
    xpressive::regex_compiler<GuardedIterator, UnicodeTraits> compiler;
    // The parser has loops without end of its own, as on "(?#*)".
    MatchGuard guard(text.size());
    return compiler.compile(GuardedIterator(text.data(), guard), GuardedIterator(text.data() + text.size(), guard),
                            syntax);
}

// The text of one operation, with its own bound.
class GuardedText
{
public:
    explicit GuardedText(char16_t const * text)
        : m_text(text == nullptr ? u"" : text), m_length(std::char_traits<char16_t>::length(m_text)), m_guard(m_length)
    {}
    bool IsEmpty() const noexcept { return m_length == 0; }
    GuardedIterator begin() { return GuardedIterator(m_text, m_guard); }
    GuardedIterator end() { return GuardedIterator(m_text + m_length, m_guard); }
    char16_t const * Data() const noexcept { return m_text; }

private:
    char16_t const * m_text;
    std::size_t m_length;
    MatchGuard m_guard;
};

TString TextOf(Match::value_type const & group)
{
    return group.matched
               ? TString::fromView({group.first.Position(), static_cast<std::size_t>(group.second - group.first)})
               : TString();
}

void AppendGroups(Match const & match, std::vector<TString> & groups)
{
    groups.reserve(match.size() - 1);
    for (std::size_t i = 1; i < match.size(); ++i)
        groups.push_back(TextOf(match[i]));
}

class BoostXpressive final : public RegExBackEnd
{
public:
    BoostXpressive(char16_t const * pattern, unsigned flags) : m_regex(Compile(pattern, flags)) {}

    bool match(char16_t const * text) override
    {
        GuardedText range(text);
        return !range.IsEmpty() && xpressive::regex_match(range.begin(), range.end(), m_regex);
    }

    TString replaceAll(char16_t const * text, char16_t const * replacement) override
    {
        GuardedText range(text);
        if (range.IsEmpty())
            return TString();
        std::u16string result;
        char16_t const * const format = replacement == nullptr ? u"" : replacement;
        xpressive::regex_replace(std::back_inserter(result), range.begin(), range.end(), m_regex, format);
        return TString::fromStdU16String(result);
    }

    bool search(char16_t const * text, std::vector<TString> & groups) override
    {
        groups.clear();
        GuardedText range(text);
        Match match;
        if (!xpressive::regex_search(range.begin(), range.end(), match, m_regex))
            return false;
        AppendGroups(match, groups);
        return true;
    }

    bool search(char16_t const * text) override
    {
        GuardedText range(text);
        return xpressive::regex_search(range.begin(), range.end(), m_regex);
    }

    void searchAll(char16_t const * text, std::vector<ReStringParserMatches> & matches) override
    {
        matches.clear();
        GuardedText range(text);
        for (MatchWalk walk(range.begin(), range.end(), m_regex), end; walk != end; ++walk) {
            ReStringParserMatches & record = matches.emplace_back();
            auto const & whole = (*walk)[0];
            record.position =
                whole.matched ? static_cast<std::int32_t>(whole.first.Position() - range.Data()) : std::int32_t{-1};
            AppendGroups(*walk, record.groups);
        }
    }

private:
    Regex m_regex;
};

}  // namespace

void ThrowMatchLimit(MatchLimit limit)
{
    if (limit == MatchLimit::Stack)
        throw xpressive::regex_error(xpressive::regex_constants::error_stack, "stack space exhausted");
    ThrowTooComplex("too many steps");
}

std::unique_ptr<RegExBackEnd> MakeBoostXpressive(char16_t const * pattern, unsigned flags)
{
    return std::make_unique<BoostXpressive>(pattern, flags);
}

}  // namespace detail
