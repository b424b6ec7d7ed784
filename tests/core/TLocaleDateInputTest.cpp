// Texts that nobody writes, read by TLocale: in time linear in their length, without a trace in the result.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/core/TLocalePeer.h"
#include "tests/support/ValuePrinters.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/DateTime.h"

namespace {

DateTime const SENTINEL = DateTime::FromValue(2134567890123456);
constexpr std::size_t MILLION = 1000000;
constexpr std::size_t LONG = 100000;  // at which a time that is quadratic is felt

std::u16string Repeat(std::u16string_view piece, std::size_t length)
{
    std::u16string text;
    while (text.size() < length)
        text += piece;
    return text;
}

// The value, or the sentinel, of every operation that reads; all agree that a text is none.
bool IsRefused(TLocale const & locale, std::u16string const & text)
{
    DateTime out = SENTINEL;
    bool read = locale.ParseDateTimeTryAllFormats(text.c_str(), out, ParseDateAndTime);
    read = locale.ParseDateTryAllFormats(text.c_str(), out, ParseDateOnly) || read;
    read = locale.ParseDateTime(text.c_str(), u"yyyy-MM-dd HH:mm:ss.SSS", out, ParseDateAndTime) || read;
    read = locale.ParseDateTimeUsingNativeAPIs(text.c_str(), out, ParseDateAndTime) || read;
    read = std::get<0>(locale.ParseTimeTryAllFormats(TString::fromView(text))) || read;
    return !read && out == SENTINEL;
}

}  // namespace

TEST(TLocaleDateInput, LongTextsAreRefusedInLinearTime)
{
    std::vector<std::u16string> const texts = {
        Repeat(u"1", MILLION),
        Repeat(u"x", MILLION),
        Repeat(u"1/a", LONG),
        Repeat(u"2020-01-02 ", LONG),
        u"2020-01-02 03:04:05." + Repeat(u"5", LONG),
        u"2e" + Repeat(u"1", LONG),
        u"2020" + Repeat(u"\u0301", LONG),
        Repeat(u"May", LONG),
        u"2020" + Repeat(u" ", LONG) + u"x",
    };
    TLocale const locale(u"en_US");
    for (std::u16string const & text : texts)
        EXPECT_TRUE(IsRefused(locale, text)) << TString::fromView(text.substr(0, 30)).toStdString();
    TLocale const german(u"de_DE");
    DateTime out = SENTINEL;
    for (std::u16string const & text : {texts[0], texts[3], u"2020-01-02 03:04:05" + Repeat(u"GMT+1:", MILLION)})
        EXPECT_FALSE(german.ParseDateTimeTryAllFormats(text.c_str(), out, ParseDateAndTime));
    EXPECT_EQ(out, SENTINEL);
}

TEST(TLocaleDateInput, LongTextsThatAreDatesAreRead)
{
    TLocale const locale(u"en_US");
    for (std::u16string const & text :
         {Repeat(u"0", MILLION) + u"2020-03-04", Repeat(u" ", MILLION) + u"2020-03-04" + Repeat(u"\t", MILLION)})
    {
        DateTime out = SENTINEL;
        EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(text.c_str(), out, ParseDateAndTime));
        EXPECT_EQ(out, DateTime(2020, 3, 4, 0, 0, 0, 0.0));
    }
}

TEST(TLocaleDateInput, ManyDigitsAreNoFractionOfASecond)
{
    TLocale const locale(u"en_US");
    for (std::size_t digits = 1; digits < 80; ++digits) {
        std::u16string const text = u"2020-01-02 03:04:05." + std::u16string(digits, u'7');
        DateTime out = SENTINEL;
        bool const read = locale.ParseDateTime(text.c_str(), u"yyyy-MM-dd HH:mm:ss.SSS", out, ParseDateAndTime);
        if (digits == 3) {
            EXPECT_EQ(out, DateTime(2020, 1, 2, 3, 4, 5, 0.777));
        }
        if (digits >= 35) {
            EXPECT_FALSE(read) << digits;
        }
        EXPECT_EQ(read, out != SENTINEL);
        locale.ParseDateTimeTryAllFormats(text.c_str(), out, ParseDateAndTime);
        locale.ParseTimeTryAllFormats(TString::fromView(text).mid(11));
    }
}

