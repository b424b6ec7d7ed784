#include "velcoredata/core/StringUtils.h"

#include <string>

namespace {

// The letter that stands for a character after a backslash, or 0.
char16_t EscapeLetter(char16_t character)
{
    switch (character) {
    case u'\0': return u'0';
    case u'\a': return u'a';
    case u'\b': return u'b';
    case u'\t': return u't';
    case u'\n': return u'n';
    case u'\v': return u'v';
    case u'\f': return u'f';
    case u'\r': return u'r';
    case u'\'': return u'\'';
    case u'\\': return u'\\';
    default: return 0;
    }
}

char16_t EscapedCharacter(char16_t letter)
{
    switch (letter) {
    case u'0': return u'\0';
    case u'a': return u'\a';
    case u'b': return u'\b';
    case u'f': return u'\f';
    case u'n': return u'\n';
    case u'r': return u'\r';
    case u't': return u'\t';
    case u'v': return u'\v';
    default: return letter;
    }
}

// 0 to 15, or -1.
int DigitValue(char16_t c)
{
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return c >= u'a' && c <= u'f' ? c - u'a' + 10 : -1;
}

}  // namespace

TString Escape(TString const & text, TString const & characters, char16_t escape)
{
    if (text.findOneOf(characters, 0) < 0)
        return text;
    auto const set = characters.View();
    std::u16string result;
    result.reserve(static_cast<std::size_t>(text.length()) + 16);
    for (char16_t const c : text.View()) {
        if (set.find(c) != set.npos)
            result += escape;
        result += c;
    }
    return TString::fromView(result);
}

TString CEscape(char16_t character)
{
    char16_t const letter = EscapeLetter(character);
    if (letter == 0)
        return TString(character, 1);
    char16_t const text[] = {u'\\', letter};
    return TString(text, 2);
}

TString CEscape(TString const & text)
{
    std::u16string result;
    result.reserve(static_cast<std::size_t>(text.length()) + 16);
    for (char16_t const c : text.View()) {
        char16_t const letter = EscapeLetter(c);
        if (letter != 0)
            result += u'\\';
        result += letter != 0 ? letter : c;
    }
    return TString::fromView(result);
}

TString CUnescape(TString const & text)
{
    auto const units = text.View();
    std::u16string result;
    result.reserve(units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (units[i] == u'\\' && i + 1 < units.size())
            result += EscapedCharacter(units[++i]);
        else
            result += units[i];
    }
    return TString::fromView(result);
}

TString HexEncode(TString const & text)
{
    static constexpr char16_t digits[] = u"0123456789ABCDEF";
    std::string const bytes = text.toStdString();
    std::u16string result = u"x'";
    result.reserve(2 * bytes.size() + 4);
    for (char const c : bytes) {
        auto const byte = static_cast<unsigned char>(c);
        if (byte == 0)
            break;
        result += digits[byte >> 4];
        result += digits[byte & 15];
    }
    result += u'\'';
    return TString::fromView(result);
}

bool HexDecode(TString const & text, TString & result)
{
    auto const units = text.View();
    std::string bytes;
    bytes.reserve(units.size() / 2);
    bool good = true;
    int high = -1;
    for (char16_t const c : units) {
        int const digit = DigitValue(c);
        if (digit < 0) {
            good = false;
            break;
        }
        if (high < 0) {
            high = digit;
            continue;
        }
        int const byte = 16 * high + digit;
        if (byte == 0)
            break;
        bytes += static_cast<char>(byte);
        high = -1;
    }
    result = TString::fromStdString(bytes);
    return good;
}

bool DecodeHexEncodedString(TString const & text, TString & result)
{
    if (!text.startsWith(u"x'") && !text.startsWith(u"x_"))
        return false;
    int const mark = text.lastIndexOf(u'z');
    TString body = mark < 0 ? text : text.left(mark);
    TString const tail = mark < 0 ? TString() : text.mid(mark + 1);
    if (body.endsWith(u"'") || body.endsWith(u"_"))
        body.truncate(body.length() - 1);
    bool const good = HexDecode(body.mid(2), result);
    if (good) {
        result.removeAll(u'\uFFFD');
        result.append(tail);
    }
    return good;
}
