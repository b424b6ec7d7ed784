#include "velnls/VariantDate.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "velcoreplatform/TString.h"
#include "velnls/LocaleInfo.h"
#include "velnls/LocaleNames.h"
#include "velnls/VariantTime.h"

namespace {

constexpr LCID enUS = 0x409;
constexpr LCID deDE = 0x407;
constexpr LCID frFR = 0x40C;
constexpr LCID jaJP = 0x411;
constexpr double sentinel = 4711.5;

std::string Utf8(std::u16string_view text)
{
    return TString(text.data(), static_cast<int>(text.size())).toStdString();
}

std::u16string Print(double date, LCID lcid = enUS, std::uint32_t flags = 0)
{
    std::u16string text = u"?";
    EXPECT_EQ(VarBstrFromDate(date, lcid, flags, text), S_OK);
    return text;
}

// "Y-M-D h:m:s", "mismatch", "overflow" or "invalid".
std::string Read(std::u16string_view text, LCID lcid = enUS, std::uint32_t flags = 0)
{
    double date = sentinel;
    HRESULT const result = VarDateFromStr(text, lcid, flags, date);
    if (result < 0) {
        EXPECT_EQ(date, sentinel) << Utf8(text);
        return result == DISP_E_TYPEMISMATCH ? "mismatch" : result == DISP_E_OVERFLOW ? "overflow" : "invalid";
    }
    SYSTEMTIME parts{};
    EXPECT_TRUE(VariantTimeToSystemTime(date, parts)) << Utf8(text);
    char line[64];
    std::snprintf(line, sizeof line, "%d-%02d-%02d %02d:%02d:%02d", parts.wYear, parts.wMonth, parts.wDay, parts.wHour,
                  parts.wMinute, parts.wSecond);
    return line;
}

}  // namespace

TEST(VariantDate, ResultsAndFlagsHaveTheirPublishedNumbers)
{
    EXPECT_EQ(S_OK, 0);
    EXPECT_EQ(static_cast<std::uint32_t>(DISP_E_TYPEMISMATCH), 0x80020005u);
    EXPECT_EQ(static_cast<std::uint32_t>(DISP_E_OVERFLOW), 0x8002000Au);
    EXPECT_EQ(static_cast<std::uint32_t>(E_INVALIDARG), 0x80070057u);
    EXPECT_LT(DISP_E_TYPEMISMATCH, 0);
    EXPECT_EQ(VAR_TIMEVALUEONLY, 1u);
    EXPECT_EQ(VAR_DATEVALUEONLY, 2u);
}

TEST(VariantDate, TextIsTheShortDateWithFourDigitsAndTheTimeWithSeconds)
{
    EXPECT_EQ(Print(43832.127835648148), u"1/2/2020 3:04:05 AM");
    EXPECT_EQ(Print(43832.127835648148, deDE), u"02.01.2020 03:04:05");
    EXPECT_EQ(Print(43832.627835648148, frFR), u"02/01/2020 15:04:05");
    EXPECT_EQ(Print(43832.627835648148, jaJP), u"2020/01/02 15:04:05");
    EXPECT_EQ(Print(-657434.0), u"1/1/0100");
    EXPECT_EQ(Print(2958465.0 + 86399.0 / 86400), u"12/31/9999 11:59:59 PM");
}

TEST(VariantDate, WithoutFlagsMidnightHasNoTimeAndTheDayZeroNoDate)
{
    EXPECT_EQ(Print(2.0), u"1/1/1900");
    EXPECT_EQ(Print(0.0), u"12:00:00 AM");
    EXPECT_EQ(Print(0.25), u"6:00:00 AM");
    EXPECT_EQ(Print(2.25), u"1/1/1900 6:00:00 AM");
}

