#include "velcoredata/core/ColorObjectParser.h"

#include <array>
#include <string_view>

#include "velcoreplatform/TLog.h"

namespace {

using Text = std::u16string_view;

// The digit's value, or -1.
int HexadecimalDigit(char16_t c) noexcept
{
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return c >= u'a' && c <= u'f' ? c - u'a' + 10 : -1;
}

// "#" and a pair of digits for each channel, alpha last; the text has 7 or 9 characters.
bool ReadPairs(Text text, std::array<unsigned char, 4> & channels) noexcept
{
    if (text[0] != u'#')
        return false;
    for (std::size_t i = 1; i < text.size(); i += 2) {
        int const high = HexadecimalDigit(text[i]);
        int const low = HexadecimalDigit(text[i + 1]);
        if (high < 0 || low < 0)
            return false;
        channels[i / 2] = static_cast<unsigned char>(high * 16 + low);
    }
    return true;
}

// One to three digits of at most 255 and the mark behind them, which are taken off `rest`.
bool ReadInteger(Text & rest, char16_t mark, unsigned char & channel) noexcept
{
    int value = 0;
    std::size_t digits = 0;
    while (digits < rest.size() && rest[digits] >= u'0' && rest[digits] <= u'9') {
        value = value * 10 + (rest[digits] - u'0');
        if (++digits > 3)
            return false;
    }
    if (digits == 0 || value > 255 || digits == rest.size() || rest[digits] != mark)
        return false;
    channel = static_cast<unsigned char>(value);
    rest.remove_prefix(digits + 1);
    return true;
}

// "rgb(1,2,3)" or "rgba(1,2,3,4)".
bool ReadIntegers(Text text, std::array<unsigned char, 4> & channels) noexcept
{
    Text rest = text.substr(3);
    std::size_t count = 3;
    if (rest[0] == u'a') {
        rest.remove_prefix(1);
        count = 4;
    }
    if (rest[0] != u'(')
        return false;
    rest.remove_prefix(1);
    for (std::size_t i = 0; i < count; ++i)
        if (!ReadInteger(rest, i + 1 == count ? u')' : u',', channels[i]))
            return false;
    return rest.empty();
}

bool Read(Text text, std::array<unsigned char, 4> & channels) noexcept
{
    if (text.size() == 7 || text.size() == 9)
        return ReadPairs(text, channels);
    return text.size() >= 10 && text.substr(0, 3) == u"rgb" && ReadIntegers(text, channels);
}

}  // namespace

ColorObjectParser::ColorObjectParser(char16_t const * text)
{
    TString packed(text);
    packed.removeAll(u' ');
    std::array<unsigned char, 4> channels{0, 0, 0, 255};
    m_failed = !Read(packed.View(), channels);
    if (m_failed)
        return;
    m_red = channels[0];
    m_green = channels[1];
    m_blue = channels[2];
    m_alpha = channels[3];
}

ColorObject ColorObjectParser::Parse(char16_t const * text)
{
    ColorObjectParser const parser(text);
    if (parser.Failed())
        LogMessage(TFormatString(u"Warning: could not parse color %1\n").arg(text));
    ColorObject color;
    color.SetRGBA(parser.m_red, parser.m_green, parser.m_blue, parser.m_alpha);
    return color;
}
