#include "velcoredata/string/OleFormatString.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "main/string/OleFormatPattern.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/NumberFormatFields.h"
#include "tests/support/RandomText.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/XMLEnumException.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace {

using test_support::Fields;
using test_support::PresetOptions;

constexpr char const * kNoSuchNumber = "XMLEnumEncodingException_AutoGen_0x5D1E6A01";

// By both paths, which have to agree in all.
bool Parse(TString const & format, NumberFormatOptions & out)
{
    out = PresetOptions();
    NumberFormatOptions plain = PresetOptions();
    bool const ok = ParseOleFormatString(format, &out);
    EXPECT_EQ(detail::ParseOleFormatStringByPattern(format, &plain), ok) << format.left(200).toStdString();
    EXPECT_EQ(Fields(out), Fields(plain)) << format.left(200).toStdString();
    if (!ok) {
        EXPECT_EQ(Fields(out), Fields(PresetOptions())) << format.left(200).toStdString();
    }
    return ok;
}

struct Parsed
{
    char16_t const * format;
    int decimals;
    bool useGrouping;
    char16_t const * prefix;
    char16_t const * suffix;
    int units;
    int negative;
};

void ExpectParsed(Parsed const & expected)
{
    SCOPED_TRACE(TString(expected.format).toStdString());
    NumberFormatOptions options;
    ASSERT_TRUE(Parse(expected.format, options));
    EXPECT_EQ(Fields(options),
              Fields(NumberFormatOptions(expected.decimals, u"d", expected.useGrouping, u"g", u"t", expected.prefix,
                                         expected.suffix, static_cast<UnitsFormatEnum>(expected.units),
                                         static_cast<NegativeFormatEnum>(expected.negative))));
}

NumberFormatOptions Options(int decimals, bool grouping, char16_t const * prefix, char16_t const * suffix, int units,
                            int negative)
{
    return NumberFormatOptions(decimals, TString(), grouping, u"3;0", TString(), prefix, suffix,
                               static_cast<UnitsFormatEnum>(units), static_cast<NegativeFormatEnum>(negative));
}

TString Build(NumberFormatOptions const & options, bool letter = true)
{
    return BuildOleFormatString(&options, letter, nullptr, nullptr);
}

TString Repeated(char16_t const * piece, int length)
{
    TString text;
    while (text.length() < length)
        text += piece;
    return text;
}

}  // namespace

TEST(OleFormatString, UnitsHaveLetters)
{
    EXPECT_EQ(GetUnitsFormatChar(UnitsFormatEnum::None), u'\0');
    EXPECT_EQ(GetUnitsFormatChar(UnitsFormatEnum::K), u'K');
    EXPECT_EQ(GetUnitsFormatChar(UnitsFormatEnum::M), u'M');
    EXPECT_EQ(GetUnitsFormatChar(UnitsFormatEnum::B), u'B');
    EXPECT_EQ(GetUnitsFormatChar(UnitsFormatEnum::G), u'G');
}

TEST(OleFormatString, SamplesShowTheSign)
{
    EXPECT_EQ(GetNegativeFormatSample(NegativeFormatEnum::Automatic, u"$", u"x"), TString(u"Automatic"));
    EXPECT_EQ(GetNegativeFormatSample(NegativeFormatEnum::Parentheses, u"$", u"x"), TString(u"($1234x)"));
    EXPECT_EQ(GetNegativeFormatSample(NegativeFormatEnum::MinusFirst, u"$", u"x"), TString(u"-$1234x"));
    EXPECT_EQ(GetNegativeFormatSample(NegativeFormatEnum::MinusLast, u"$", u"x"), TString(u"$1234x-"));
    EXPECT_EQ(GetNegativeFormatSample(NegativeFormatEnum::MinusAfterPrefix, u"$", u"x"), TString(u"$-1234x"));
    EXPECT_EQ(GetNegativeFormatSample(NegativeFormatEnum::MinusAfterNumber, u"$", u"x"), TString(u"$1234-x"));
    // What is put in is not looked at for places.
    EXPECT_EQ(GetNegativeFormatSample(NegativeFormatEnum::Parentheses, u"%2", u"%1"), TString(u"(%21234%1)"));
}