TEST(VariantDate, FlagsTakeOneHalfOfTheText)
{
    EXPECT_EQ(Print(2.25, enUS, VAR_DATEVALUEONLY), u"1/1/1900");
    EXPECT_EQ(Print(2.25, enUS, VAR_TIMEVALUEONLY), u"6:00:00 AM");
    EXPECT_EQ(Print(2.0, enUS, VAR_TIMEVALUEONLY), u"12:00:00 AM");
    EXPECT_EQ(Print(0.0, enUS, VAR_DATEVALUEONLY), u"12/30/1899");
    EXPECT_EQ(Print(2.25, enUS, VAR_DATEVALUEONLY | LOCALE_NOUSEROVERRIDE), u"1/1/1900");
}

TEST(VariantDate, TheFractionHasNoSign)
{
    EXPECT_EQ(Print(-1.25), u"12/29/1899 6:00:00 AM");
    EXPECT_EQ(Print(-0.25), u"6:00:00 AM");
    double date = sentinel;
    EXPECT_EQ(VarDateFromStr(u"12/29/1899 6:00:00 AM", enUS, 0, date), S_OK);
    EXPECT_EQ(date, -1.25);
    EXPECT_EQ(VarDateFromStr(u"6:00:00 PM", enUS, 0, date), S_OK);
    EXPECT_EQ(date, 0.75);
}

TEST(VariantDate, DatesOutOfRangeUnknownFlagsAndUnknownLcidsAreInvalid)
{
    struct Case
    {
        double date;
        LCID lcid;
        std::uint32_t flags;
    };
    Case const cases[] = {
        {-657435.0, enUS, 0},
        {2958466.0, enUS, 0},
        {std::numeric_limits<double>::quiet_NaN(), enUS, 0},
        {std::numeric_limits<double>::infinity(), enUS, 0},
        {1.0, 0x12345, 0},
        {1.0, 0xFFFFFFFF, 0},
        {1.0, enUS, 3},
        {1.0, enUS, 4},
        {1.0, enUS, 0x40000000},
    };
    for (Case const & c : cases) {
        std::u16string text = u"as it was";
        EXPECT_EQ(VarBstrFromDate(c.date, c.lcid, c.flags, text), E_INVALIDARG) << c.date << ' ' << c.flags;
        EXPECT_EQ(text, u"as it was");
    }
    EXPECT_EQ(Read(u"1/2/2020", 0x12345), "invalid");
    EXPECT_EQ(Read(u"1/2/2020", enUS, 3), "invalid");
    EXPECT_EQ(Read(u"1/2/2020", enUS, 8), "invalid");
}

