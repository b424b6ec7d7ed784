#include "velcoredata/utility/ILocaleInfoProvider.h"

#include <gtest/gtest.h>

#include <string>

#include "main/utility/DatePicture.h"
#include "main/utility/WinApiLocaleInfoProvider.h"
#include "velcoredata/string/NumberFormatOptions.h"
#include "velnls/LocaleNames.h"

namespace {

constexpr LCID UNKNOWN_LCID = 0xFFFF;

}  // namespace

static_assert(std::is_abstract_v<ILocaleInfoProvider>);
static_assert(Localization::MeasureUS == 0 && Localization::MeasureMetric == 1);
static_assert(ICUUtils::SpecLongDate == 1 && ICUUtils::SpecShortDate == 2 && ICUUtils::SpecTime == 3 &&
              ICUUtils::SpecDateTime == 4 && ICUUtils::SpecShortTime == 5);

TEST(ILocaleInfoProvider, KnownAnswers)
{
    WinApiLocaleInfoProvider provider;
    struct
    {
        LCID lcid;
        int currencyDecimals;
        char16_t const * currency;
        char16_t const * thousand;
        char16_t const * decimal;
        char16_t const * list;
        Localization::MeasureSystem measure;
        FirstWeekBehaviour firstWeek;
    } const rows[] = {
        {1033, 2, u"$", u",", u".", u",", Localization::MeasureUS, FirstWeekContainsJanFirst},
        {1031, 2, u"€", u".", u",", u";", Localization::MeasureMetric, FirstWeekFourDays},
        {1041, 0, u"￥", u",", u".", u",", Localization::MeasureMetric, FirstWeekContainsJanFirst},
        {2057, 2, u"£", u",", u".", u",", Localization::MeasureMetric, FirstWeekFourDays},
        {1024, 2, u"$", u",", u".", u",", Localization::MeasureUS, FirstWeekContainsJanFirst},
        {0, 2, u"$", u",", u".", u",", Localization::MeasureUS, FirstWeekContainsJanFirst},
        // What an LCID that nobody knows falls to.
        {UNKNOWN_LCID, 2, u"", u"", u".", u",", Localization::MeasureUS, FirstWeekContainsJanFirst},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(row.lcid);
        EXPECT_EQ(provider.GetCurrencyDecimalPlaces(row.lcid), row.currencyDecimals);
        EXPECT_EQ(provider.GetNumberDecimalPlaces(row.lcid), 2);
        EXPECT_EQ(provider.GetCurrencyString(row.lcid), TString(row.currency));
        EXPECT_EQ(provider.GetThousandSeparator(row.lcid), TString(row.thousand));
        EXPECT_EQ(provider.GetDecimalPoint(row.lcid), TString(row.decimal));
        EXPECT_EQ(provider.GetListSeparator(row.lcid), TString(row.list));
        EXPECT_EQ(provider.GetMeasureSystem(row.lcid), row.measure);
        EXPECT_EQ(provider.GetFirstWeekBehaviour(row.lcid), row.firstWeek);
    }
}

TEST(ILocaleInfoProvider, PatternsInFourNotations)
{
    WinApiLocaleInfoProvider provider;
    struct
    {
        int spec;
        char16_t const *windows, *icu, *custom, *qt;
    } const rows[] = {
        {1, u"dddd, MMMM d, yyyy", u"EEEE, MMMM d, yyyy", u"dddd, MMMM d, yyyy", u"dddd, MMMM d, yyyy"},
        {2, u"M/d/yyyy", u"M/d/yyyy", u"M/d/yyyy", u"M/d/yyyy"},
        {3, u"h:mm:ss tt", u"h:mm:ss a", u"h:nn:ss AM/PM", u"h:mm:ss AP"},
        {4, u"M/d/yyyy h:mm:ss tt", u"M/d/yyyy h:mm:ss a", u"M/d/yyyy h:nn:ss AM/PM", u"M/d/yyyy h:mm:ss AP"},
        {5, u"h:mm tt", u"h:mm a", u"h:nn AM/PM", u"h:mm AP"},
        {0, u"M/d/yyyy h:mm:ss tt", u"M/d/yyyy h:mm:ss a", u"M/d/yyyy h:nn:ss AM/PM", u"M/d/yyyy h:mm:ss AP"},
        {6, u"M/d/yyyy h:mm:ss tt", u"M/d/yyyy h:mm:ss a", u"M/d/yyyy h:nn:ss AM/PM", u"M/d/yyyy h:mm:ss AP"},
        {-1, u"M/d/yyyy h:mm:ss tt", u"M/d/yyyy h:mm:ss a", u"M/d/yyyy h:nn:ss AM/PM", u"M/d/yyyy h:mm:ss AP"},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(row.spec);
        auto const spec = static_cast<ICUUtils::DefaultDateTimeFormatSpec>(row.spec);
        EXPECT_EQ(provider.GetLocaleFormatAsWindows(spec, 1033), TString(row.windows));
        EXPECT_EQ(provider.GetLocaleFormatAsICU(spec, 1033), TString(row.icu));
        EXPECT_EQ(provider.GetLocaleFormatAsCustom(spec, 1033), TString(row.custom));
        EXPECT_EQ(provider.GetLocaleFormatQLocale(spec, 1033), TString(row.qt));
    }
    EXPECT_EQ(provider.GetLocaleFormatAsWindows(ICUUtils::SpecShortDate, UNKNOWN_LCID), TString());
    EXPECT_EQ(provider.GetLocaleFormatAsWindows(ICUUtils::SpecDateTime, UNKNOWN_LCID), TString(u" "));
}

