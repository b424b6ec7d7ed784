// Random text for property tests: ASCII, the marks of the library's grammars, blanks, U+0000, combining marks, CJK,
// pairs and now and then a lone surrogate.
#pragma once

#include <random>
#include <string>
#include <string_view>

namespace test_support {

class RandomText
{
public:
    explicit RandomText(unsigned seed) : m_random(seed) {}

    std::mt19937 & Generator() { return m_random; }

    // 0 to n - 1.
    std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(m_random); }

    // Up to `longest` pieces of the mix.
    std::u16string Any(std::size_t longest) { return Text(longest, true, true); }
    // Without lone surrogates and U+0000.
    std::u16string WellFormed(std::size_t longest) { return Text(longest, false, false); }

    // Up to `longest` pieces, each one of `pieces`.
    template <class Pieces>
    std::u16string Of(Pieces const & pieces, std::size_t longest)
    {
        std::u16string text;
        for (std::size_t n = Below(longest + 1); n > 0; --n)
            text += *(std::begin(pieces) + static_cast<std::ptrdiff_t>(Below(std::size(pieces))));
        return text;
    }

private:
    std::u16string Text(std::size_t longest, bool surrogates, bool zeros)
    {
        static constexpr std::u16string_view marks = u"[]().\"'\\#%,;:- z_x=";
        static constexpr std::u16string_view others = u"\u00E9\u0301\u4E2D\u8A9E\u00DF\u0130\u00A0\u3000\t\n\r\v";
        std::u16string text;
        for (std::size_t n = Below(longest + 1); n > 0; --n) {
            switch (Below(16)) {
            case 0:
            case 1:
            case 2:
            case 3:
            case 4:
            case 5: text += static_cast<char16_t>(u'!' + Below(94)); break;
            case 6:
            case 7:
            case 8:
            case 9: text += marks[Below(marks.size())]; break;
            case 10:
            case 11:
            case 12: text += others[Below(others.size())]; break;
            case 13:
                text += static_cast<char16_t>(0xD83D);
                text += static_cast<char16_t>(0xDE00 + Below(64));
                break;
            case 14:
                if (zeros)
                    text += u'\0';
                break;
            default:
                if (surrogates && Below(4) == 0)
                    text += static_cast<char16_t>(0xD800 + Below(0x800));
            }
        }
        return text;
    }

    std::mt19937 m_random;
};

}  // namespace test_support
