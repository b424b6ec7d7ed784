#include "velcoredata/utility/FeatureIdLookup.h"

#include <cctype>
#include <memory>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/RandomText.h"
#include "velcoredata/string/ICUUtils.h"
#include "velcoredata/utility/FeatureCatalogue.h"

namespace {

std::unordered_map<TString, FeatureFlagId> const names = {
    {u"Straße", FeatureFlagId(1)}, {u"KIOSK", FeatureFlagId(2)}, {u"", FeatureFlagId(3)}, {u"ΣΑΣ", FeatureFlagId(4)}};

TEST(FeatureIdLookup, FindsNamesWhateverTheirCase)
{
    FeatureIdLookup const lookup(names);
    struct
    {
        char16_t const * name;
        unsigned id;
    } const rows[] = {
        {u"Straße", 1},
        {u"STRASSE", 1},
        {u"strasse", 1},
        {u"STRAẞE", 1},
        {u"Strase", 0},
        {u"kiosk", 2},
        {u"KIOSK", 2},
        {u"kIoSk", 2},
        {u"\u212Aio\u017Fk", 2},  // Kelvin sign and long s fold to k
                                  // and s
        {u"KİOSK", 0},
        {u"kıosk", 0},
        {u"KIOSK ", 0},
        {u" KIOSK", 0},
        {u"", 3},
        {u" ", 0},
        {u"σας", 4},
        {u"σασ", 4},
        {u"\xD800", 0},
    };
    for (auto const & row : rows)
        EXPECT_EQ(static_cast<unsigned>(lookup.GetId(row.name)), row.id) << TString(row.name).toStdString();
}

TEST(FeatureIdLookup, AnEmptyLookupFindsNothing)
{
    FeatureIdLookup const lookup((std::unordered_map<TString, FeatureFlagId>()));
    EXPECT_EQ(lookup.GetId(u""), FeatureFlagId());
    EXPECT_EQ(lookup.GetId(u"DummyFeature1"), FeatureFlagId());
}

TEST(FeatureIdLookup, OfNamesThatFoldToOneTheLaterGivesTheId)
{
    std::unordered_map<TString, FeatureFlagId> map;
    for (int i = 0; i < 8; ++i) {
        TString name(u"abc");
        for (int bit = 0; bit < 3; ++bit)
            if (i >> bit & 1)
                name[bit] = static_cast<char16_t>(name[bit] - 0x20);
        map.emplace(name, FeatureFlagId(static_cast<unsigned>(i) + 1));
    }
    FeatureFlagId last{};
    for (auto const & entry : map)
        last = entry.second;
    EXPECT_EQ(FeatureIdLookup(map).GetId(u"Abc"), last);
}

TEST(FeatureIdLookup, ACopyAnswersTheSameWithoutTheFirst)
{
    auto first = std::make_unique<FeatureIdLookup>(names);
    FeatureIdLookup const copy(*first);
    first.reset();
    EXPECT_EQ(copy.GetId(u"kiosk"), FeatureFlagId(2));
    EXPECT_EQ(copy.GetId(u"missing"), FeatureFlagId());
}

TEST(FeatureIdLookup, LookupCaseIsTheFullFoldingOfUnicode)
{
    FeatureIdLookup const lookup(names);
    EXPECT_EQ(lookup.StrToLookupCase(u"DummyFeature3_Enabled"), u"dummyfeature3_enabled");
    EXPECT_EQ(lookup.StrToLookupCase(u"ß"), u"ss");
    EXPECT_EQ(lookup.StrToLookupCase(u"I"), u"i");
    EXPECT_EQ(lookup.StrToLookupCase(u""), u"");
    test_support::RandomText random(46);
    for (int i = 0; i < 10'000; ++i) {
        TString const text = TString::fromStdU16String(random.Any(12));
        ASSERT_EQ(lookup.StrToLookupCase(text), ICUUtils::StrFoldCase(text, false));
    }
}

// GetId(n) == id for every name n of the catalogue in any mix of cases.
TEST(FeatureIdLookupLaws, NamesOfTheCatalogueAreFoundInAnyMixOfCases)
{
    test_support::RandomText random(46);
    auto const & ids = GetAllFeatureFlagIds();
    std::set<FeatureFlagId> unique(ids.begin(), ids.end());
    EXPECT_EQ(unique.size(), ids.size());
    EXPECT_EQ(unique.count(FeatureFlagId()), 0u);
    std::set<TString> folded;
    for (FeatureFlagId const id : ids)
        folded.insert(GetDefaultFeatureIdLookup().StrToLookupCase(GetFeatureFlagName(id)));
    EXPECT_EQ(folded.size(), ids.size());
    for (int i = 0; i < 10'000; ++i) {
        FeatureFlagId const id = ids[random.Below(ids.size())];
        TString name = GetFeatureFlagName(id);
        for (char16_t & character : name)
            if (random.Below(2) == 0)
                character =
                    static_cast<char16_t>(random.Below(2) == 0 ? std::toupper(character) : std::tolower(character));
        ASSERT_EQ(GetDefaultFeatureIdLookup().GetId(name), id) << name.toStdString();
    }
}

}  // namespace