TEST(VariantDate, TextIsReadInTheLocalesOwnStyles)
{
    struct Case
    {
        LCID lcid;
        char16_t const * text;
        char const * expected;
    };
    Case const cases[] = {
        {enUS, u"1/2/2020", "2020-01-02 00:00:00"},
        {enUS, u"01/02/2020", "2020-01-02 00:00:00"},
        {enUS, u"1-2-2020", "2020-01-02 00:00:00"},
        {enUS, u"Jan 2, 2020", "2020-01-02 00:00:00"},
        {enUS, u"january 2 2020", "2020-01-02 00:00:00"},
        {enUS, u"Thursday, January 2, 2020", "2020-01-02 00:00:00"},
        {enUS, u"Thursday, January 2, 2020 at 3:04:05 PM", "2020-01-02 15:04:05"},
        {enUS, u"1/2/2020 3:04 PM", "2020-01-02 15:04:00"},
        {enUS, u"1/2/2020 15:04", "2020-01-02 15:04:00"},
        {enUS, u"Jan 2, 2020 3:04:05 am", "2020-01-02 03:04:05"},
        {enUS, u"2020-01-02", "2020-01-02 00:00:00"},
        {enUS, u"2020-01-02 15:04:05", "2020-01-02 15:04:05"},
        {enUS, u"2020-01-02T15:04:05", "2020-01-02 15:04:05"},
        {enUS, u"3:04 PM", "1899-12-30 15:04:00"},
        {enUS, u"12:00 AM", "1899-12-30 00:00:00"},
        {enUS, u"15:04:05", "1899-12-30 15:04:05"},
        {enUS, u"2/29/2020", "2020-02-29 00:00:00"},
        {deDE, u"2.1.2020", "2020-01-02 00:00:00"},
        {deDE, u"02.01.2020 15:04", "2020-01-02 15:04:00"},
        {deDE, u"2. Januar 2020", "2020-01-02 00:00:00"},
        {deDE, u"Donnerstag, 2. Januar 2020", "2020-01-02 00:00:00"},
        {deDE, u"2. Januar 2020 um 15:04:05", "2020-01-02 15:04:05"},
        {deDE, u"5. M\u00E4rz 2020", "2020-03-05 00:00:00"},
        {frFR, u"2 janvier 2020", "2020-01-02 00:00:00"},
        {frFR, u"2 janv. 2020 15:04", "2020-01-02 15:04:00"},
        {frFR, u"jeudi 2 janvier 2020", "2020-01-02 00:00:00"},
        {jaJP, u"2020/01/02", "2020-01-02 00:00:00"},
        {jaJP, u"2020\u5E741\u67082\u65E5", "2020-01-02 00:00:00"},
        {jaJP, u"2020\u5E741\u67082\u65E5\u6728\u66DC\u65E5", "2020-01-02 00:00:00"},
        {0x412, u"2020\uB144 1\uC6D4 2\uC77C \uC624\uD6C4 3:04", "2020-01-02 15:04:00"},
        {0x419, u"2 \u044F\u043D\u0432\u0430\u0440\u044F 2020 \u0433.", "2020-01-02 00:00:00"},
        {0x419, u"2 \u044F\u043D\u0432\u0430\u0440\u044F 2020", "2020-01-02 00:00:00"},
        {0x42A, u"2 th\u00E1ng 1, 2020", "2020-01-02 00:00:00"},
        {0x41E, u"2 \u0E21\u0E01\u0E23\u0E32\u0E04\u0E21 \u0E04.\u0E28. 2020", "2020-01-02 00:00:00"},
        {0x40D, u"2.1.2020", "2020-01-02 00:00:00"},
        {0x401, u"\u0662/\u0661/\u0662\u0660\u0662\u0660", "2020-01-02 00:00:00"},
        {0xC01, u"\u0662 \u064A\u0646\u0627\u064A\u0631 \u0662\u0660\u0662\u0660", "2020-01-02 00:00:00"},
        {enUS, u"\uFF11/\uFF12/\uFF12\uFF10\uFF12\uFF10", "2020-01-02 00:00:00"},
        {enUS, u" \u00A0 1/2/2020 \u3000", "2020-01-02 00:00:00"},
        {enUS, u"3:04\u202FPM", "1899-12-30 15:04:00"},
    };
    for (Case const & c : cases)
        EXPECT_EQ(Read(c.text, c.lcid), c.expected) << std::hex << c.lcid << ' ' << Utf8(c.text);
}

TEST(VariantDate, YearsOfTwoDigitsAre1930To2029)
{
    EXPECT_EQ(Read(u"1/2/29"), "2029-01-02 00:00:00");
    EXPECT_EQ(Read(u"1/2/30"), "1930-01-02 00:00:00");
    EXPECT_EQ(Read(u"1/2/99"), "1999-01-02 00:00:00");
    EXPECT_EQ(Read(u"1/2/00"), "2000-01-02 00:00:00");
    EXPECT_EQ(Read(u"2/29/00"), "2000-02-29 00:00:00");
    EXPECT_EQ(Read(u"Jan 2, 29"), "2029-01-02 00:00:00");
    EXPECT_EQ(Read(u"Jan 2, 30"), "1930-01-02 00:00:00");
    EXPECT_EQ(Read(u"1/2/0100"), "100-01-02 00:00:00");
    EXPECT_EQ(Read(u"12/31/9999"), "9999-12-31 00:00:00");
    EXPECT_EQ(Read(u"1/2/0099"), "overflow");
    EXPECT_EQ(Read(u"1/2/0000"), "mismatch");
}

