#include "velcoredata/string/NumberFormatSettings.h"

#include <gtest/gtest.h>

#include <boost/any.hpp>

#include <memory>
#include <tuple>

#include "tests/support/ErrorMatchers.h"
#include "tests/support/NumberFormatFields.h"
#include "velcoredata/core/TLocale.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace {

using test_support::Fields;
using test_support::PresetOptions;

constexpr LCID kAmerican = 1033;
constexpr LCID kGerman = 1031;

// Preset options with the separators of the locale, after Populate.
NumberFormatOptions Populated(FormatCode code, char16_t const * format, int defaultDecimals = 5, int grouping = -1,
                              LCID lcid = kAmerican)
{
    NumberFormatOptions options = PresetOptions();
    PopulateNumberFormatOptions(code, lcid, TString(format), &options, defaultDecimals, grouping);
    return options;
}

NumberFormatOptions PresetWithSeparators()
{
    NumberFormatOptions options = PresetOptions();
    options.decimalSeparator = u".";
    options.thousandSeparator = u",";
    return options;
}

void EnterLocale(char16_t const * name)
{
    CoreThreadContext::SetGenericObject(TString(u"workbook-locale"),
                                        std::make_shared<boost::any>(std::make_shared<TLocale>(TString(name))));
}

}  // namespace

TEST(NumberFormatSettings, OnlyTheSeparatorsComeFromTheLocaleForEveryCode)
{
    for (auto const code : {FormatCodeNumber, FormatCodeCurrency, FormatCodeCodeI, FormatCodeNamed, FormatCodeLongDate,
                            FormatCodeShortDate, FormatCodeTime, static_cast<FormatCode>(u'x')})
    {
        EXPECT_EQ(Fields(Populated(code, u"no format")), Fields(PresetWithSeparators()));
        NumberFormatOptions const german = Populated(code, u"no format", 5, -1, kGerman);
        EXPECT_EQ(german.decimalSeparator, TString(u","));
        EXPECT_EQ(german.thousandSeparator, TString(u"."));
    }
}

TEST(NumberFormatSettings, OtherCodesReadTheirFormat)
{
    for (auto const code : {FormatCodeNumber, FormatCodeCurrency, FormatCodeCodeI, FormatCodeNamed, FormatCodeTime}) {
        NumberFormatOptions expected = PresetWithSeparators();
        expected.decimals = 2;
        expected.useGrouping = false;
        expected.prefix = u"$";
        expected.suffix = u"";
        expected.units = UnitsFormatEnum::K;
        expected.negative = NegativeFormatEnum::MinusLast;
        EXPECT_EQ(Fields(Populated(code, u"#,##0;\"$\"0.00K-")), Fields(expected));
    }
}

TEST(NumberFormatSettings, TheOverrideComesBeforeTheFormat)
{
    EXPECT_FALSE(Populated(FormatCodeNumber, u"no format", 0, 0).useGrouping);
    EXPECT_FALSE(Populated(FormatCodeNumber, u"no format", 0, -2).useGrouping);
    EXPECT_TRUE(Populated(FormatCodeNumber, u"no format", 0, 1).useGrouping);
    EXPECT_TRUE(Populated(FormatCodeNumber, u"no format", 0, -1).useGrouping);
    EXPECT_TRUE(Populated(FormatCodeNumber, u"#,##0", 0, 0).useGrouping);
    EXPECT_FALSE(Populated(FormatCodeNumber, u"0", 0, 1).useGrouping);
    EXPECT_FALSE(Populated(FormatCodeScientific, u"0e+00", 0, 0).useGrouping);
    EXPECT_FALSE(Populated(FormatCodePercent, u"0%", 0, 1).useGrouping);
}

TEST(NumberFormatSettings, WithoutACodeTheDefaultDecimalsWin)
{
    NumberFormatOptions const options = Populated(FormatCodeAuto, u"\"$\"0.00K");
    EXPECT_EQ(options.decimals, 5);
    EXPECT_FALSE(options.useGrouping);
    EXPECT_EQ(options.prefix, TString(u"$"));
    EXPECT_EQ(options.units, UnitsFormatEnum::K);
    EXPECT_EQ(Populated(FormatCodeAuto, u"no format").decimals, 5);
}

