// The rewriting of pictures against a plain second writing of its table, and what ICU makes of the result.
#include <gtest/gtest.h>

#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "main/utility/DatePicture.h"
#include "tests/support/RandomText.h"

namespace {

enum Column
{
    ToIcu,
    ToCustom,
    ToQt,
};

std::u16string Times(char16_t unit, std::size_t count)
{
    return std::u16string(count, unit);
}

// One cell of the table: a run of `n` times the letter.
std::u16string Cell(char16_t letter, std::size_t n, Column column)
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

std::u16string QuotedCell(std::u16string const & part, bool closed, Column column)
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

std::u16string Rewrite(std::u16string const & picture, Column column)
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
            out += QuotedCell(picture.substr(i, end - i), closed, column);
            i = end;
            continue;
        }
        std::size_t end = i;
        while (end < picture.size() && picture[end] == picture[i])
            ++end;
        if (picture[i] != u'g') {
            out += Cell(picture[i], end - i, column);
        } else if (column == ToIcu) {
            out += end - i == 1 ? u"G" : u"GGGG";
        } else {
            out = TString::fromView(out).trimRight().View();
        }
        i = end;
    }
    return out;
}

std::u16string Ours(std::u16string const & picture, Column column)
{
    TString const text = TString::fromView(picture);
    TString const result = column == ToIcu      ? detail::PictureToIcu(text)
                           : column == ToCustom ? detail::PictureToCustom(text)
                                                : detail::PictureToQt(text);
    return std::u16string(result.View());
}

// Runs of letters, blanks, marks and quotes.
std::u16string RandomPicture(test_support::RandomText & random, std::u16string_view units)
{
    std::u16string picture;
    for (std::size_t n = random.Below(9); n > 0; --n)
        picture += Times(units[random.Below(units.size())], 1 + random.Below(random.Below(4) == 0 ? 8 : 3));
    return picture;
}

std::string Utf8(std::u16string const & text)
{
    return TString::fromView(text).toStdString();
}

}  // namespace

TEST(DatePicturePeer, RandomPicturesAreRewrittenAsTheTableSays)
{
    test_support::RandomText random(74);
    for (int i = 0; i < 10000; ++i) {
        std::u16string const picture = RandomPicture(random, u"HhsmMdgtyHhsmMdgty'' \"./-:,xzEa\u00E9\u6708\xD800");
        for (Column const column : {ToIcu, ToCustom, ToQt})
            ASSERT_EQ(Utf8(Ours(picture, column)), Utf8(Rewrite(picture, column))) << Utf8(picture) << ' ' << column;
    }
}

TEST(DatePicturePeer, AnyTextIsRewrittenWithoutAnError)
{
    test_support::RandomText random(75);
    for (int i = 0; i < 10000; ++i) {
        std::u16string const text = random.Any(20);
        for (Column const column : {ToIcu, ToCustom, ToQt})
            ASSERT_EQ(Ours(text, column), Rewrite(text, column)) << Utf8(text) << ' ' << column;
    }
}

TEST(DatePicturePeer, PicturesOfPlainLettersStayButForTheirLengths)
{
    test_support::RandomText random(76);
    for (int i = 0; i < 10000; ++i) {
        std::u16string picture;
        std::u16string expected;
        char16_t last = 0;
        for (std::size_t n = 1 + random.Below(8); n > 0; --n) {
            char16_t const unit = u"HhsmMdy/-. :"[random.Below(12)];
            if (unit == last)
                continue;
            last = unit;
            std::size_t const run = 1 + random.Below(unit == u'd' ? 2 : 7);
            picture += Times(unit, run);
            bool const clock = unit == u'H' || unit == u'h' || unit == u's' || unit == u'm';
            expected += Times(unit, unit == u'y'   ? (run < 3 ? 2 : 4)
                                    : clock        ? std::min<std::size_t>(run, 2)
                                    : unit == u'M' ? std::min<std::size_t>(run, 5)
                                                   : run);
        }
        ASSERT_EQ(Utf8(Ours(picture, ToIcu)), Utf8(expected)) << Utf8(picture);
    }
}

TEST(DatePicturePeer, IcuTakesWhatComesOutOfLettersWithClosedQuotes)
{
    test_support::RandomText random(77);
    icu::UnicodeString out;
    for (int i = 0; i < 3000; ++i) {
        std::u16string picture = RandomPicture(random, u"hHmsMdyt");
        if (random.Below(2) == 0)
            picture += u"'at o''clock'" + RandomPicture(random, u"hHmsMdyt");
        std::u16string const pattern = Ours(picture, ToIcu);
        UErrorCode status = U_ZERO_ERROR;
        icu::SimpleDateFormat const format(icu::UnicodeString(pattern.c_str()), icu::Locale::getUS(), status);
        ASSERT_TRUE(U_SUCCESS(status)) << Utf8(picture);
        std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(status));
        out.remove();
        format.format(*calendar, out, nullptr, status);
        ASSERT_TRUE(U_SUCCESS(status)) << Utf8(picture) << " -> " << Utf8(pattern);
    }
}
