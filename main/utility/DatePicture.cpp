#include "main/utility/DatePicture.h"

#include <algorithm>

namespace detail {

namespace {

enum class Notation
{
    Icu,
    Custom,
    Qt,
};

void AppendRun(TString & out, char16_t character, int length)
{
    out.append(TString(character, length));
}

// `part` includes its quotes, the closing one unless the picture ended first.
void AppendQuoted(TString & out, TString const & part, Notation notation)
{
    if (notation != Notation::Custom) {
        out.append(part);
        return;
    }
    int const inner = part.length() - 1 - (part.length() > 1 && part.endsWith(u"'") ? 1 : 0);
    TString text = part.mid(1, inner);
    if (text.isEmpty()) {
        out.append(u'\'');
        return;
    }
    text.replace(TString(u"''"), TString(u"'"));
    text.replace(TString(u"\""), TString(u"\"\\\"\""));
    out.append(u'"').append(text).append(u'"');
}

void AppendEra(TString & out, int length, Notation notation)
{
    if (notation == Notation::Icu)
        out.append(length == 1 ? u"G" : u"GGGG");
    else
        out.trimRight();
}

void AppendHalfOfDay(TString & out, int length, Notation notation)
{
    switch (notation) {
    case Notation::Icu: out.append(u'a'); break;
    case Notation::Custom: out.append(length == 1 ? u"A/P" : u"AM/PM"); break;
    case Notation::Qt: out.append(u"AP"); break;
    }
}

void AppendLetters(TString & out, char16_t letter, int length, Notation notation)
{
    switch (letter) {
    case u'H':
    case u'h':
    case u's': AppendRun(out, letter, std::min(length, 2)); break;
    case u'm': AppendRun(out, notation == Notation::Custom ? u'n' : u'm', std::min(length, 2)); break;
    case u'M':
        if (notation == Notation::Qt)
            AppendRun(out, letter, length > 4 ? 3 : length);
        else
            AppendRun(out, letter, std::min(length, 5));
        break;
    case u'd':
        if (notation == Notation::Icu && length > 2)
            AppendRun(out, u'E', std::min(length, 6));
        else
            AppendRun(out, letter, std::min(length, 4));
        break;
    case u'g': AppendEra(out, length, notation); break;
    case u't': AppendHalfOfDay(out, length, notation); break;
    case u'y': out.append(length < 3 ? u"yy" : u"yyyy"); break;
    default: AppendRun(out, letter, length); break;
    }
}

// Index behind the quoted part that opens at `open`: a quote closes it unless it is doubled.
int EndOfQuoted(TString const & picture, int open)
{
    int i = open + 1;
    while (i < picture.length()) {
        if (picture[i] != u'\'') {
            ++i;
        } else if (i + 1 < picture.length() && picture[i + 1] == u'\'') {
            i += 2;
        } else {
            return i + 1;
        }
    }
    return picture.length();
}

TString Rewrite(TString const & picture, Notation notation)
{
    TString out;
    int i = 0;
    while (i < picture.length()) {
        char16_t const character = picture[i];
        int end = i + 1;
        while (end < picture.length() && picture[end] == character)
            ++end;
        int const length = end - i;
        if (character != u'\'') {
            AppendLetters(out, character, length, notation);
            i = end;
        } else if (length == 1) {
            end = EndOfQuoted(picture, i);
            AppendQuoted(out, picture.mid(i, end - i), notation);
            i = end;
        } else {
            // Two quotes outside a quoted part are one quote as text.
            out.append(notation == Notation::Custom ? u"'" : u"''");
            i += 2;
        }
    }
    return out;
}

}  // namespace

TString PictureToIcu(TString const & picture)
{
    return Rewrite(picture, Notation::Icu);
}

TString PictureToCustom(TString const & picture)
{
    return Rewrite(picture, Notation::Custom);
}

TString PictureToQt(TString const & picture)
{
    return Rewrite(picture, Notation::Qt);
}

}  // namespace detail