TEST(OleFormatString, TheAutomaticSampleSpeaksTheLanguageOfTheSession)
{
    ScopedSession const session;
    CoreThreadContext::SetGenericObject(TString(u"locale"),
                                        std::make_shared<boost::any>(std::make_shared<TLocale>(TString(u"de_DE"))));
    TString const german = GetNegativeFormatSample(NegativeFormatEnum::Automatic, u"", u"");
    EXPECT_EQ(german, TString(u"Automatisch"));
    // It has no part in reading.
    ExpectParsed({u"\"Automatisch\"0", 0, false, u"Automatisch", u"", 0, 0});
}

TEST(OleFormatString, NumbersOutsideTheTablesAreRefused)
{
    for (int const bad : {-1, 5, 6, 1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        auto const units = static_cast<UnitsFormatEnum>(bad);
        EXPECT_THAT([&] { GetUnitsFormatChar(units); },
                    ThrowsErrorOf<Implementation::XMLEnumEncodingException>(kNoSuchNumber));
        NumberFormatOptions options;
        options.units = units;
        for (bool const letter : {false, true})
            EXPECT_THAT([&] { Build(options, letter); },
                        ThrowsErrorOf<Implementation::XMLEnumEncodingException>(kNoSuchNumber));
    }
    for (int const bad : {-1, 6, 1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        auto const negative = static_cast<NegativeFormatEnum>(bad);
        EXPECT_THAT([&] { GetNegativeFormatSample(negative, u"", u""); },
                    ThrowsErrorOf<Implementation::XMLEnumEncodingException>(kNoSuchNumber,
                                                                            "XML enumerated value cannot be encoded."));
        NumberFormatOptions options;
        options.negative = negative;
        EXPECT_THAT([&] { Build(options); }, ThrowsErrorOf<Implementation::XMLEnumEncodingException>(kNoSuchNumber));
    }
}

TEST(OleFormatString, BuildsSectionsWithQuotedTexts)
{
    EXPECT_EQ(Build(Options(0, false, u"", u"", 0, 0)), TString(u"0"));
    EXPECT_EQ(Build(Options(2, true, u"", u"", 0, 0)), TString(u"#,##0.00"));
    EXPECT_EQ(Build(Options(-3, true, u"", u"", 0, 0)), TString(u"#,##0"));
    EXPECT_EQ(Build(Options(2, true, u"$", u" x", 1, 1)), TString(u"\"$\"#,##0,.00K\" x\";(\"$\"#,##0,.00K\" x\")"));
    EXPECT_EQ(Build(Options(0, false, u"$", u"", 2, 2)), TString(u"\"$\"0,,M;-\"$\"0,,M"));
    EXPECT_EQ(Build(Options(0, false, u"", u"%", 3, 3)), TString(u"0,,,B\"%\";0,,,B\"%\"-"));
    EXPECT_EQ(Build(Options(1, false, u"$", u"", 4, 4)), TString(u"\"$\"0,,,.0G;\"$\"-0,,,.0G"));
    EXPECT_EQ(Build(Options(0, false, u"$", u"x", 0, 5)), TString(u"\"$\"0\"x\";\"$\"0-\"x\""));
    EXPECT_EQ(Build(Options(1, true, u"", u"", 4, 0), false), TString(u"#,##0,,,.0"));
    EXPECT_EQ(Build(Options(0, false, u"a\"b", u"", 0, 0)), TString(u"\"a\"b\"0"));
    EXPECT_EQ(Build(Options(0, false, u"%2", u"%1", 0, 1)), TString(u"\"%2\"0\"%1\";(\"%2\"0\"%1\")"));
}

TEST(OleFormatString, BuildsWithOtherSeparators)
{
    NumberFormatOptions options = Options(2, true, u"", u"", 2, 0);
    // Those of the options are not read.
    options.decimalSeparator = u"x";
    options.thousandSeparator = u"y";
    EXPECT_EQ(BuildOleFormatString(&options, true, u",", u"."), TString(u"#.##0..,00M"));
    EXPECT_EQ(BuildOleFormatString(&options, true, u"<>", nullptr), TString(u"#,##0,,<>00M"));
    EXPECT_EQ(BuildOleFormatString(&options, true, nullptr, u"::"), TString(u"#::##0::::.00M"));
    EXPECT_EQ(BuildOleFormatString(&options, true, u"", u""), TString(u"###000M"));
}

TEST(OleFormatString, ReadsEveryPart)
{
    for (Parsed const & expected : {
             Parsed{u"0", 0, false, u"", u"", 0, 0},
             Parsed{u"#,##0", 0, true, u"", u"", 0, 0},
             Parsed{u"#,##0.00", 2, true, u"", u"", 0, 0},
             Parsed{u"\"$\"#,##0.00", 2, true, u"$", u"", 0, 0},
             Parsed{u"0\" kr\"", 0, false, u"", u" kr", 0, 0},
             Parsed{u"\"\"0\"\"", 0, false, u"", u"", 0, 0},
             Parsed{u"0,.0K", 1, false, u"", u"", 1, 0},
             Parsed{u"0M", 0, false, u"", u"", 2, 0},
             Parsed{u"0,,,.000B", 3, false, u"", u"", 3, 0},
             Parsed{u"#,##0G", 0, true, u"", u"", 4, 0},
             Parsed{u"0,,,", 0, false, u"", u"", 0, 0},  // scaling commas are not read
             Parsed{u"(\"$\"0\"x\")", 0, false, u"$", u"x", 0, 1},
             Parsed{u"-\"$\"0\"x\"", 0, false, u"$", u"x", 0, 2},
             Parsed{u"\"$\"0\"x\"-", 0, false, u"$", u"x", 0, 3},
             Parsed{u"\"$\"-0\"x\"", 0, false, u"$", u"x", 0, 4},
             Parsed{u"\"$\"0-\"x\"", 0, false, u"$", u"x", 0, 5},
         })
        ExpectParsed(expected);
}

TEST(OleFormatString, TheLowestFormWithTheSameSampleIsTaken)
{
    for (Parsed const & expected : {
             Parsed{u"-0", 0, false, u"", u"", 0, 2},
             Parsed{u"0-", 0, false, u"", u"", 0, 3},
             Parsed{u"\"\"-0", 0, false, u"", u"", 0, 2},
             Parsed{u"0-\"\"", 0, false, u"", u"", 0, 3},
             Parsed{u"\"-\"-0", 0, false, u"-", u"", 0, 2},
             Parsed{u"0-\"--\"", 0, false, u"", u"--", 0, 3},
             Parsed{u"\"-\"0", 0, false, u"-", u"", 0, 0},
             Parsed{u"\"1234\"-0\"-\"", 0, false, u"1234", u"-", 0, 4},
             Parsed{u"\"1234-1234\"0-\"1234\"", 0, false, u"1234-1234", u"1234", 0, 5},
             // Two signs that are no pair, and more.
             Parsed{u"--0", 0, false, u"", u"", 0, 0},
             Parsed{u"(0", 0, false, u"", u"", 0, 0},
             Parsed{u"0)", 0, false, u"", u"", 0, 0},
             Parsed{u"(0-", 0, false, u"", u"", 0, 0},
             Parsed{u"-0)", 0, false, u"", u"", 0, 0},
             Parsed{u"-0-", 0, false, u"", u"", 0, 0},
             Parsed{u"0--", 0, false, u"", u"", 0, 0},
             Parsed{u"(-0-)", 0, false, u"", u"", 0, 0},
             Parsed{u"(-\"(\"-0", 0, false, u"(", u"", 0, 0},
         })
        ExpectParsed(expected);
}

TEST(OleFormatString, WhatStandsBeforeTheFormatIsSkipped)
{
    for (Parsed const & expected : {
             Parsed{u"#,##0.00;(#,##0.00)", 2, true, u"", u"", 0, 1},
             Parsed{u"#,##0.00;-0", 0, false, u"", u"", 0, 2},
             Parsed{u"a;b;0.0", 1, false, u"", u"", 0, 0},
             Parsed{u"\"a\"\"b\"0", 0, false, u"b", u"", 0, 0},
             Parsed{u"a\"b\"c\"0", 0, false, u"c", u"", 0, 0},
             Parsed{u"a\"b\"0", 0, false, u"b", u"", 0, 0},
             Parsed{u"00", 0, false, u"", u"", 0, 0},
             Parsed{u"##0", 0, false, u"", u"", 0, 0},
             Parsed{u"0.00.00", 2, false, u"", u"", 0, 0},
             Parsed{u"#,##0%0", 0, false, u"", u"", 0, 0},
             // The quote that closes one text opens another.
             Parsed{u"\"a\"x\"0", 0, false, u"x", u"", 0, 0},
             Parsed{u"\xD83D\xDE00-0", 0, false, u"", u"", 0, 2},
             Parsed{u"\xDE00\xD83D-0", 0, false, u"", u"", 0, 2},
         })
        ExpectParsed(expected);
}

TEST(OleFormatString, OneLineEndMayFollow)
{
    for (char16_t const * const end : {u"\n", u"\r", u"\v", u"\f", u"\u0085", u"\u2028", u"\u2029", u"\r\n"})
        ExpectParsed({(TString(u"-0.0") + end).constData(), 1, false, u"", u"", 0, 2});
    NumberFormatOptions options;
    for (char16_t const * const end : {u"\n\n", u"\n\r", u"\n ", u" ", u"\t", u"\u0084", u"\u2027", u"\u202A"})
        EXPECT_FALSE(Parse(TString(u"0") + end, options));
    // A line end inside a text and in what is skipped is a character like any other.
    ExpectParsed({u"a\r\n\"b\nc\"0", 0, false, u"b\nc", u"", 0, 0});
}

TEST(OleFormatString, WhatIsNoFormatLeavesTheOptionsAlone)
{
    NumberFormatOptions options;
    for (char16_t const * const text :
         {u"",   u"x",     u"#",    u"#,##",        u"#.##0,0x", u"0.", u"0.0.", u"0x",     u"0k",     u"0KM",
          u"0 ", u"\"a\"", u"0\"a", u"0\"a\"\"b\"", u"0((",      u"0(", u"0%",   u"\uFF10", u"#,##0 ", u"0-\"a\"--"})
        EXPECT_FALSE(Parse(text, options)) << TString(text).toStdString();
    ExpectParsed({u"0-\"a\"-", 0, false, u"", u"a", 0, 0});
}

TEST(OleFormatString, NothingBehindTheTerminatorIsSeen)
{
    NumberFormatOptions options;
    EXPECT_TRUE(Parse(TString(u"0\0x", 3), options));
    EXPECT_FALSE(Parse(TString(u"x\0000", 3), options));
}

// Random texts of the alphabet that decides, by both paths.
TEST(OleFormatString, AgreesWithTheRegularExpression)
{
    static constexpr std::u16string_view pieces[] = {u"-",     u"(",  u")",  u"\"", u"#,##0", u"0", u",",
                                                     u".0",    u".",  u"K",  u"G",  u";",     u"a", u"#",
                                                     u"\"$\"", u"\n", u"\r", u"B",  u"\u2028"};
    test_support::RandomText random(6);
    int accepted = 0;
    int negative[6] = {};
    for (int i = 0; i < 100000; ++i) {
        TString const format = TString::fromStdU16String(random.Of(pieces, 12));
        NumberFormatOptions options;
        if (Parse(format, options)) {
            ++accepted;
            ++negative[static_cast<int>(options.negative)];
        }
        ASSERT_FALSE(testing::Test::HasFailure());
    }
    EXPECT_GT(accepted, 5000);
    for (int const count : negative)
        EXPECT_GT(count, 20);
    for (int i = 0; i < 20000; ++i) {
        NumberFormatOptions options;
        Parse(TString::fromStdU16String(random.Any(20) + u"0"), options);
        ASSERT_FALSE(testing::Test::HasFailure());
    }
}

// Every short text of the alphabet that decides, by both paths.
TEST(OleFormatString, AgreesWithTheRegularExpressionOnAllShortTexts)
{
    static constexpr std::u16string_view alphabet = u"-()\"0,.K;\n";
    constexpr int longest = 5;
    int accepted = 0;
    std::vector<std::size_t> digits;
    TString text;
    for (int length = 0; length <= longest; ++length) {
        std::size_t count = 1;
        for (int i = 0; i < length; ++i)
            count *= alphabet.size();
        for (std::size_t n = 0; n < count; ++n) {
            text.clear();
            std::size_t rest = n;
            for (int i = 0; i < length; ++i, rest /= alphabet.size())
                text += alphabet[rest % alphabet.size()];
            NumberFormatOptions options;
            accepted += Parse(text, options);
            ASSERT_FALSE(testing::Test::HasFailure());
        }
    }
    EXPECT_GT(accepted, 1000);
}

// The law of the header.
TEST(OleFormatString, ReadingGivesBackWhatWasBuilt)
{
    test_support::RandomText random(36);
    static constexpr std::u16string_view texts[] = {u"-", u"(",    u")",  u";", u"0", u"#,##0",
                                                    u".", u"1234", u"%1", u"K", u"\n"};
    for (int i = 0; i < 10000; ++i) {
        auto const text = [&] {
            TString drawn = TString::fromStdU16String(i % 2 == 0 ? random.Any(6) : random.Of(texts, 3));
            drawn.removeAll(u'"').removeAll(u'\0');
            return drawn;
        };
        NumberFormatOptions built = Options(static_cast<int>(random.Below(20)), random.Below(2) == 0, u"", u"",
                                            static_cast<int>(random.Below(5)), static_cast<int>(random.Below(6)));
        built.prefix = text();
        built.suffix = text();
        NumberFormatOptions read;
        ASSERT_TRUE(Parse(Build(built), read)) << Build(built).toStdString();
        ASSERT_EQ(read.decimals, built.decimals);
        ASSERT_EQ(read.useGrouping, built.useGrouping);
        ASSERT_EQ(read.prefix, built.prefix);
        ASSERT_EQ(read.suffix, built.suffix);
        ASSERT_EQ(read.units, built.units);
        int lowest = 0;
        if (built.negative != NegativeFormatEnum::Automatic) {
            lowest = 1;
            while (GetNegativeFormatSample(static_cast<NegativeFormatEnum>(lowest), built.prefix, built.suffix) !=
                   GetNegativeFormatSample(built.negative, built.prefix, built.suffix))
                ++lowest;
        }
        ASSERT_EQ(static_cast<int>(read.negative), lowest) << Build(built).toStdString();
    }
}

// The shapes that would cost a backtracking reader the most.
TEST(OleFormatString, AMillionCharactersAreReadInOneGo)
{
    NumberFormatOptions options;
    for (char16_t const * const piece : {u"\"", u"0", u"-", u"(", u",", u"0,", u"0.0", u".0", u"\"0", u"\"0\"", u"0\"-",
                                         u"#,##0;", u"-\"a\"-0,,.00K-\"b\"", u"x", u"\xD83D\xDE00", u"\xD83D"})
    {
        for (char16_t const * const end : {u"", u"x", u"0"}) {
            // The regular expression gives up where it has tried too much.
            Parse(Repeated(piece, 50000) + end, options);
            ASSERT_FALSE(testing::Test::HasFailure()) << TString(piece).toStdString();
            bool const ok = ParseOleFormatString(Repeated(piece, 1000000) + end, &options);
            EXPECT_TRUE(ok || *end != u'0') << TString(piece).toStdString();
            EXPECT_FALSE(ok && *end == u'x') << TString(piece).toStdString();
        }
    }
    for (int const size : {10000, 1000000}) {
        auto const parse = [&](TString const & format) {
            return size == 10000 ? Parse(format, options) : ParseOleFormatString(format, &options);
        };
        EXPECT_TRUE(parse(u"0." + TString(u'0', size)));
        EXPECT_EQ(options.decimals, size);
        EXPECT_TRUE(parse(u'0' + TString(u',', size)));
        EXPECT_TRUE(parse(u'"' + TString(u'a', size) + u"\"0"));
        EXPECT_EQ(options.prefix.length(), size);
        EXPECT_FALSE(parse(u"0\"" + TString(u'a', size)));
    }
}

TEST(OleFormatString, AMillionCharactersAreBuilt)
{
    NumberFormatOptions options = Options(1000000, true, u"", u"", 0, 2);
    options.prefix = TString(u'p', 1000000);
    EXPECT_EQ(Build(options).length(), 2 * (1000000 + 2 + 6 + 1000000) + 2);
}
