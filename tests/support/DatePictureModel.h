// A second, plain writing of the table by which pictures of dates are rewritten, and the library's answer beside it.
#pragma once

#include <algorithm>
#include <string>

#include "main/utility/DatePicture.h"
#include "velcoreplatform/TString.h"

namespace test_support {

enum PictureColumn
{
    ToIcu,
    ToCustom,
    ToQt,
};

inline std::u16string Times(char16_t unit, std::size_t count)
{
    return std::u16string(count, unit);
}

// One cell of the table: a run of `n` times the letter.
inline std::u16string PictureCell(char16_t letter, std::size_t n, PictureColumn column)
{
    switch (letter) {
    case u'H':
    case u'h':
    case u's': return Times(letter, std::min<std::size_t>(n, 2));
    case u'm': return Times(column == ToCustom ? u'n' : u'm', std::min<std::size_t>(n, 2));
    case u'M': return Times(u'M', column != ToQt ? std::min<std::size_t>(n, 5) : n > 4 ? 3 : n);
    case u'd':
        if (column == ToIcu)
            return n <= 2 ? Times(u'd', n) : Times(u'E', std::min<std::size_t>(n, 6));
        return Times(u'd', std::min<std::size_t>(n, 4));
    case u't': return column == ToIcu ? u"a" : column == ToQt ? u"AP" : n == 1 ? u"A/P" : u"AM/PM";
    case u'y': return n < 3 ? u"yy" : u"yyyy";
    default: return Times(letter, n);
    }
}

inline std::u16string QuotedPictureCell(std::u16string const & part, bool closed, PictureColumn column)
{
    if (column != ToCustom)
        return part;
    std::u16string const inner = part.substr(1, part.size() - (closed ? 2 : 1));
    if (inner.empty())
        return u"'";
    std::u16string out = u"\"";
    for (std::size_t i = 0; i < inner.size(); ++i) {
        if (inner[i] == u'"')
            out += u"\"\\\"\"";
        else
            out += inner[i];
        if (inner[i] == u'\'' && i + 1 < inner.size() && inner[i + 1] == u'\'')
            ++i;
    }
    return out + u'"';
}

inline std::u16string RewritePlainly(std::u16string const & picture, PictureColumn column)
{
    std::u16string out;
    for (std::size_t i = 0; i < picture.size();) {
        if (picture[i] == u'\'') {
            if (i + 1 < picture.size() && picture[i + 1] == u'\'') {
                out += column == ToCustom ? u"'" : u"''";
                i += 2;
                continue;
            }
            std::size_t end = i + 1;
            while (end < picture.size()) {
                if (picture[end] != u'\'')
                    ++end;
                else if (end + 1 < picture.size() && picture[end + 1] == u'\'')
                    end += 2;
                else
                    break;
            }
            bool const closed = end < picture.size();
            end += closed ? 1 : 0;
            out += QuotedPictureCell(picture.substr(i, end - i), closed, column);
            i = end;
            continue;
        }
        std::size_t end = i;
        while (end < picture.size() && picture[end] == picture[i])
            ++end;
        if (picture[i] != u'g') {
            out += PictureCell(picture[i], end - i, column);
        } else if (column == ToIcu) {
            out += end - i == 1 ? u"G" : u"GGGG";
        } else {
            out = TString::fromView(out).trimRight().View();
        }
        i = end;
    }
    return out;
}

inline std::u16string RewriteByLibrary(std::u16string const & picture, PictureColumn column)
{
    TString const text = TString::fromView(picture);
    TString const result = column == ToIcu      ? detail::PictureToIcu(text)
                           : column == ToCustom ? detail::PictureToCustom(text)
                                                : detail::PictureToQt(text);
    return std::u16string(result.View());
}

}  // namespace test_support