TEST(NumberFormatSettings, ScientificSetsTheDecimalsOnly)
{
    NumberFormatOptions expected = PresetWithSeparators();
    expected.decimals = 3;
    EXPECT_EQ(Fields(Populated(FormatCodeScientific, u"0.000e+00")), Fields(expected));
    expected.decimals = 5;
    EXPECT_EQ(Fields(Populated(FormatCodeScientific, u"0.000E+00")), Fields(expected));
}

TEST(NumberFormatSettings, PercentIsUngroupedWhereTheFormatIsStandard)
{
    NumberFormatOptions expected = PresetWithSeparators();
    expected.decimals = 3;
    expected.useGrouping = false;
    expected.negative = NegativeFormatEnum::MinusFirst;
    EXPECT_EQ(Fields(Populated(FormatCodePercent, u"0.000%")), Fields(expected));
    expected.decimals = 5;
    expected.useGrouping = true;
    EXPECT_EQ(Fields(Populated(FormatCodePercent, u"0.00000000000000000%")), Fields(expected));
    EXPECT_EQ(Fields(Populated(FormatCodePercent, u"", 5, 0)), Fields(expected));
}

TEST(NumberFormatSettings, NamedFormatsHaveTwoDecimals)
{
    NumberFormatOptions expected = PresetWithSeparators();
    expected.decimals = 2;
    EXPECT_EQ(Fields(Populated(FormatCodeNamed, u"Scientific")), Fields(expected));
    expected.negative = NegativeFormatEnum::MinusFirst;
    EXPECT_EQ(Fields(Populated(FormatCodeNamed, u"Percent")), Fields(expected));
    // The name as it is written, and under the code of names.
    EXPECT_EQ(Fields(Populated(FormatCodeNamed, u"percent")), Fields(PresetWithSeparators()));
    EXPECT_EQ(Fields(Populated(FormatCodeNumber, u"Percent")), Fields(PresetWithSeparators()));
}

TEST(NumberFormatSettings, SystemFormatsAreThoseOfTheLocale)
{
    for (LCID const lcid : {kAmerican, kGerman}) {
        NumberFormatOptions expected = PresetOptions();
        TLocale::GetSystemNumberSettings(lcid, &expected);
        EXPECT_EQ(Fields(Populated(FormatCodeSystemNumber, u"0.00000", 5, -1, lcid)), Fields(expected));

        expected = PresetOptions();
        TLocale::GetSystemCurrencySettings(lcid, &expected);
        EXPECT_EQ(Fields(Populated(FormatCodeSystemCurrency, u"0.00000", 5, -1, lcid)), Fields(expected));
    }
    EXPECT_EQ(Populated(FormatCodeSystemCurrency, u"").prefix, TString(u"$"));
    // What the currency's layout does not use stays.
    EXPECT_EQ(Populated(FormatCodeSystemCurrency, u"").suffix, TString(u"after"));
}

TEST(NumberFormatSettings, NoLcidAsksForTheSessionsLocale)
{
    EXPECT_THAT([] { Populated(FormatCodeNumber, u"0", 0, -1, 0); },
                ThrowsAssert("CoreThreadContext::HasSessionId()", "LogicException_LogicAssert_0x74B5639B"));
    ScopedSession const session;
    EnterLocale(u"de_DE");
    EXPECT_EQ(Populated(FormatCodeNumber, u"0", 0, -1, 0).decimalSeparator, TString(u","));
    EXPECT_EQ(Populated(FormatCodeNumber, u"0", 0, -1, kAmerican).decimalSeparator, TString(u"."));
}

TEST(NumberFormatSettings, AnEncodedFormatOpensIntoCodeAndOptions)
{
    FormatCode code = FormatCodeAuto;
    LCID lcid = 99;
    NumberFormatOptions options;
    GetFormatCodeAndOptionsFromString(u"n!de_DE!#,##0.00;(#,##0.00)", code, lcid, &options);
    EXPECT_EQ(code, FormatCodeNumber);
    EXPECT_EQ(lcid, kGerman);
    EXPECT_EQ(Fields(options), Fields(NumberFormatOptions(2, u",", true, u"3;0", u".", u"", u"", UnitsFormatEnum::None,
                                                          NegativeFormatEnum::Parentheses)));

    // A name is left as it is, though it is filled in as what it means.
    GetFormatCodeAndOptionsFromString(u"*!en_US!Percent", code, lcid, &options);
    EXPECT_EQ(code, FormatCodeNamed);
    EXPECT_EQ(options.decimals, 2);
    EXPECT_EQ(options.negative, NegativeFormatEnum::MinusFirst);

    // Without decimals of its own an unreadable percentage has none.
    ScopedSession const session;
    EnterLocale(u"de_DE");
    GetFormatCodeAndOptionsFromString(u"p0,00%", code, lcid, &options);
    EXPECT_EQ(lcid, 0u);
    EXPECT_EQ(options.decimals, 0);
    EXPECT_TRUE(options.useGrouping);
    EXPECT_EQ(options.decimalSeparator, TString(u","));
}