TEST(VariantDate, WhateverLeavesADoubtIsAMismatch)
{
    std::u16string const withNull(u"1/2/2020\0", 9);
    for (std::u16string const & text : {std::u16string(),
                                        std::u16string(u"   "),
                                        std::u16string(u"2024-02-30"),
                                        std::u16string(u"2/29/1900"),
                                        std::u16string(u"13/02/2020"),
                                        std::u16string(u"2020-13-01"),
                                        std::u16string(u"2020-01-32"),
                                        std::u16string(u"1/2"),
                                        std::u16string(u"Jan 2"),
                                        std::u16string(u"January 2020"),
                                        std::u16string(u"2020"),
                                        std::u16string(u"1.2.2020"),
                                        std::u16string(u"1/2/020"),
                                        std::u16string(u"1/2/2"),
                                        std::u16string(u"1/2/20200"),
                                        std::u16string(u"1/2/2020x"),
                                        std::u16string(u"x1/2/2020"),
                                        std::u16string(u"1/2/2020 24:00"),
                                        std::u16string(u"1/2/2020 13:00 PM"),
                                        std::u16string(u"1/2/2020 10:60"),
                                        std::u16string(u"10:00:61"),
                                        std::u16string(u"-1/2/2020"),
                                        std::u16string(u"1//2/2020"),
                                        std::u16string(u"1/2/2020 10:00 Uhr"),
                                        std::u16string(u"2. Januar 2020"),
                                        std::u16string(u"Frobuary 2, 2020"),
                                        std::u16string(u"Friday, January 2, 2020"),
                                        std::u16string(u"January 32, 2020"),
                                        std::u16string(u"February 30, 2020"),
                                        std::u16string(u"1/2/2020 1/2/2020"),
                                        std::u16string(u"6e0/2/2020"),
                                        std::u16string(u"hello"),
                                        std::u16string(u"12"),
                                        std::u16string(u"1.5"),
                                        std::u16string(u"1,5"),
                                        withNull,
                                        std::u16string(u"1/2/20\xD800"),
                                        std::u16string(u"\xDC00"
                                                       u"1/2/2020")})
        EXPECT_EQ(Read(text), "mismatch") << Utf8(text);
    EXPECT_EQ(Read(u"1/13/2020", deDE), "mismatch");
    EXPECT_EQ(Read(u"Jan 2, 2020", deDE), "mismatch");
    EXPECT_EQ(Read(u"2020/13/01", jaJP), "mismatch");
}

TEST(VariantDate, HugeTextsAreRefusedUnread)
{
    std::size_t const million = 1000000;
    EXPECT_EQ(Read(std::u16string(million, u'1')), "mismatch");
    EXPECT_EQ(Read(std::u16string(million, u' ')), "mismatch");
    EXPECT_EQ(Read(std::u16string(million, u'\xD800')), "mismatch");
    EXPECT_EQ(Read(u"1/2/2020" + std::u16string(million, u'\u200E')), "mismatch");
    EXPECT_EQ(Read(std::u16string(million, u' ') + u"1/2/2020" + std::u16string(million, u'\u2003')),
              "2020-01-02 00:00:00");
    std::u16string const blanks(120, u' ');
    EXPECT_EQ(Read(u"1/2/" + blanks + u"2020"), "2020-01-02 00:00:00");  // 128 code units
    EXPECT_EQ(Read(u"1/2/" + blanks + u" 2020"), "mismatch");
}

TEST(VariantDate, FlagsTakeOneHalfOfWhatWasRead)
{
    EXPECT_EQ(Read(u"1/2/2020 3:04 PM", enUS, VAR_DATEVALUEONLY), "2020-01-02 00:00:00");
    EXPECT_EQ(Read(u"1/2/2020 3:04 PM", enUS, VAR_TIMEVALUEONLY), "1899-12-30 15:04:00");
    EXPECT_EQ(Read(u"3:04 PM", enUS, VAR_TIMEVALUEONLY), "1899-12-30 15:04:00");
    EXPECT_EQ(Read(u"1/2/2020", enUS, VAR_DATEVALUEONLY | LOCALE_NOUSEROVERRIDE), "2020-01-02 00:00:00");
    EXPECT_EQ(Read(u"1/2/2020", enUS, VAR_TIMEVALUEONLY), "mismatch");
    EXPECT_EQ(Read(u"3:04 PM", enUS, VAR_DATEVALUEONLY), "mismatch");
}

