// The rewriting of pictures against a plain second writing of its table, and what ICU makes of the result.
#include <gtest/gtest.h>

#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "main/utility/DatePicture.h"
#include "tests/support/DatePictureModel.h"
#include "tests/support/RandomText.h"

namespace {

using namespace test_support;

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
        for (PictureColumn const column : {ToIcu, ToCustom, ToQt})
            ASSERT_EQ(Utf8(RewriteByLibrary(picture, column)), Utf8(RewritePlainly(picture, column)))
                << Utf8(picture) << ' ' << column;
    }
}

TEST(DatePicturePeer, AnyTextIsRewrittenWithoutAnError)
{
    test_support::RandomText random(75);
    for (int i = 0; i < 10000; ++i) {
        std::u16string const text = random.Any(20);
        for (PictureColumn const column : {ToIcu, ToCustom, ToQt})
            ASSERT_EQ(RewriteByLibrary(text, column), RewritePlainly(text, column)) << Utf8(text) << ' ' << column;
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
        ASSERT_EQ(Utf8(RewriteByLibrary(picture, ToIcu)), Utf8(expected)) << Utf8(picture);
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
        std::u16string const pattern = RewriteByLibrary(picture, ToIcu);
        UErrorCode status = U_ZERO_ERROR;
        icu::SimpleDateFormat const format(icu::UnicodeString(pattern.c_str()), icu::Locale::getUS(), status);
        ASSERT_TRUE(U_SUCCESS(status)) << Utf8(picture);
        std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(status));
        out.remove();
        format.format(*calendar, out, nullptr, status);
        ASSERT_TRUE(U_SUCCESS(status)) << Utf8(picture) << " -> " << Utf8(pattern);
    }
}
