// Seeded random texts for property tests of collations: ASCII, separators and quotes, blanks, accented letters,
// combining marks, CJK, emoji, now and then a lone surrogate.
#pragma once

#include <random>
#include <string>

namespace test_support {

class RandomCollationText
{
public:
    explicit RandomCollationText(unsigned seed) : m_engine(seed) {}

    // 0 <= result < n.
    int Below(int n) { return static_cast<int>(m_engine() % static_cast<unsigned>(n)); }
    bool OneIn(int n) { return Below(n) == 0; }

    // Up to `maxUnits` code units or one more; no U+0000 unless asked for.
    std::u16string Text(int maxUnits, bool withNull = false)
    {
        std::u16string text;
        int const units = Below(maxUnits + 1);
        while (static_cast<int>(text.size()) < units)
            Append(text, withNull);
        return text;
    }
    // ASCII letters and digits only.
    std::u16string Word(int minUnits, int maxUnits)
    {
        static constexpr char16_t set[] = u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
        std::u16string text;
        int const units = minUnits + Below(maxUnits - minUnits + 1);
        for (int i = 0; i < units; ++i)
            text += OneOf(set);
        return text;
    }
    // A text close to `text`: one character changed, dropped, doubled or added, or its case turned.
    std::u16string Near(std::u16string text)
    {
        if (text.empty())
            return Text(2);
        auto const at = static_cast<std::size_t>(Below(static_cast<int>(text.size())));
        switch (Below(5)) {
        case 0: text[at] = static_cast<char16_t>(text[at] ^ 0x20); break;
        case 1: text.erase(at, 1); break;
        case 2: text.insert(at, 1, text[at]); break;
        case 3: text.insert(at, 1, u'\u0301'); break;
        default: {
            std::u16string one;
            Append(one, false);
            text.insert(at, one);
        }
        }
        for (char16_t & unit : text)
            if (unit == 0)
                unit = u'0';
        return text;
    }

private:
    // A character of a literal, its terminator excluded.
    template <std::size_t N>
    char16_t OneOf(char16_t const (&set)[N])
    {
        return set[Below(static_cast<int>(N) - 1)];
    }

    void Append(std::u16string & text, bool withNull)
    {
        static constexpr char16_t marks[] = u"[].\"'\\#%,;:- \t@&";
        static constexpr char16_t latin[] = u"éÉöÖäåÅßøñçıİĳœ";
        static constexpr char16_t other[] = u"αΣςжЖчآب中文字漢あアｱ가각กเา";
        switch (Below(withNull ? 13 : 12)) {
        case 0:
        case 1:
        case 2: text += static_cast<char16_t>(u'a' + Below(26)); break;
        case 3: text += static_cast<char16_t>(u'A' + Below(26)); break;
        case 4: text += static_cast<char16_t>(u'0' + Below(10)); break;
        case 5: text += OneOf(marks); break;
        case 6: text += OneOf(latin); break;
        case 7: text += OneOf(other); break;
        case 8: text += static_cast<char16_t>(0x0300 + Below(0x20)); break;
        case 9: text += static_cast<char16_t>(0x4E00 + Below(0x5000)); break;
        case 10: text += OneIn(2) ? u"ch" : OneIn(2) ? u"aa" : u"ll"; break;
        case 11:
            if (OneIn(4))
                text += static_cast<char16_t>(0xD800 + Below(0x800));
            else {
                text += static_cast<char16_t>(0xD83D);
                text += static_cast<char16_t>(0xDE00 + Below(0x40));
            }
            break;
        default: text += char16_t{0}; break;
        }
    }

    std::mt19937 m_engine;
};

}  // namespace test_support