TEST(ILocaleInfoProvider, EveryPublishedLocaleAnswersEverything)
{
    WinApiLocaleInfoProvider provider;
    for (auto const & row : VelNLS::GetPublishedLocaleNames()) {
        SCOPED_TRACE(row.name);
        EXPECT_FALSE(provider.GetDecimalPoint(row.lcid).isEmpty());
        EXPECT_FALSE(provider.GetCurrencyString(row.lcid).isEmpty());
        EXPECT_FALSE(provider.GetLocaleFormatAsICU(ICUUtils::SpecLongDate, row.lcid).isEmpty());
        EXPECT_FALSE(provider.GetLocaleFormatAsICU(ICUUtils::SpecShortTime, row.lcid).isEmpty());
        NumberFormatOptions options;
        provider.GetSystemCurrencySettings(row.lcid, &options);
        EXPECT_NE(options.negative, NegativeFormatEnum::Automatic);
        EXPECT_FALSE(options.decimalSeparator.isEmpty());
        EXPECT_FALSE(options.prefix.isEmpty() && options.suffix.isEmpty());
    }
}

TEST(ILocaleInfoProvider, CurrencyDecimalsOfLcidZeroAreTheUsers)
{
    WinApiLocaleInfoProvider provider;
    EXPECT_EQ(provider.GetCurrencyDecimalPlaces(0), provider.GetCurrencyDecimalPlaces(1024));
    EXPECT_EQ(provider.GetNumberDecimalPlaces(0), provider.GetNumberDecimalPlaces(1024));
}

TEST(ILocaleInfoProvider, FirstWeekOfTheQuery)
{
    EXPECT_EQ(detail::FirstWeekOfQuery(0), FirstWeekContainsJanFirst);
    EXPECT_EQ(detail::FirstWeekOfQuery(1), FirstWeekFullWeek);
    EXPECT_EQ(detail::FirstWeekOfQuery(2), FirstWeekFourDays);
    EXPECT_EQ(detail::FirstWeekOfQuery(3), FirstWeekContainsJanFirst);
    EXPECT_EQ(detail::FirstWeekOfQuery(-1), FirstWeekContainsJanFirst);
}

TEST(ILocaleInfoProvider, NumberSettingsClearWhatNumbersDoNotHave)
{
    WinApiLocaleInfoProvider provider;
    NumberFormatOptions options(9, u"x", false, u"9;0", u"x", u"pre", u"suf", UnitsFormatEnum::K,
                                NegativeFormatEnum::MinusLast);
    provider.GetSystemNumberSettings(0x439, &options);  // hi-IN
    EXPECT_EQ(options.decimals, 2);
    EXPECT_EQ(options.decimalSeparator, TString(u"."));
    EXPECT_TRUE(options.useGrouping);
    EXPECT_EQ(options.grouping, TString(u"3;2;0"));
    EXPECT_EQ(options.thousandSeparator, TString(u","));
    EXPECT_EQ(options.prefix, TString());
    EXPECT_EQ(options.suffix, TString());
    EXPECT_EQ(options.units, UnitsFormatEnum::None);
    EXPECT_EQ(options.negative, NegativeFormatEnum::MinusFirst);

    provider.GetSystemNumberSettings(UNKNOWN_LCID, &options);
    EXPECT_EQ(options.decimals, 2);
    EXPECT_EQ(options.decimalSeparator, TString());
    EXPECT_FALSE(options.useGrouping);
    EXPECT_EQ(options.grouping, TString());
    EXPECT_EQ(options.thousandSeparator, TString());
    EXPECT_EQ(options.negative, NegativeFormatEnum::Automatic);
}

TEST(ILocaleInfoProvider, NegativeNumbers)
{
    using enum NegativeFormatEnum;
    NegativeFormatEnum const expected[] = {Parentheses, MinusFirst, MinusFirst, MinusLast, MinusLast, Automatic};
    for (int layout = 0; layout < 6; ++layout)
        EXPECT_EQ(detail::NegativeOfNumberLayout(layout), expected[layout]) << layout;
    EXPECT_EQ(detail::NegativeOfNumberLayout(-1), Automatic);
}