TEST(TLocaleDateInput, OddCodeUnitsAreNoDates)
{
    std::vector<std::u16string> const texts = {
        u"\xD800",
        u"2020-01-02\xDC00",
        u"\xD83D\xDCC5",
        u"2020\u202E-01-02x",
        std::u16string(u"\0", 1) + u"2020",
        u"\uFFFF",
        u"\uFEFF",
        u"'",
        u"%d",
        u"-",
        u"2020--01--02x",
    };
    TLocale const locale(u"en_US");
    for (std::u16string const & text : texts)
        EXPECT_TRUE(IsRefused(locale, text)) << TString::fromView(text).toStdString();
}

TEST(TLocaleDateInput, TextEndsAtItsTerminator)
{
    TLocale const locale(u"en_US");
    std::u16string const text = std::u16string(u"2020-03-04") + u'\0' + u"x";
    DateTime out = SENTINEL;
    EXPECT_TRUE(locale.ParseDateTime(text.c_str(), u"yyyy-MM-dd", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(2020, 3, 4, 0, 0, 0, 0.0));
    // A text with a length has no end but that.
    EXPECT_FALSE(std::get<0>(locale.ParseTimeTryAllFormats(TString(u"7pm\0", 4))));
}

TEST(TLocaleDateInput, BidirectionalMarksAreReadOver)
{
    TLocale const locale(u"en_US");
    DateTime out = SENTINEL;
    EXPECT_TRUE(locale.ParseDateTimeTryAllFormats(u"\u200F2020-03-04\u200E", out, ParseDateAndTime));
    EXPECT_EQ(out, DateTime(2020, 3, 4, 0, 0, 0, 0.0));
}

TEST(TLocaleDateInput, DigitsOfEveryScriptAreRead)
{
    TLocale const locale(u"en_US");
    int scripts = 0;
    for (char32_t zero = u'0'; zero < 0x20000; ++zero) {
        char32_t const scalar = zero;
        if (!(scalar == U'0' || scalar == 0x0660 || scalar == 0x06F0 || scalar == 0x0966 || scalar == 0x0E50 ||
              scalar == 0x1810 || scalar == 0xFF10 || scalar == 0x104A0 || scalar == 0x1D7CE))
            continue;
        ++scripts;
        TString text;
        for (char16_t const unit : std::u16string_view(u"2020-03-04"))
            text += unit == u'-' ? TString(u"-")
                                 : TString(QString::fromUcs4(std::u32string(1, zero + unit - u'0').data(), 1));
        DateTime out = SENTINEL;
        EXPECT_TRUE(locale.ParseDateTime(text, u"yyyy-MM-dd", out, ParseDateAndTime)) << text.toStdString();
        EXPECT_EQ(out, DateTime(2020, 3, 4, 0, 0, 0, 0.0));
    }
    EXPECT_EQ(scripts, 9);
}

TEST(TLocaleDateInput, PatternsThatIcuRefusesReadNothing)
{
    TLocale const locale(u"en_US");
    for (char16_t const * const pattern : {u"yyyy b", u"'", u"j", u"yyyy'", u"\xD800", u"nnnn"}) {
        DateTime out = SENTINEL;
        locale.ParseDateTime(u"2020-01-02", pattern, out, ParseDateAndTime);
        EXPECT_EQ(out, SENTINEL) << TString(pattern).toStdString();
    }
    std::u16string const longPattern = Repeat(u"yyyy-MM-dd ", 100000);
    DateTime out = SENTINEL;
    EXPECT_FALSE(locale.ParseDateTime(u"2020-01-02", longPattern.c_str(), out, ParseDateAndTime));
    EXPECT_EQ(out, SENTINEL);
}
