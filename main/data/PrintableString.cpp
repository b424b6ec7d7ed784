#include "velcoredata/data/PrintableString.h"

namespace {

// The letter after the backslash, or 0.
char ShortEscape(char16_t c)
{
    switch (c) {
    case u'\n': return 'n';
    case u'\t': return 't';
    case u'\r': return 'r';
    case u'\\': return '\\';
    case u'"': return '"';
    case u'\'': return '\'';
    default: return 0;
    }
}

}  // namespace

std::string toPrintableString(TString const & text)
{
    constexpr char const * digits = "0123456789ABCDEF";
    std::string out = "\"";
    out.reserve(static_cast<std::size_t>(text.length()) + 2);
    for (char16_t const c : text.View()) {
        if (char const letter = ShortEscape(c)) {
            out += '\\';
            out += letter;
        } else if (c >= 32 && c <= 126)
            out += static_cast<char>(c);
        else {
            out += "\\x";
            for (int shift = 12; shift >= 0; shift -= 4)
                out += digits[(c >> shift) & 15];
        }
    }
    return out + '"';
}