TEST(VariantDate, WhatIsPrintedIsReadBackInEveryLocaleWithAPublishedName)
{
    std::mt19937 random(20200102);
    std::uniform_int_distribution<int> days(-657434, 2958465);
    std::uniform_int_distribution<int> seconds(0, 86399);
    for (VelNLS::PublishedLocaleName const & locale : VelNLS::GetPublishedLocaleNames()) {
        int failed = 0;
        std::string example;
        for (int i = 0; i < 20; ++i) {
            int const day = days(random);
            double const time = i % 4 == 0 ? 0.0 : seconds(random) / 86400.0;
            double const date = day < 0 ? day - time : day + time;
            std::u16string const text = Print(date, locale.lcid);
            double back = sentinel;
            if (VarDateFromStr(text, locale.lcid, 0, back) < 0 || std::fabs(back - date) > 1e-9) {
                ++failed;
                example = Utf8(text);
            }
        }
        EXPECT_EQ(failed, 0) << locale.name << ' ' << example;
    }
}

TEST(VariantDate, WhatIsReadOutOfSpoiltTextsIsInRangeAndReadsTheSameFromItsPrint)
{
    static constexpr std::u16string_view marks = u" /-.,:TaAPpmMe0123456789\u00A0\u0661";
    std::mt19937 random(20240229);
    auto const below = [&](std::size_t n) { return random() % n; };
    int read = 0;
    for (VelNLS::PublishedLocaleName const & locale : VelNLS::GetPublishedLocaleNames()) {
        for (int i = 0; i < 40; ++i) {
            double const time = static_cast<double>(below(86400)) / 86400;
            std::u16string text = Print(static_cast<double>(below(2900000)) + time, locale.lcid);
            for (std::size_t n = 1 + below(2); n > 0; --n) {
                std::size_t const at = below(text.size());
                if (below(2) == 0)
                    text[at] = marks[below(marks.size())];
                else
                    text.erase(at, 1);
            }
            double date = sentinel;
            if (VarDateFromStr(text, locale.lcid, 0, date) < 0)
                continue;
            ++read;
            double again = sentinel;
            ASSERT_EQ(VarDateFromStr(Print(date, locale.lcid), locale.lcid, 0, again), S_OK) << locale.name;
            ASSERT_EQ(again, date) << locale.name << ' ' << Utf8(text);
        }
    }
    EXPECT_GT(read, 2000);
}

TEST(VariantDate, ManyThreadsReadAndPrintInMoreLocalesThanAreKept)
{
    auto const names = VelNLS::GetPublishedLocaleNames();
    std::vector<LCID> lcids;
    for (std::size_t i = 0; i < names.size() && lcids.size() < 20; i += 12)
        lcids.push_back(names[i].lcid);
    std::vector<std::u16string> expected;
    for (LCID const lcid : lcids)
        expected.push_back(Print(43832.25, lcid));
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&, thread] {
            for (std::size_t i = 0; i < 60; ++i) {
                std::size_t const at = (i * (thread + 1)) % lcids.size();
                std::u16string text;
                double date = 0;
                if (VarBstrFromDate(43832.25, lcids[at], 0, text) < 0 || text != expected[at] ||
                    VarDateFromStr(u"2020-01-02", lcids[at], 0, date) < 0 || date != 43832.0)
                    ++wrong;
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}

TEST(VariantDate, TheDefaultsAskForTheUsersLocale)
{
    for (LCID lcid : {0u, 127u, 1024u, 2048u, 3072u, 4096u, 5120u}) {
        EXPECT_EQ(Print(43832.0, lcid), Print(43832.0, GetUserDefaultLCID())) << lcid;
        EXPECT_EQ(Read(u"2020-01-02", lcid), "2020-01-02 00:00:00") << lcid;
    }
}
