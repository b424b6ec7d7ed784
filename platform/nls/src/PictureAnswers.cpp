#include <unicode/smpdtfmt.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <memory>

#include "LocaleAnswers.h"

namespace VelNLS::detail {

namespace {

bool IsAsciiLetter(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

bool NeedsQuotes(char16_t unit)
{
    return unit == u'\'' || u_isalpha(unit) || U_IS_SURROGATE(unit);
}

// Text that stands for itself: quoted from its first to its last letter.
void AppendLiteral(std::u16string & picture, std::u16string const & literal)
{
    auto const first = std::find_if(literal.begin(), literal.end(), NeedsQuotes);
    if (first == literal.end()) {
        picture += literal;
        return;
    }
    auto const last = std::find_if(literal.rbegin(), literal.rend(), NeedsQuotes).base();
    picture.append(literal.begin(), first);
    picture += u'\'';
    for (auto unit = first; unit != last; ++unit)
        picture.append(*unit == u'\'' ? 2 : 1, *unit);
    picture += u'\'';
    picture.append(last, literal.end());
}

// One field of an ICU pattern, a run of `count` times the letter.
void AppendField(std::u16string & picture, char16_t letter, std::size_t count)
{
    switch (letter) {
    case u'y':
    case u'u': picture += u"yyyy"; break;
    case u'M':
    case u'L': picture.append(std::min<std::size_t>(count, 4), u'M'); break;
    case u'd': picture.append(std::min<std::size_t>(count, 2), u'd'); break;
    case u'E':
    case u'c': picture += count >= 4 ? u"dddd" : u"ddd"; break;
    case u'G': picture += u"gg"; break;
    case u'a':
    case u'b':
    case u'B': picture += u"tt"; break;
    case u'h':
    case u'K': picture.append(std::min<std::size_t>(count, 2), u'h'); break;
    case u'H':
    case u'k': picture.append(std::min<std::size_t>(count, 2), u'H'); break;
    case u'm':
    case u's': picture.append(std::min<std::size_t>(count, 2), letter); break;
    default: break;  // fields without a counterpart do not stand in the patterns of locales
    }
}

std::u16string LiteralUnit(char16_t unit)
{
    if (unit == u'\u200E' || unit == u'\u200F' || unit == u'\u061C')
        return {};
    return std::u16string(1, u_isUWhiteSpace(unit) ? u' ' : unit);
}

std::u16string PatternOf(std::unique_ptr<icu::DateFormat> const & format)
{
    auto const * const simple = dynamic_cast<icu::SimpleDateFormat const *>(format.get());
    if (simple == nullptr)
        return {};
    icu::UnicodeString pattern;
    simple->toPattern(pattern);
    return std::u16string(pattern.getBuffer(), static_cast<std::size_t>(pattern.length()));
}

}  // namespace

std::u16string WindowsPicture(std::u16string_view pattern)
{
    std::u16string picture;
    std::u16string literal;
    bool quoted = false;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        char16_t const unit = pattern[i];
        if (unit == u'\'') {
            if (i + 1 < pattern.size() && pattern[i + 1] == u'\'') {
                literal += u'\'';
                ++i;
            } else {
                quoted = !quoted;
            }
        } else if (quoted || !IsAsciiLetter(unit)) {
            literal += LiteralUnit(unit);
        } else {
            AppendLiteral(picture, literal);
            literal.clear();
            std::size_t end = i;
            while (end < pattern.size() && pattern[end] == unit)
                ++end;
            AppendField(picture, unit, end - i);
            i = end - 1;
        }
    }
    AppendLiteral(picture, literal);
    return picture;
}

std::u16string PictureAnswer(IcuLocale const & locale, LCTYPE query)
{
    icu::Locale const gregorian((std::string(locale.data.getName()) + "@calendar=gregorian").c_str());
    auto const make = [&gregorian](bool date, icu::DateFormat::EStyle style) {
        std::unique_ptr<icu::DateFormat> const format(date ? icu::DateFormat::createDateInstance(style, gregorian)
                                                           : icu::DateFormat::createTimeInstance(style, gregorian));
        return WindowsPicture(PatternOf(format));
    };
    switch (query) {
    case LOCALE_SSHORTDATE: return make(true, icu::DateFormat::kShort);
    case LOCALE_SLONGDATE: return make(true, icu::DateFormat::kFull);
    case LOCALE_STIMEFORMAT: return make(false, icu::DateFormat::kMedium);
    case LOCALE_SSHORTTIME: return make(false, icu::DateFormat::kShort);
    default: return {};
    }
}

}  // namespace VelNLS::detail
