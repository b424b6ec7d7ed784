// What the catalogue answers from its rows, over a made-up table of 1,015 flags: each answer against the table's text.
#include "main/utility/FeatureInfo.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/ErrorMatchers.h"
#include "velcoredata/utility/FeatureIdLookup.h"

namespace {

using Line = std::vector<std::string>;

enum Column
{
    Id,
    Maturity,
    Default,
    Team,
    ScrumAlias,
    TfsId,
    RemovalDate,
    Toggle,
    Name,
    Description,
    ColumnCount
};

std::vector<Line> const & Table()
{
    static std::vector<Line> const lines = [] {
        std::ifstream file(VELCOREDATA_MADE_UP_FEATURES);
        std::vector<Line> all;
        std::string text;
        std::getline(file, text);  // the header
        while (std::getline(file, text)) {
            Line cells;
            std::size_t start = 0;
            for (std::size_t tab; (tab = text.find('\t', start)) != text.npos; start = tab + 1)
                cells.push_back(text.substr(start, tab - start));
            cells.push_back(text.substr(start));
            all.push_back(cells);
        }
        return all;
    }();
    return lines;
}

FeatureFlagId IdOf(Line const & line)
{
    return FeatureFlagId(static_cast<std::uint32_t>(std::stoul(line[Id])));
}

std::vector<FeatureInfo> const & Infos()
{
    static std::vector<FeatureInfo> const infos = detail::MakeFeatureInfos(detail::FeatureRows());
    return infos;
}

int MaturityOf(Line const & line)
{
    static std::map<std::string, int> const numbers = {
        {"Unclassified", 0}, {"Development", 1}, {"Trial", 2}, {"Released", 3}, {"Settled", 4}};
    return numbers.at(line[Maturity]);
}

TEST(FeatureInfo, EveryRowOfTheTableIsThereInItsOrder)
{
    ASSERT_EQ(Table().size(), 1015u);
    auto const ids = detail::FeatureIds(Infos());
    ASSERT_EQ(ids.size(), 1015u);
    for (std::size_t i = 0; i < ids.size(); ++i)
        ASSERT_EQ(ids[i], IdOf(Table()[i])) << i;
    EXPECT_FALSE(std::is_sorted(ids.begin(), ids.end()));
    EXPECT_EQ(std::set<FeatureFlagId>(ids.begin(), ids.end()).size(), ids.size());
}

TEST(FeatureInfo, EveryColumnOfEveryRowIsFoundByItsId)
{
    for (Line const & line : Table()) {
        ASSERT_EQ(line.size(), std::size_t{ColumnCount});
        SCOPED_TRACE(line[Id]);
        FeatureInfo const & info = detail::FindFeatureInfo(Infos(), IdOf(line));
        EXPECT_EQ(info.id, IdOf(line));
        EXPECT_EQ(static_cast<int>(info.maturity), MaturityOf(line));
        EXPECT_EQ(info.enabledByDefault, line[Default] == "on");
        EXPECT_EQ(info.team.toStdString(), line[Team]);
        EXPECT_EQ(info.scrumAlias.toStdString(), line[ScrumAlias]);
        EXPECT_EQ(info.tfsId.toStdString(), line[TfsId]);
        EXPECT_EQ(info.removalDate.toStdString(), line[RemovalDate]);
        EXPECT_EQ(info.toggleRequirement.toStdString(), line[Toggle]);
        EXPECT_EQ(info.name.toStdString(), line[Name]);
        EXPECT_EQ(info.description.toStdString(), line[Description]);
    }
}

TEST(FeatureInfo, FieldsStandInTheOrderOfTheColumns)
{
    auto const & [id, maturity, enabledByDefault, team, scrumAlias, tfsId, removalDate, toggleRequirement, name,
                  description] = Infos()[0];
    FeatureInfo const & info = Infos()[0];
    EXPECT_EQ(&id, &info.id);
    EXPECT_EQ(&maturity, &info.maturity);
    EXPECT_EQ(&enabledByDefault, &info.enabledByDefault);
    EXPECT_EQ(&team, &info.team);
    EXPECT_EQ(&scrumAlias, &info.scrumAlias);
    EXPECT_EQ(&tfsId, &info.tfsId);
    EXPECT_EQ(&removalDate, &info.removalDate);
    EXPECT_EQ(&toggleRequirement, &info.toggleRequirement);
    EXPECT_EQ(&name, &info.name);
    EXPECT_EQ(&description, &info.description);
}

TEST(FeatureInfo, TheSearchStartsAtTheFirstRow)
{
    std::vector<FeatureInfo> twice(2, Infos()[3]);
    twice[0].name = u"first";
    twice[1].name = u"second";
    EXPECT_EQ(detail::FindFeatureInfo(twice, twice[0].id).name, u"first");
}

TEST(FeatureInfo, AnIdThatIsNoRowIsAnAssertion)
{
    for (unsigned const number : {0u, 2u, 0xFFFFFFFEu})
        EXPECT_THAT([&] { detail::FindFeatureInfo(Infos(), FeatureFlagId(number)); },
                    ThrowsAssert("it != std::cend(GetFeatureInfos())", "LogicException_LogicAssert_0x7A1C40E6"));
}

TEST(FeatureInfo, DefaultsAreTheRowsThatSaySo)
{
    std::vector<FeatureFlagId> expected;
    for (Line const & line : Table())
        if (line[Default] == "on")
            expected.push_back(IdOf(line));
    EXPECT_EQ(detail::DefaultEnabledFeatureIds(Infos(), false), expected);
    EXPECT_EQ(expected.size(), 673u);
}

TEST(FeatureInfo, FlagsOnTrialCountAsDefaultsIfAskedFor)
{
    std::vector<FeatureFlagId> expected;
    for (Line const & line : Table())
        if (line[Default] == "on" || MaturityOf(line) == 2)
            expected.push_back(IdOf(line));
    EXPECT_EQ(detail::DefaultEnabledFeatureIds(Infos(), true), expected);
    EXPECT_EQ(expected.size(), 678u);
}

TEST(FeatureInfo, EveryNameLeadsToItsIdInAnyCase)
{
    auto const names = detail::FeatureIdsByName(Infos());
    EXPECT_EQ(names.size(), 1015u);
    FeatureIdLookup const lookup(names);
    std::set<TString> folded;
    unsigned chance = 1;
    for (Line const & line : Table()) {
        std::string mixed = line[Name];
        for (char & character : mixed) {
            chance = chance * 1664525u + 1013904223u;
            if (chance >> 31)
                character =
                    static_cast<char>(std::islower(character) ? std::toupper(character) : std::tolower(character));
        }
        EXPECT_EQ(lookup.GetId(TString::fromStdString(line[Name])), IdOf(line));
        EXPECT_EQ(lookup.GetId(TString::fromStdString(mixed)), IdOf(line)) << mixed;
        EXPECT_EQ(lookup.GetId(TString::fromStdString(line[Name] + "x")), FeatureFlagId());
        folded.insert(lookup.StrToLookupCase(TString::fromStdString(mixed)));
    }
    EXPECT_EQ(folded.size(), 1015u);
}

}  // namespace
