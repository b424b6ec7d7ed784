#include "velicu/ICUDateFormat.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/smpdtfmt.h>

#include "tests/support/ErrorMatchers.h"
#include "velicu/ScopedStatusFault.h"

namespace VelICU_V2 {

namespace {

constexpr double DAY = 86400000.0;
constexpr double NOON_2020 = 18262 * DAY + DAY / 2;  // 2020-01-01 12:00

std::unique_ptr<ICUSimpleDateFormat> FormatFor(char16_t const * pattern, char const * locale)
{
    ICUErrorCode status = U_ZERO_ERROR;
    auto format = ICUSimpleDateFormat::createInstance(pattern, *ICULocale::createInstance(locale), status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    return format;
}

TString Text(ICUDateFormat const & format, double milliseconds)
{
    ICUErrorCode status = U_ZERO_ERROR;
    TString text = format.format(milliseconds, status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    return text;
}

double Moment(ICUDateFormat const & format, char16_t const * text)
{
    ICUErrorCode status = U_ZERO_ERROR;
    double const moment = format.parse(text, status);
    EXPECT_TRUE(ICU_SUCCESS(status));
    return moment;
}

}  // namespace

TEST(ICUDateFormat, RunsInUtcOnTheGregorianCalendarUnlessTheLocaleNamesAnother)
{
    EXPECT_EQ(TString(u"2020-01-01 12:00:00.000 +0000"),
              Text(*FormatFor(u"yyyy-MM-dd HH:mm:ss.SSS Z", "en_US"), NOON_2020));
    EXPECT_EQ(TString(u"2020"), Text(*FormatFor(u"yyyy", "th_TH"), NOON_2020));
    EXPECT_EQ(TString(u"2563"), Text(*FormatFor(u"yyyy", "th_TH@calendar=buddhist"), NOON_2020));
    EXPECT_EQ(TString(u"1582-10-10"), Text(*FormatFor(u"yyyy-MM-dd", "en_US"), -141432 * DAY));
    EXPECT_EQ(TString(u"2020"), Text(*FormatFor(u"yyyy", ""), NOON_2020));
}

TEST(ICUDateFormat, SpeaksTheLocale)
{
    EXPECT_EQ(TString(u"Mittwoch, 1. Januar 2020"), Text(*FormatFor(u"EEEE, d. MMMM yyyy", "de_DE"), NOON_2020));
    ICUErrorCode status = U_ZERO_ERROR;
    EXPECT_EQ(TString(u"Wednesday, January"),
              Text(*ICUSimpleDateFormat::createInstance(u"EEEE, MMMM", status), NOON_2020));
}

TEST(ICUDateFormat, AgreesWithPlainIcuInLocalesThatAreGregorian)
{
    std::int32_t count = 0;
    icu::Locale const * const locales = icu::Locale::getAvailableLocales(count);
    int compared = 0;
    for (std::int32_t i = 0; i < count; i += 5) {
        UErrorCode status = ::U_ZERO_ERROR;
        icu::SimpleDateFormat plain(u"EEEE d MMMM yyyy HH:mm:ss.SSS a QQQQ w", locales[i], status);
        if (std::string("gregorian") != plain.getCalendar()->getType())
            continue;
        ++compared;
        plain.adoptTimeZone(icu::TimeZone::getGMT()->clone());
        icu::UnicodeString expected;
        plain.format(NOON_2020, expected);
        auto const ours = FormatFor(u"EEEE d MMMM yyyy HH:mm:ss.SSS a QQQQ w", locales[i].getName());
        EXPECT_EQ(TString(expected.getBuffer(), expected.length()), Text(*ours, NOON_2020)) << locales[i].getName();
    }
    EXPECT_GT(compared, 100);
}

TEST(ICUDateFormat, ParsesTheStartOfATextOrFails)
{
    auto const format = FormatFor(u"yyyy-MM-dd", "en_US");
    EXPECT_EQ(18262 * DAY, Moment(*format, u"2020-01-01"));
    EXPECT_EQ(18262 * DAY, Moment(*format, u"2020-01-01 and more"));
    ICUErrorCode status = U_ZERO_ERROR;
    format->parse(u"yesterday", status);
    EXPECT_TRUE(ICU_FAILURE(status));
}

TEST(ICUDateFormat, ParsesIntoACalendarAndTellsByThePosition)
{
    auto const format = FormatFor(u"yyyy-MM-dd", "en_US");
    ICUErrorCode status = U_ZERO_ERROR;
    auto const calendar = ICUCalendar::createInstance(status);
    calendar->clear();
    auto const good = ICUParsePosition::createInstance();
    EXPECT_EQ(0, good->getIndex());
    EXPECT_EQ(-1, good->getErrorIndex());
    format->parse(u"2020-02-03 x", *calendar, *good);
    EXPECT_EQ(10, good->getIndex());
    EXPECT_EQ(-1, good->getErrorIndex());
    EXPECT_EQ((18262 + 33) * DAY, calendar->getTime(status));

    auto const bad = ICUParsePosition::createInstance();
    format->parse(u"2020-x", *calendar, *bad);
    EXPECT_EQ(0, bad->getIndex());
    EXPECT_EQ(5, bad->getErrorIndex());
}

TEST(ICUDateFormat, NumbersThatIcuCannotBearAreNotRead)
{
    auto const reads = [](char16_t const * pattern, std::u16string const & text) {
        ICUErrorCode status = U_ZERO_ERROR;
        auto const calendar = ICUCalendar::createInstance(status);
        auto const position = ICUParsePosition::createInstance();
        auto const format = FormatFor(pattern, "en_US");
        format->parse(TString::fromStdU16String(text), *calendar, *position);
        format->parse(TString::fromStdU16String(text), status);
        EXPECT_EQ(position->getErrorIndex() == -1, ICU_SUCCESS(status));
        return position->getErrorIndex() == -1 && position->getIndex() == static_cast<int>(text.size());
    };
    EXPECT_TRUE(reads(u"s.S", u"5." + std::u16string(33, u'1')));
    EXPECT_FALSE(reads(u"s.S", u"5." + std::u16string(34, u'1')));
    EXPECT_FALSE(reads(u"S", std::u16string(35, u'1')));
    EXPECT_FALSE(reads(u"S", u"1e" + std::u16string(34, u'0')));
    EXPECT_TRUE(reads(u"y", std::u16string(34, u'0') + u"2020"));
    EXPECT_FALSE(reads(u"S y", u"1 " + std::u16string(33, u'0') + u"2020"));
    EXPECT_TRUE(reads(u"S y", u"1 " + std::u16string(29, u'0') + u"2020"));
    EXPECT_FALSE(reads(u"H", std::u16string(301, u'1')));
    EXPECT_TRUE(reads(u"H", std::u16string(301, u'0') + u"7"));
}

TEST(ICUDateFormat, FormatsACalendarByItsOwnMoment)
{
    auto const format = FormatFor(u"yyyy-MM-dd HH:mm", "en_US");
    ICUErrorCode status = U_ZERO_ERROR;
    auto const calendar = ICUCalendar::createInstance(status);
    calendar->clear();
    calendar->set(2021, 4, 6, 7, 8, 0);
    EXPECT_EQ(TString(u"2021-05-06 07:08"), format->format(*calendar, status));
    EXPECT_EQ(TString(u"2021-05-06 07:08"), format->format(*calendar, *ICUFieldPosition::createInstance()));
}

TEST(ICUDateFormat, FiscalPartsArePrintedInTheirPlaces)
{
    auto const format = FormatFor(u"yyyy QQQ w", "en_US");
    ICUErrorCode status = U_ZERO_ERROR;
    auto const calendar = ICUCalendar::createInstance(status);
    calendar->setFiscal(2013, 2, 20);
    EXPECT_EQ(TString(u"2013 Q2 20"), format->format(*calendar, status));
}

TEST(ICUDateFormat, PatternsAndCenturyMayChange)
{
    auto const format = FormatFor(u"yyyy", "en_US");
    format->applyPattern(u"yy-MM-dd");
    EXPECT_EQ(TString(u"yy-MM-dd"), format->toPattern());
    ICUErrorCode status = U_ZERO_ERROR;
    format->set2DigitYearStart(-25567 * DAY, status);  // 1900-01-01
    EXPECT_TRUE(ICU_SUCCESS(status));
    EXPECT_EQ(-25567 * DAY, Moment(*format, u"00-01-01"));
    EXPECT_EQ(10956 * DAY, Moment(*format, u"99-12-31"));
}

TEST(ICUDateFormat, MarksOfTheDaysHalvesCanBeEdited)
{
    struct Row
    {
        bool shortForm, lowerCase;
        char16_t const * text;
    };
    for (Row const & row :
         {Row{false, false, u"12 PM"}, Row{true, false, u"12 P"}, Row{false, true, u"12 pm"}, Row{true, true, u"12 p"}})
    {
        auto const format = FormatFor(u"h a", "en_US");
        format->editAmPmStrings(row.shortForm, row.lowerCase);
        EXPECT_EQ(TString(row.text), Text(*format, NOON_2020));
        EXPECT_EQ(DAY / 2, Moment(*format, row.text));
    }
}

TEST(ICUDateFormat, ItsCalendarIsHandedOutAsACopy)
{
    auto const format = FormatFor(u"yyyy", "en_US");
    ICUErrorCode status = U_ZERO_ERROR;
    EXPECT_EQ(1, format->getFirstDayOfWeek(status));
    format->setFirstDayOfWeek(3);
    format->setFirstDayOfWeek(9);
    format->setMinimalDaysInFirstWeek(5);
    auto const copy = format->getCalendar();
    EXPECT_EQ(3, copy->getFirstDayOfWeek(status));
    EXPECT_EQ(5, copy->getMinimalDaysInFirstWeek());
    copy->setFirstDayOfWeek(2);
    EXPECT_EQ(3, format->getFirstDayOfWeek(status));
}

TEST(ICUDateFormat, StylesAreTheLocalesOwn)
{
    auto const us = ICULocale::createInstance("en_US");
    EXPECT_EQ(TString(u"1/1/20"), Text(*ICUDateFormat::createDateInstance(ICUDateFormat::kShort, *us), NOON_2020));
    EXPECT_EQ(TString(u"January 1, 2020"),
              Text(*ICUDateFormat::createDateInstance(ICUDateFormat::kLong, *us), NOON_2020));
    EXPECT_EQ(
        TString(u"Jan 1, 2020, 12:00\u202FPM"),
        Text(*ICUDateFormat::createDateTimeInstance(ICUDateFormat::kMedium, ICUDateFormat::kShort, *us), NOON_2020));
    auto const thai = ICULocale::createInstance("th_TH");
    EXPECT_EQ(TString(u"1/1/20"), Text(*ICUDateFormat::createDateInstance(ICUDateFormat::kShort, *thai), NOON_2020));
    auto const styled = ICUDateFormat::createDateInstance(ICUDateFormat::kShort, *us);
    styled->applyPattern(u"yyyy");
    EXPECT_EQ(TString(u"2020"), Text(*styled, NOON_2020));
}

TEST(ICUDateFormat, ACopyGoesItsOwnWay)
{
    auto const format = FormatFor(u"yyyy", "en_US");
    format->setLenient(false);
    std::unique_ptr<ICUDateFormat> const copy = format->clone();
    EXPECT_FALSE(copy->isLenient());
    format->applyPattern(u"MM");
    EXPECT_EQ(TString(u"2020"), Text(*copy, NOON_2020));
    EXPECT_NE(nullptr, dynamic_cast<ICUSimpleDateFormat *>(copy.get()));
    EXPECT_EQ(TString(u"2020"), Text(*FormatFor(u"yyyy", "en_US")->cloneSimple(), NOON_2020));
}

TEST(ICUDateFormat, AFailedFormatExistsAndItsOperationsFail)
{
    ICUErrorCode status = U_ZERO_ERROR;
    ScopedStatusFault fault(U_MEMORY_ALLOCATION_ERROR);
    auto const format = ICUSimpleDateFormat::createInstance(u"yyyy", status);
    EXPECT_EQ(U_MEMORY_ALLOCATION_ERROR, status);
    ASSERT_NE(nullptr, format);
    format->setLenient(false);
    EXPECT_FALSE(format->isLenient());
    format->applyPattern(u"MM");
    format->editAmPmStrings(true, true);
    format->setFirstDayOfWeek(1);
    format->setMinimalDaysInFirstWeek(1);
    EXPECT_EQ(TString(), format->toPattern());
    EXPECT_EQ(nullptr, format->getCalendar());
    status = U_ZERO_ERROR;
    EXPECT_EQ(TString(), format->format(0.0, status));
    EXPECT_EQ(U_INVALID_STATE_ERROR, status);
    status = U_ZERO_ERROR;
    auto const calendar = ICUCalendar::createInstance(status);
    EXPECT_EQ(TString(), format->format(*calendar, status));
    EXPECT_EQ(U_INVALID_STATE_ERROR, status);
    status = U_ZERO_ERROR;
    EXPECT_EQ(0.0, format->parse(u"2020", status));
    EXPECT_EQ(U_INVALID_STATE_ERROR, status);
    status = U_ZERO_ERROR;
    EXPECT_EQ(0, format->getFirstDayOfWeek(status));
    EXPECT_EQ(U_INVALID_STATE_ERROR, status);
    status = U_ZERO_ERROR;
    format->set2DigitYearStart(0.0, status);
    EXPECT_EQ(U_INVALID_STATE_ERROR, status);
    auto const position = ICUParsePosition::createInstance();
    format->parse(u"2020", *calendar, *position);
    EXPECT_EQ(0, position->getErrorIndex());
    EXPECT_EQ(nullptr, format->clone()->getCalendar());
}

}  // namespace VelICU_V2