TEST(NumberFormatSettings, OptionsAreEncodedByCode)
{
    NumberFormatOptions options;
    options.decimals = 2;
    options.prefix = u"$";
    options.negative = NegativeFormatEnum::Parentheses;
    struct Case
    {
        FormatCode code;
        LCID lcid;
        char16_t const * expected;
    };
    for (auto const & [code, lcid, expected] : {
             Case{FormatCodeNumber, 0, u"n\"$\"#,##0.00;(\"$\"#,##0.00)"},
             Case{FormatCodeCurrency, kGerman, u"c!de_DE!\"$\"#,##0.00;(\"$\"#,##0.00)"},
             Case{FormatCodeScientific, kGerman, u"e0.00e+00"},
             Case{FormatCodePercent, kGerman, u"p0.00%"},
             Case{FormatCodeCodeI, kGerman, u"i!de_DE!"},
             Case{FormatCodeNamed, 0, u"*"},
             Case{FormatCodeSystemNumber, kGerman, u"N1031%"},
             Case{FormatCodeTime, kGerman, u"T"},
             Case{FormatCodeAuto, kGerman, u""},
         })
    {
        TString out(u"before");
        GetStringFromFormatCodeAndOptions(code, lcid, options, out);
        EXPECT_EQ(out, TString(expected));
    }
    options.units = UnitsFormatEnum::G;
    TString out;
    GetStringFromFormatCodeAndOptions(FormatCodeNumber, 0, options, out);
    EXPECT_EQ(out, TString(u"n\"$\"#,##0,,,.00G;(\"$\"#,##0,,,.00G)"));
    options.units = static_cast<UnitsFormatEnum>(5);
    EXPECT_THAT([&] { GetStringFromFormatCodeAndOptions(FormatCodeNumber, 0, options, out); },
                ThrowsError("XMLEnumEncodingException_AutoGen_0x5D1E6A01"));
}

TEST(NumberFormatSettings, TheFormatsOfALocaleAsOleStrings)
{
    EXPECT_EQ(GetOleFormatString(FormatCodeShortDate, kAmerican, nullptr), TString(u"M/d/yyyy"));
    EXPECT_EQ(GetOleFormatString(FormatCodeTime, kAmerican, nullptr), TString(u"h:mm:ss tt"));
    EXPECT_EQ(GetOleFormatString(FormatCodeLongDate, kAmerican, nullptr), TString(u"dddd, MMMM d, yyyy"));
    // Spanish has literal words in it: d 'de' MMMM.
    TString const spanish = GetOleFormatString(FormatCodeLongDate, 3082, nullptr);
    EXPECT_TRUE(spanish.contains(TString(u"\"de\""))) << spanish.toStdString();
    EXPECT_FALSE(spanish.contains(u'\'')) << spanish.toStdString();

    EXPECT_EQ(GetOleFormatString(FormatCodeSystemNumber, kAmerican, nullptr), TString(u"#,##0.00;-#,##0.00"));
    // Separators are those of the format string, not of the locale.
    EXPECT_EQ(GetOleFormatString(FormatCodeSystemNumber, kGerman, nullptr), TString(u"#,##0.00;-#,##0.00"));
    int const none = 0;
    EXPECT_EQ(GetOleFormatString(FormatCodeSystemNumber, kAmerican, &none), TString(u"#,##0;-#,##0"));
    int const four = 4;
    EXPECT_EQ(GetOleFormatString(FormatCodeSystemNumber, kAmerican, &four), TString(u"#,##0.0000;-#,##0.0000"));

    for (auto const code : {FormatCodeAuto, FormatCodeNamed, FormatCodeSystemCurrency, FormatCodeCurrency,
                            FormatCodeScientific, FormatCodeCodeI, FormatCodeNumber, FormatCodePercent})
        EXPECT_EQ(GetOleFormatString(code, kAmerican, &four), TString());
}
