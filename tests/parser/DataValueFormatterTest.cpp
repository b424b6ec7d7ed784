#include "velcoredata/parser/DataValueFormatter.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "tests/support/DataValueFormatterPeer.h"
#include "tests/support/ErrorMatchers.h"
#include "tests/support/FreshProcess.h"
#include "tests/support/RandomAnyValue.h"
#include "tests/support/ValueTextModel.h"
#include "velcoredata/data/XMLEnumException.h"
#include "velcoredata/utility/FeatureFlags.h"
#include "velcoreplatform/CoreThreadContext.h"
#include "velgeo/SpatialTextError.h"
#include "velgeo/WktSerialization.h"

namespace {

using namespace test_support;
using Options = DataValueFormatter::FormatOptions;

TString Format(DataValue const & value, Options const & options = {})
{
    return DataValueFormatter::Format(value, options);
}

DataValue StringOf(char16_t const * text)
{
    return DataValue(GetBinaryCollation(), TString(text));
}

// Options that say no to everything, or yes.
Options AllOptions(bool on)
{
    Options options;
    options.quoteStrings = options.delimitDates = options.parenthesizeTuples = options.escapeDelimiters =
        options.showTrailingZeros = options.inheritOptionsInTuples = on;
    return options;
}

Options RandomOptions(RandomAnyValue & random)
{
    Options options;
    options.numberStyle = static_cast<DataValueFormatter::NumberStyle>(random.Below(4) == 0 ? 1 : 0);
    for (bool Options::*const option :
         {&Options::quoteStrings, &Options::delimitDates, &Options::parenthesizeTuples, &Options::escapeDelimiters,
          &Options::showTrailingZeros, &Options::inheritOptionsInTuples, &Options::spatialAsWkt,
          &Options::spatialAsTypeName})
        options.*option = random.Below(2) == 0;
    if (random.Below(4) == 0)
        options.realDigits = static_cast<int>(random.Below(30)) - 2;
    return options;
}

// The value in a tuple in a tuple in ...
DataValue Nested(int depth, DataValue value)
{
    for (int i = 0; i < depth; ++i)
        value = TupleOf({value});
    return value;
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(DataValueFormatter, OptionsHaveTheirDefaults)
{
    Options const options;
    EXPECT_EQ(options.numberStyle, DataValueFormatter::NumberStyle::General);
    EXPECT_TRUE(options.quoteStrings && options.delimitDates && options.parenthesizeTuples);
    EXPECT_TRUE(options.escapeDelimiters && options.showTrailingZeros);
    EXPECT_FALSE(options.inheritOptionsInTuples || options.spatialAsWkt || options.spatialAsTypeName);
    EXPECT_EQ(options.realDigits, 17);
    static_assert(offsetof(Options, numberStyle) == 0 && offsetof(Options, quoteStrings) == 4 &&
                  offsetof(Options, delimitDates) == 5 && offsetof(Options, parenthesizeTuples) == 6 &&
                  offsetof(Options, escapeDelimiters) == 7 && offsetof(Options, showTrailingZeros) == 8 &&
                  offsetof(Options, inheritOptionsInTuples) == 9 && offsetof(Options, realDigits) == 12 &&
                  offsetof(Options, spatialAsWkt) == 16 && offsetof(Options, spatialAsTypeName) == 17);
    static_assert(sizeof(DataValueFormatter::NumberStyle) == 4 && sizeof options.realDigits == 4);
    static_assert(static_cast<int>(DataValueFormatter::NumberStyle::General) == 0 &&
                  static_cast<int>(DataValueFormatter::NumberStyle::Decimal) == 1);
}

TEST(DataValueFormatter, WritesEveryType)
{
    struct Case
    {
        DataValue value;
        char16_t const * text;
    };
    for (auto const & [value, text] : std::vector<Case>{
             {DataValue(0), u"0"},
             {DataValue(std::numeric_limits<long long>::min()), u"-9223372036854775808"},
             {DataValue(3.0), u"3."},
             {DataValue(-0.0), u"-0."},
             {DataValue(0.1), u"0.10000000000000001"},
             {DataValue(1e300), u"1.0000000000000001e+300"},
             {DataValue(kInfinity), u"inf"},
             {DataValue(-kInfinity), u"-inf"},
             {DataValue(kNaN), u"nan"},
             {DataValue(-kNaN), u"nan"},
             {DataValue(true), u"true"},
             {DataValue(false), u"false"},
             {StringOf(u"a\"b\\"), u"\"a\\\"b\\\\\""},
             {StringOf(u""), u"\"\""},
             {DateOf(2020, 1, 2), u"#2020-01-02#"},
             {DateOf(400, 12, 31), u"#400-12-31#"},
             {DatetimeOf(2020, 1, 2, 3, 4, 5), u"#2020-01-02 03:04:05#"},
             {DatetimeOf(2020, 1, 2, 3, 4, 5, 0.006), u"#2020-01-02 03:04:05.006#"},
             {DatetimeOf(2020, 1, 2, 3, 4, 5, 0.0009), u"#2020-01-02 03:04:05.000#"},
             {DatetimeOf(1899, 12, 30, 3, 4, 5), u"#03:04:05#"},
             {DatetimeOf(1899, 12, 30, 0, 0, 0), u"#00:00:00#"},
             {DataValue(Time(3, 4, 5, 600u), DataType::Time), u"3:4:5.600"},
             {DataValue(Time(23, 59, 59, 1000000u), DataType::Time), u"24:0:0.0"},
             {DataValue(MakeSpatial(1, ~std::uint64_t{0})), u"18446744073709551615"},
             {BinaryOf({'x'}), u""},
             {DataValue(DataValueTypes::Normal, DataType::Unknown), u""},
             {DataValue(DataValueTypes::Normal, DataType::Spatial), u""},
             {DataValue(DataValueTypes::Normal, DataType::String), u"\"\""},
             {TupleOf({}), u"()"},
             {TupleOf({DataValue(1), StringOf(u"a,b"), Null(DataType::Real)}), u"(1,\"a\\,b\",%null%)"},
         })
    {
        EXPECT_EQ(Format(value), TString(text)) << testing::PrintToString(value);
        EXPECT_EQ(ValueTextModel::Format(value, {}), TString(text)) << testing::PrintToString(value);
    }
}

TEST(DataValueFormatter, MarkersAreWrittenWithoutTheirType)
{
    static char16_t const * const names[] = {nullptr,        u"%null%",   u"%all%",   u"%wildcard%",    u"%skipped%",
                                             u"%no-access%", u"%ragged%", u"%error%", u"%many-values%", u"%missing%"};
    for (int special = 1; special < kSpecials; ++special)
        for (int type = 0; type < kTypes; ++type)
            if (TypeOf(type) != DataType::Tuple) {
                EXPECT_EQ(Format(DataValue(SpecialOf(special), TypeOf(type)), AllOptions(type % 2 == 0)),
                          TString(names[special]));
            }
}

TEST(DataValueFormatter, OptionsTakeThingsAway)
{
    Options const bare = AllOptions(false);
    EXPECT_EQ(Format(DataValue(3.0), bare), TString(u"3"));
    EXPECT_EQ(Format(StringOf(u"a\"#%\\\x1"), bare), TString(u"a\"#%\\\\x1;"));
    EXPECT_EQ(Format(DateOf(2020, 1, 2), bare), TString(u"2020-01-02"));
    EXPECT_EQ(Format(DatetimeOf(2020, 1, 2, 3, 4, 5), bare), TString(u"2020-01-02 03:04:05"));
    EXPECT_EQ(Format(DataValue(Time(3, 4, 5, 600u), DataType::Time), bare), TString(u"3:4:5.600"));
    // The members of a tuple do not inherit them.
    DataValue const tuple = TupleOf({DataValue(3.0), StringOf(u"a"), DateOf(2020, 1, 2), TupleOf({DataValue(1)})});
    EXPECT_EQ(Format(tuple, bare), TString(u"3.,\"a\",#2020-01-02#,(1\\)"));
    Options inherit = bare;
    inherit.inheritOptionsInTuples = true;
    EXPECT_EQ(Format(tuple, inherit), TString(u"3,a,2020-01-02,1"));
    // They are back behind the tuple.
    EXPECT_EQ(Format(TupleOf({tuple, DataValue(3.0)}), inherit), TString(u"3\\,a\\,2020-01-02\\,1,3"));

    Options names;
    names.spatialAsTypeName = true;
    EXPECT_EQ(Format(DataValue(MakeSpatial(1, 2, velgeo::ShapeType::MultiPolygon)), names), TString(u"MultiPolygon"));
}

TEST(DataValueFormatter, SpatialObjectsAreHashesKindsOrText)
{
    DataValue const line(
        std::shared_ptr<velgeo::Spatial const>(velgeo::WktSerialization::Read("LINESTRING (1 2, 3 0.5)", 3)));
    EXPECT_EQ(Format(line), TString::number(static_cast<unsigned long long>(line.GetSpatial()->GetHash())));
    Options options;
    options.spatialAsTypeName = true;
    EXPECT_EQ(Format(line, options), TString(u"LineString"));
    options.spatialAsWkt = true;
    EXPECT_EQ(Format(line, options), TString(u"LINESTRING (1 2, 3 0.5)"));
    // In a tuple the text is escaped like any other, if the option is inherited.
    EXPECT_EQ(Format(TupleOf({line}), options), u'(' + Format(line) + u')');
    options.inheritOptionsInTuples = true;
    EXPECT_EQ(Format(TupleOf({line, DataValue(1)}), options), TString(u"(LINESTRING (1 2\\, 3 0.5\\),1)"));
    // An object of unknown kind has no text.
    DataValue const unknown(MakeSpatial(1, 2, velgeo::ShapeType::Unknown));
    EXPECT_THROW(Format(unknown, options), velgeo::SpatialTextError);
    options.spatialAsWkt = false;
    EXPECT_EQ(Format(unknown, options), TString(u"Unknown"));
}

TEST(DataValueFormatter, InvalidCharactersAreWrittenByTheirCodes)
{
    EXPECT_EQ(Format(StringOf(u"\x1")), TString(u"\"\\x1;\""));
    EXPECT_EQ(Format(StringOf(u"\x1F\xFFFE\xFFFF\x7F\xD800\t\n\r\xE9")),
              TString(u"\"\\x1F;\\xFFFE;\\xFFFF;\x7F\xD800\t\n\r\xE9\""));
    EXPECT_EQ(Format(DataValue(GetBinaryCollation(), TString(u"a\0b", 3))), TString(u"\"a\\x0;b\""));
    EXPECT_EQ(Format(StringOf(u"\\x1;")), TString(u"\"\\\\x1;\""));
}

TEST(DataValueFormatter, FourCharactersAreDelimiters)
{
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        auto const ch = static_cast<char16_t>(c);
        bool const delimiter = ch == u'"' || ch == u'#' || ch == u'%' || ch == u'\\';
        ASSERT_EQ(DataValueFormatterPeer::IsEscapeOrDelimiterChar(ch), delimiter) << c;
        for (bool const escape : {false, true}) {
            TString const text(ch, 1);
            TString const escaped = DataValueFormatterPeer::EscapeString(text, escape);
            ASSERT_EQ(escaped, ValueTextModel::Escape(text, escape)) << c;
            ASSERT_EQ(DataValueFormatterPeer::StringRequiresEscape(text, escape), escaped != text) << c;
        }
    }
}

TEST(DataValueFormatter, PrecisionAndScaleRoundAReal)
{
    struct Case
    {
        double value;
        int precision, scale;
        char16_t const * text;
    };
    for (auto const & [value, precision, scale, text] : {
             Case{1.25, 3, 1, u"1.3"},
             Case{-1.25, 3, 1, u"-1.3"},
             Case{1.5, 3, 1, u"1.5"},
             Case{2.5, 4, 0, u"3."},
             Case{-2.5, 4, 0, u"-3."},
             Case{1250.0, 6, -2, u"1300."},
             Case{-1250.0, 6, -2, u"-1300."},
             Case{123.456, 2, 2, u"1.2e+02"},
             Case{0.05, 4, 1, u"0.1"},
             // One of the two is not set, or there are enough digits.
             Case{1.25, -1, 1, u"1.25"},
             Case{1.25, 3, -1, u"1.25"},
             Case{1.25, 17, 1, u"1.25"},
             Case{1.25, 20, 1, u"1.25"},
             Case{1.25, 16, 1, u"1.3"},
             // As they come.
             Case{1.25, 0, 1, u"1."},
             Case{kInfinity, 3, 1, u"inf"},
             Case{kNaN, 3, 1, u"nan"},
             Case{1e-30, 3, 1, u"0."},
             Case{-1e-30, 3, 1, u"-0."},
             Case{1e30, 3, -128, u"0."},
         })
    {
        DataValue const real(value, static_cast<signed char>(precision), static_cast<signed char>(scale));
        EXPECT_EQ(Format(real), TString(text)) << value << ' ' << precision << ' ' << scale;
        EXPECT_EQ(ValueTextModel::Format(real, {}), TString(text)) << value << ' ' << precision << ' ' << scale;
    }
}

TEST(DataValueFormatter, TheDecimalStyleWritesForReadersOfDecimals)
{
    Options style;
    style.numberStyle = DataValueFormatter::NumberStyle::Decimal;
    Options bare = style;
    bare.showTrailingZeros = false;
    EXPECT_EQ(Format(DataValue(5), style), TString(u"5"));
    EXPECT_EQ(Format(DataValue(100.0), style), TString(u"100.0"));
    EXPECT_EQ(Format(DataValue(100.0), bare), TString(u"100"));
    EXPECT_EQ(Format(DataValue(1e16), style), TString(u"1.0e16"));
    EXPECT_EQ(Format(DataValue(kInfinity), style), TString(u"1") + TString(u'0', 37));
    EXPECT_EQ(Format(DataValue(-kInfinity), bare), TString(u"-1") + TString(u'0', 37));
    EXPECT_EQ(Format(DataValue(kNaN), style), TString(u"nan"));
    EXPECT_EQ(Format(DataValue(-kNaN), bare), TString(u"-nan"));
    EXPECT_EQ(Format(DataValue(1.25, 3, 1), style), TString(u"1.3"));
    // Members of tuples have the other style, unless they inherit.
    EXPECT_EQ(Format(TupleOf({DataValue(1e16)}), style), TString(u"(10000000000000000.)"));
    style.inheritOptionsInTuples = true;
    EXPECT_EQ(Format(TupleOf({DataValue(1e16)}), style), TString(u"(1.0e16)"));
}

TEST(DataValueFormatter, EachLevelOfNestingAddsABackslash)
{
    EXPECT_EQ(Format(TupleOf({TupleOf({DataValue(1), DataValue(2)}), DataValue(3)})), TString(u"((1\\,2\\),3)"));
    EXPECT_EQ(Format(Nested(3, StringOf(u",)(\\"))), TString(u"(((\"\\\\\\,\\\\\\)(\\\\\"\\\\)\\))"));
    EXPECT_EQ(Format(TupleOf({BinaryOf({'x'}), DataValue(1)})), TString(u"(,1)"));
    EXPECT_EQ(Format(TupleOf({BinaryOf({'x'})})), TString(u"()"));
}

TEST(DataValueFormatter, AThousandLevelsOfTuples)
{
    DataValue const value = Nested(1000, TupleOf({DataValue(1), StringOf(u",")}));
    TString const text = Format(value);
    // Level n, counted from the outermost as 0, ends in n backslashes and a parenthesis.
    TString expected(u'(', 1001);
    expected += u"1" + TString(u'\\', 1000) + u",\"" + TString(u'\\', 1001) + u",\"";
    for (int level = 1000; level >= 0; --level)
        expected += TString(u'\\', level) + u')';
    EXPECT_EQ(text, expected);

    auto const attributes = DataValueFormatter::GetDataValueTypeAttributes(value);
    EXPECT_EQ(attributes.at(u"tuple-datatypes"), TString(u"(tuple)"));
}

TEST(DataValueFormatter, AFormatterKeepsItsLastResult)
{
    DataValueFormatter formatter;
    EXPECT_TRUE(formatter.GetResult().isEmpty());
    DataValue(5).Accept(formatter);
    EXPECT_EQ(formatter.GetResult(), TString(u"5"));
    DataValue(true).Accept(formatter);
    EXPECT_EQ(formatter.GetResult(), TString(u"true"));
    // A Binary is invisible to inspectors.
    BinaryOf({'x'}).Accept(formatter);
    EXPECT_EQ(formatter.GetResult(), TString(u"true"));
    EXPECT_THAT([&] { formatter.InspectSpecial(DataValueTypes::Normal, DataType::Integer); },
                ThrowsAssert("special != DataValueTypes::Normal", "LogicException_LogicAssert_0x278857F1"));
    EXPECT_EQ(formatter.GetResult(), TString(u"true"));
    formatter.InspectTuple(RefCntPtr<Tuple, RefCntObject>());
    EXPECT_EQ(formatter.GetResult(), TString(u"()"));
    formatter.InspectSpatial(nullptr);
    EXPECT_EQ(formatter.GetResult(), TString());

    DataValueFormatterPeer::InspectCharsetID(formatter, 65535);
    EXPECT_EQ(formatter.GetResult(), TString(u"65535"));
    DataValueFormatterPeer::InspectPrecision(formatter, -128);
    EXPECT_EQ(formatter.GetResult(), TString(u"-128"));
    DataValueFormatterPeer::InspectScale(formatter, 127);
    EXPECT_EQ(formatter.GetResult(), TString(u"127"));

    Options options;
    options.quoteStrings = false;
    DataValueFormatter unquoted(options);
    StringOf(u"a").Accept(unquoted);
    EXPECT_EQ(unquoted.GetResult(), TString(u"a"));
    // Options are back behind a tuple, one that raises too.
    TupleOf({StringOf(u"a")}).Accept(unquoted);
    EXPECT_EQ(unquoted.GetResult(), TString(u"(\"a\")"));
    EXPECT_THAT([&] { TupleOf({DataValue(DataValueTypes::Normal, DataType::Table)}).Accept(unquoted); },
                ThrowsAssert("DataType::Table not expected in DataValue", "LogicException_LogicAssert_0x935B635F"));
    EXPECT_EQ(unquoted.GetResult(), TString(u"(\"a\")"));
    StringOf(u"b").Accept(unquoted);
    EXPECT_EQ(unquoted.GetResult(), TString(u"b"));
}

TEST(DataValueFormatter, ValuesThatCannotBeWrittenRaise)
{
    DataValue const table(DataValueTypes::Normal, DataType::Table);
    EXPECT_THAT([&] { Format(table); },
                ThrowsAssert("DataType::Table not expected in DataValue", "LogicException_LogicAssert_0x935B635F"));
    EXPECT_THAT([&] { Format(DataValue(SpecialOf(10), DataType::Integer)); },
                ThrowsErrorOf<Implementation::XMLEnumEncodingException>("XMLEnumEncodingException_AutoGen_0x5D1E6A01"));
    TString text(u"before");
    EXPECT_THAT(
        [&] {
            DataValueFormatter::AppendTo(text, TupleOf({DataValue(1), table}), Options());
        },
        ThrowsAssert("DataType::Table not expected in DataValue"));
    EXPECT_EQ(text, TString(u"before"));
}

// Values before the year 400 have no calendar day: their text is what the calendar makes of them.
TEST(DataValueFormatter, DatesOutsideTheCalendarAreWrittenAsTheyCome)
{
    RandomAnyValue random(3);
    for (int i = 0; i < 20000; ++i) {
        auto const day = static_cast<unsigned long long>(random.Below(6000000));
        DataValueFormatter formatter;
        ValueTextModel model{Options()};
        DateTime const value = DateTime::FromValue(day * 864000000 + random.Below(864000000));
        formatter.InspectDatetime(value);
        TString const text = formatter.GetResult();
        formatter.InspectDate(value);
        TString const date = formatter.GetResult();
        model.InspectDatetime(value);
        ASSERT_EQ(text, model.Result()) << value.GetRepresentation();
        model.InspectDate(value);
        ASSERT_EQ(date, model.Result()) << value.GetRepresentation();
    }
}

// One buffer, and a text for each step.
TEST(DataValueFormatter, AgreesWithTheStepsForAllOptions)
{
    RandomAnyValue random(7);
    char const * const asked = std::getenv("VELCOREDATA_VALUE_TEXT_DRAWS");
    long const draws = asked != nullptr ? std::atol(asked) : 50000;
    TString column;
    for (long i = 0; i < draws; ++i) {
        DataValue const value = random.Any();
        Options const options = i % 2 == 0 ? Options() : RandomOptions(random);
        TString const text = Format(value, options);
        ASSERT_EQ(text, ValueTextModel::Format(value, options)) << testing::PrintToString(value);
        DataValueFormatter formatter(options);
        value.Accept(formatter);
        ASSERT_EQ(formatter.GetResult(), text);
        int const before = column.length();
        DataValueFormatter::AppendTo(column, value, options);
        ASSERT_EQ(column.mid(before), text);
        if (column.length() > 10000)
            column.clear();
    }
}

// The flag is asked once in a process, so each of these runs in one of its own.

TEST(DataValueFormatterMarksDeathTest, AreWrittenWhereTheFlagIsOnAtTheFirstCall)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            FeatureFlags::GetMutable().Enable(FeatureFlagId::WriteMarksForESV);
            bool good = Format(DataValue(5)) == u"esv-marked[5]";
            good = good && Format(TupleOf({DataValue(5)})) == u"esv-marked[(5)]";
            good = good && Format(BinaryOf({'x'})) == u"esv-marked[]";
            TString text(u"a");
            DataValueFormatter::AppendTo(text, DataValue(5), Options());
            good = good && text == u"aesv-marked[5]";
            // A visit has none, and later changes have no effect.
            DataValueFormatter formatter;
            DataValue(5).Accept(formatter);
            good = good && formatter.GetResult() == u"5";
            FeatureFlags::GetMutable().Disable(FeatureFlagId::WriteMarksForESV);
            good = good && Format(DataValue(5)) == u"esv-marked[5]";
            std::exit(good ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST(DataValueFormatterMarksDeathTest, AreNotWrittenWhereTheFlagComesLater)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            bool good = Format(DataValue(5)) == u"5";
            FeatureFlags::GetMutable().Enable(FeatureFlagId::WriteMarksForESV);
            good = good && Format(DataValue(5)) == u"5";
            std::exit(good ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST(DataValueFormatterMarksDeathTest, TheSessionOfTheFirstCallDecidesForTheProcess)
{
    InFreshProcess([] {
        {
            ScopedSession const session;
            auto flags = std::make_unique<FeatureFlags>();
            flags->Enable(FeatureFlagId::WriteMarksForESV);
            CoreThreadContext::SetSessionFeatureFlags(std::move(flags));
            EXPECT_EQ(Format(DataValue(5)), TString(u"esv-marked[5]"));
        }
        EXPECT_FALSE(FeatureFlags::IsOn(FeatureFlagId::WriteMarksForESV));
        EXPECT_EQ(Format(DataValue(5)), TString(u"esv-marked[5]"));
    });
}

TEST(DataValueFormatterMarksDeathTest, AFirstCallThatRaisesDecidesToo)
{
    InFreshProcess([] {
        EXPECT_THAT([] { Format(DataValue(DataValueTypes::Normal, DataType::Table)); },
                    ThrowsAssert("DataType::Table not expected in DataValue"));
        FeatureFlags::GetMutable().Enable(FeatureFlagId::WriteMarksForESV);
        EXPECT_EQ(Format(DataValue(5)), TString(u"5"));
    });
}
