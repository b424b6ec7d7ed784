#include "velcoredata/formalism/OMeasures.h"

#include <gtest/gtest.h>

#include "tests/data/NameSamples.h"
#include "tests/support/ErrorMatchers.h"
#include "velcoredata/data/Collation.h"
#include "velcoredata/data/DataSourceTypes.h"

namespace {

using test_support::NameOf;

IndexedFieldName DecodeText(TString const & text)
{
    return OMeasures::DecodeWithIndex(DataValue(GetUnknownCollation(), text));
}

TString EncodedText(FieldName const & name, std::size_t index)
{
    return OMeasures::Encode(IndexedFieldName(name, index)).GetString();
}

constexpr std::size_t kBeyond32Bits = std::size_t{1} << 40;

}  // namespace

TEST(OMeasures, EncodesTheFullValueUnderTheUnknownCollation)
{
    DataValue const value = OMeasures::Encode(NameOf({u"sales", u"a]"}));
    EXPECT_EQ(value.GetDataType(), DataType::String);
    EXPECT_FALSE(value.IsSpecial());
    EXPECT_EQ(value.GetString(), u"[sales].[a]]]");
    EXPECT_TRUE(value.GetCollation() == GetUnknownCollation());
    EXPECT_EQ(OMeasures::Encode(FieldName()).GetString(), u"");
    EXPECT_EQ(OMeasures::Encode(DataSourceTypes::s_lnmOMeasures).GetString(), u"[:Measure Names]");
}

TEST(OMeasures, EncodesAnIndexBehindAColonAndNoneForZero)
{
    FieldName const name = NameOf({u"a", u"b"});
    DataValue const indexed = OMeasures::Encode(IndexedFieldName(name, 3));
    EXPECT_EQ(indexed.GetString(), u"[a].[b]:3");
    EXPECT_TRUE(indexed.GetCollation() == GetUnknownCollation());
    EXPECT_TRUE(OMeasures::Encode(IndexedFieldName(name, 0)) == OMeasures::Encode(name));
    EXPECT_EQ(EncodedText(name, 2147483647), u"[a].[b]:2147483647");
    EXPECT_EQ(EncodedText(name, kBeyond32Bits), u"[a].[b]:1099511627776");
    EXPECT_EQ(EncodedText(name, ~std::size_t{0}), u"[a].[b]:18446744073709551615");
    EXPECT_EQ(EncodedText(NameOf({u"a:7"}), 1), u"[a:7]:1");
    EXPECT_EQ(OMeasures::Encode(IndexedFieldName(FieldName(), 7)).GetString(), u":7");
}

TEST(OMeasures, DecodesNameAndIndex)
{
    FieldName const ab = NameOf({u"a", u"b"});
    EXPECT_EQ(DecodeText(u"[a].[b]:3"), IndexedFieldName(ab, 3));
    EXPECT_EQ(DecodeText(u"[a].[b]"), IndexedFieldName(ab, 0));
    EXPECT_EQ(DecodeText(u"[a:7]"), IndexedFieldName(NameOf({u"a:7"}), 0));
    EXPECT_EQ(DecodeText(u"[a:7]:8"), IndexedFieldName(NameOf({u"a:7"}), 8));
    EXPECT_EQ(DecodeText(u" [a] : 5 "), IndexedFieldName(NameOf({u"a"}), 5));
    EXPECT_EQ(DecodeText(u""), IndexedFieldName());
    EXPECT_EQ(OMeasures::Decode(DataValue(GetUnknownCollation(), u"[a].[b]:3")), ab);
    EXPECT_EQ(OMeasures::Decode(OMeasures::Encode(ab)), ab);
    // The collation of the value plays no part, nor does a marker: its text is empty.
    EXPECT_EQ(OMeasures::DecodeWithIndex(DataValue(GetBinaryCollation(), u"[a]:2")),
              IndexedFieldName(NameOf({u"a"}), 2));
    EXPECT_EQ(OMeasures::DecodeWithIndex(DataValue(DataValueTypes::Null, DataType::String)), IndexedFieldName());
}