TEST(ILocaleInfoProvider, NegativeAmounts)
{
    int const expected[] = {1, 2, 4, 3, 1, 2, 5, 3, 2, 2, 3, 3, 4, 5, 1, 1, 0};
    for (int layout = 0; layout < 17; ++layout)
        EXPECT_EQ(static_cast<int>(detail::NegativeOfCurrencyLayout(layout)), expected[layout]) << layout;
    EXPECT_EQ(detail::NegativeOfCurrencyLayout(-1), NegativeFormatEnum::Automatic);
}

TEST(ILocaleInfoProvider, TheSymbolGoesToItsPlaceAndTheOtherPlaceStays)
{
    struct
    {
        int layout;
        char16_t const *prefix, *suffix;
    } const rows[] = {{0, u"$", u"suf"},  {1, u"pre", u"$"}, {2, u"$ ", u"suf"},
                      {3, u"pre", u" $"}, {4, u"$", u"suf"}, {-1, u"$", u"suf"}};
    for (auto const & row : rows) {
        NumberFormatOptions options;
        options.prefix = u"pre";
        options.suffix = u"suf";
        detail::PlaceCurrencySymbol(row.layout, u"$", options);
        EXPECT_EQ(options.prefix, TString(row.prefix)) << row.layout;
        EXPECT_EQ(options.suffix, TString(row.suffix)) << row.layout;
    }
}

TEST(ILocaleInfoProvider, CurrencySettings)
{
    WinApiLocaleInfoProvider provider;
    NumberFormatOptions options(9, u"x", false, u"9;0", u"x", u"pre", u"suf", UnitsFormatEnum::K,
                                NegativeFormatEnum::Parentheses);
    provider.GetSystemCurrencySettings(1031, &options);
    EXPECT_EQ(options.decimals, 2);
    EXPECT_EQ(options.decimalSeparator, TString(u","));
    EXPECT_TRUE(options.useGrouping);
    EXPECT_EQ(options.grouping, TString(u"3;0"));
    EXPECT_EQ(options.thousandSeparator, TString(u"."));
    EXPECT_EQ(options.prefix, TString(u"pre"));
    EXPECT_EQ(options.suffix, TString(u" €"));
    EXPECT_EQ(options.units, UnitsFormatEnum::None);
    EXPECT_EQ(options.negative, NegativeFormatEnum::MinusFirst);
}

TEST(DatePicture, RunsAreRewrittenByLetterAndLength)
{
    struct
    {
        char16_t const *picture, *icu, *custom, *qt;
    } const rows[] = {
        {u"", u"", u"", u""},
        {u"H HH HHH h hhh s sss", u"H HH HH h hh s ss", u"H HH HH h hh s ss", u"H HH HH h hh s ss"},
        {u"m mm mmm", u"m mm mm", u"n nn nn", u"m mm mm"},
        {u"M MM MMM MMMM MMMMM MMMMMM", u"M MM MMM MMMM MMMMM MMMMM", u"M MM MMM MMMM MMMMM MMMMM",
         u"M MM MMM MMMM MMM MMM"},
        {u"d dd ddd dddd ddddd ddddddd", u"d dd EEE EEEE EEEEE EEEEEE", u"d dd ddd dddd dddd dddd",
         u"d dd ddd dddd dddd dddd"},
        {u"y yy yyy yyyy yyyyy", u"yy yy yyyy yyyy yyyy", u"yy yy yyyy yyyy yyyy", u"yy yy yyyy yyyy yyyy"},
        {u"t tt ttt", u"a a a", u"A/P AM/PM AM/PM", u"AP AP AP"},
        {u"yyyy  g", u"yyyy  G", u"yyyy", u"yyyy"},
        {u"yyyy gg.", u"yyyy GGGG.", u"yyyy.", u"yyyy."},
        {u"gggg yy", u"GGGG yy", u" yy", u" yy"},
        {u"..--", u"..--", u"..--", u"..--"},
        {u"d'x'M", u"d'x'M", u"d\"x\"M", u"d'x'M"},
        {u"'o''c'", u"'o''c'", u"\"o'c\"", u"'o''c'"},
        {u"'a\"b'", u"'a\"b'", u"\"a\"\\\"\"b\"", u"'a\"b'"},
        {u"h''m", u"h''m", u"h'n", u"h''m"},
        {u"'''a'", u"'''a'", u"'\"a\"", u"'''a'"},
        {u"''''", u"''''", u"''", u"''''"},
        {u"d'abc", u"d'abc", u"d\"abc\"", u"d'abc"},  // a part that never closes
        {u"d'", u"d'", u"d'", u"d'"},                 // an empty part
    };
    for (auto const & row : rows) {
        std::string const what = TString(row.picture).toStdString();
        EXPECT_EQ(detail::PictureToIcu(row.picture), TString(row.icu)) << what;
        EXPECT_EQ(detail::PictureToCustom(row.picture), TString(row.custom)) << what;
        EXPECT_EQ(detail::PictureToQt(row.picture), TString(row.qt)) << what;
    }
}
