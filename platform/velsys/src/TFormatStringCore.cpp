#include "velsys/TFormatStringCore.h"

#include <string>

namespace {

bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

TStringCore FromView(std::u16string_view text)
{
    return TStringCore(text.data(), static_cast<int>(text.size()));
}

}  // namespace

TFormatStringCore::TFormatStringCore(TStringCore const & pattern)
{
    std::u16string_view const text = pattern.View();
    std::size_t literal = 0;
    for (std::size_t i = 0; i + 1 < text.size();) {
        if (text[i] != u'%' || !IsDigit(text[i + 1]) || text[i + 1] == u'0') {
            ++i;
            continue;
        }
        int place = text[i + 1] - u'0';
        std::size_t end = i + 2;
        if (end < text.size() && IsDigit(text[end]))
            place = place * 10 + (text[end++] - u'0');
        if (i > literal)
            m_pieces.push_back({FromView(text.substr(literal, i - literal)), 0});
        m_pieces.push_back({FromView(text.substr(i, end - i)), place});
        literal = i = end;
    }
    if (literal < text.size())
        m_pieces.push_back({FromView(text.substr(literal)), 0});
}

TFormatStringCore::TFormatStringCore(char16_t const * pattern, int length)
    : TFormatStringCore(TStringCore(pattern, length))
{}

int TFormatStringCore::LowestPlaceAbove(int place) const
{
    int lowest = 0;
    for (Piece const & piece : m_pieces)
        if (piece.place > place && (lowest == 0 || piece.place < lowest))
            lowest = piece.place;
    return lowest;
}

TFormatStringCore & TFormatStringCore::arg(TStringCore const & value)
{
    TStringCore const * const values[] = {&value};
    return args(values, 1);
}

TFormatStringCore & TFormatStringCore::args(TStringCore const * const * values, std::size_t count)
{
    int place = 0;
    for (std::size_t i = 0; i < count; ++i) {
        place = LowestPlaceAbove(place);
        if (place == 0)
            break;
        for (Piece & piece : m_pieces)
            if (piece.place == place)
                piece = {*values[i], 0};
    }
    return *this;
}

TStringCore TFormatStringCore::Text() const
{
    QString text;
    for (Piece const & piece : m_pieces)
        text += piece.text.toQString();
    return text;
}