TEST(OMeasures, DecodesWhatIsNoIndexAsZero)
{
    FieldName const a = NameOf({u"a"});
    for (char16_t const * text : {u"[a]:", u"[a]:x", u"[a]:0", u"[a]:3x", u"[a]:1.5", u"[a]:2147483648",
                                  u"[a]:99999999999", u"[a]:-2147483649", u"[a]:0x10", u"[a]: "})
        EXPECT_EQ(DecodeText(text), IndexedFieldName(a, 0)) << TString(text).toStdString();
    EXPECT_EQ(DecodeText(u"[a]:+4"), IndexedFieldName(a, 4));
    EXPECT_EQ(DecodeText(u"[a]:007"), IndexedFieldName(a, 7));
    // A negative number wraps.
    EXPECT_EQ(DecodeText(u"[a]:-5"), IndexedFieldName(a, ~std::size_t{0} - 4));
    EXPECT_EQ(DecodeText(u"[a]:-2147483648").GetIndex(), 0xFFFFFFFF80000000u);
    // An index beyond 31 bits is encoded in full and does not come back.
    EXPECT_EQ(DecodeText(EncodedText(a, kBeyond32Bits)), IndexedFieldName(a, 0));
}

TEST(OMeasures, AnEmptyNameKeepsItsIndexWhenDecoded)
{
    EXPECT_EQ(DecodeText(u":5"), IndexedFieldName(FieldName(), 5));
    EXPECT_EQ(DecodeText(u":5").GetIndex(), 5u);
    EXPECT_EQ(DecodeText(u"[]:5"), IndexedFieldName(FieldName(NameOf({u""})), 5));
    EXPECT_EQ(DecodeText(u"[]:5").GetIndex(), 5u);
}

TEST(OMeasures, RefusesOtherTypes)
{
    char const * const error = "VeltriaException_IncorrectDatatypeException_0xCA8336D0";
    EXPECT_THAT([] { OMeasures::DecodeWithIndex(DataValue(5)); },
                ThrowsError(error, "Incorrect data type integer, getting expected string type."));
    EXPECT_THAT([] { OMeasures::Decode(DataValue(1.5)); }, ThrowsError(error));
    EXPECT_THAT([] { OMeasures::DecodeWithIndex(DataValue()); }, ThrowsError(error));
}

TEST(OMeasures, PassesTheErrorsOfNamesOn)
{
    std::pair<char16_t const *, char const *> const texts[] = {
        {u"a", "5F1F5407"},      {u"a:3", "5F1F5407"},    {u"[a].b:3", "5F1F5408"}, {u"[:3", "5F1F5409"},
        {u"[a]]:3", "5F1F540A"}, {u"[a:3", "5F1F540A"},   {u"[a]::3", "5F1F540B"},  {u"[a]:3:4", "5F1F540B"},
        {u"[a]b:3", "5F1F540B"}, {u"[a].:3", "5F1F540C"}, {u"[a]:3]", "5F1F540B"},
    };
    for (auto const & [text, code] : texts) {
        SCOPED_TRACE(TString(text).toStdString());
        std::string const error = std::string("VeltriaException_QualifiedNameParseException_0x") + code;
        EXPECT_THAT([text = text] { DecodeText(text); }, ThrowsError(error));
        EXPECT_THAT([text = text] { OMeasures::Decode(DataValue(GetUnknownCollation(), TString(text))); },
                    ThrowsError(error));
    }
}

// DecodeWithIndex(Encode(n, i)) == (n, i) for non-empty n, 0 <= i <= 2147483647
TEST(OMeasures, LawDecodingUndoesEncoding)
{
    test_support::RandomNames random(26);
    for (int i = 0; i < 10000; ++i) {
        FieldName const name = random.NonEmptyName();
        std::size_t const index = i % 5 == 0 ? random.Texts().Below(10) : random.Texts().Below(std::size_t{1} << 31);
        IndexedFieldName const indexed(name, index);
        ASSERT_EQ(OMeasures::DecodeWithIndex(OMeasures::Encode(indexed)), indexed) << name << index;
        ASSERT_EQ(OMeasures::Decode(OMeasures::Encode(name)), name) << name;
    }
}
