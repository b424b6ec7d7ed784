// Character tests of the platform.
#pragma once

class CorePlatformUtils
{
public:
    // True for a code unit that may stand in an XML 1.0 document: tab, line feed, carriage return and everything from
    // U+0020 on but U+FFFE and U+FFFF. Surrogates may stand (in pairs).
    static constexpr bool IsValidCharacter(char16_t c) noexcept
    {
        return c >= 0x20 ? c < 0xFFFE : (c == u'\t' || c == u'\n' || c == u'\r');
    }
};

class TCType
{
public:
    // ASCII digits only.
    static constexpr bool isDigit(char16_t c) noexcept { return c >= u'0' && c <= u'9'; }
};
