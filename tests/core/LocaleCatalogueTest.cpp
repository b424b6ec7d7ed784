// The lists of locales, and what is asked of the system through TLocale.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>
#include <thread>

#include "main/core/DateOrder.h"
#include "main/core/FirstWeek.h"
#include "main/core/LocaleWalk.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/string/CoreICUUtils.h"
#include "velcoredata/string/ICUUtils.h"
#include "velcoredata/string/NumberFormatOptions.h"
#include "velicu/ICULocale.h"
#include "velnls/LocaleInfo.h"

namespace {

constexpr LCID ENGLISH = 0x409;
constexpr LCID GERMAN = 0x407;

struct List
{
    std::vector<int> lcids;
    std::vector<TString> names;
    std::vector<TString> displayNames;

    std::size_t Find(int lcid) const
    {
        return static_cast<std::size_t>(std::find(lcids.begin(), lcids.end(), lcid) - lcids.begin());
    }
};

using ListFunction = void (*)(LCID, std::vector<int> &, std::vector<TString> &, std::vector<TString> &);

List Make(ListFunction function, LCID displayLcid = ENGLISH)
{
    List list;
    function(displayLcid, list.lcids, list.names, list.displayNames);
    return list;
}

}  // namespace

TEST(LocaleCatalogue, AllListsAreParallelAndNameTheirLocales)
{
    for (ListFunction const function :
         {&TLocale::GetSupportedLocales, &TLocale::GetSupportedLocalesICU, &TLocale::GetSupportedLocalesWindows})
    {
        List const list = Make(function);
        ASSERT_GT(list.lcids.size(), 150u);
        ASSERT_EQ(list.names.size(), list.lcids.size());
        ASSERT_EQ(list.displayNames.size(), list.lcids.size());
        EXPECT_TRUE(std::is_sorted(list.lcids.begin(), list.lcids.end()));
        EXPECT_EQ(std::set<int>(list.lcids.begin(), list.lcids.end()).size(), list.lcids.size());
        for (std::size_t i = 0; i < list.lcids.size(); ++i) {
            auto const lcid = static_cast<LCID>(list.lcids[i]);
            EXPECT_GE(lcid, 1025u);
            EXPECT_EQ(list.names[i], LanguageUtils::GetLocaleStr(lcid));
            EXPECT_EQ(list.displayNames[i], ICUUtils::GetDisplayName(lcid, ENGLISH));
        }
        std::size_t const german = list.Find(1031);
        ASSERT_LT(german, list.lcids.size());
        EXPECT_EQ(list.names[german], TString(u"de_DE"));
        EXPECT_EQ(list.displayNames[german], TString(u"German (Germany)"));
    }
}

TEST(LocaleCatalogue, DisplayNamesAreInTheLanguageAskedFor)
{
    List const list = Make(&TLocale::GetSupportedLocales, GERMAN);
    EXPECT_EQ(list.displayNames[list.Find(1031)], TString(u"Deutsch (Deutschland)"));
    List const icu = Make(&TLocale::GetSupportedLocalesICU, GERMAN);
    EXPECT_EQ(icu.displayNames[icu.Find(1031)], TString(u"Deutsch (Deutschland)"));
}

TEST(LocaleCatalogue, IcuLocalesAreThoseWithAnLcidAndACountry)
{
    std::set<int> expected;
    for (auto const & locale : VelICU::ICULocale::getAvailableLocales()) {
        LCID const lcid = locale->getLCID();
        if (lcid >= 1025 && *CoreICUUtils::GetLocale(lcid)->getCountry() != '\0')
            expected.insert(static_cast<int>(lcid));
    }
    List const list = Make(&TLocale::GetSupportedLocalesICU);
    EXPECT_EQ(list.lcids, std::vector<int>(expected.begin(), expected.end()));
}

TEST(LocaleCatalogue, ThePlatformsLocalesComeInItsOrder)
{
    static std::vector<int> s_walked;
    s_walked.clear();
    ASSERT_TRUE(EnumSystemLocalesW(
        [](char16_t * lcid) {
            s_walked.push_back(TString(lcid).toInt(nullptr, 16));
            return true;
        },
        LCID_SUPPORTED));
    EXPECT_EQ(Make(&TLocale::GetSupportedLocalesWindows).lcids, s_walked);
    EXPECT_EQ(Make(&TLocale::GetSupportedLocales).lcids, s_walked);
}

TEST(LocaleCatalogue, VectorsAreAppendedTo)
{
    for (ListFunction const function :
         {&TLocale::GetSupportedLocales, &TLocale::GetSupportedLocalesICU, &TLocale::GetSupportedLocalesWindows})
    {
        List list{{-1}, {u"name"}, {u"display name"}};
        function(ENGLISH, list.lcids, list.names, list.displayNames);
        EXPECT_GT(list.lcids.size(), 150u);
        EXPECT_EQ(list.names.size(), list.lcids.size());
        EXPECT_EQ(list.lcids.front(), -1);
        EXPECT_EQ(list.names.front(), TString(u"name"));
        EXPECT_EQ(list.displayNames.front(), TString(u"display name"));
    }
    List list;
    TLocale::GetSupportedLocalesWindows(ENGLISH, list.lcids, list.names, list.displayNames);
    // Room for 230 is made at first; the list is longer, and the vectors of libstdc++ double.
    ASSERT_GT(list.lcids.size(), 230u);
    EXPECT_EQ(list.lcids.capacity(), 460u);
    EXPECT_EQ(list.names.capacity(), 460u);
    EXPECT_EQ(list.displayNames.capacity(), 460u);
}

TEST(LocaleCatalogue, TheCommonListIsThePlatformsCutToIcus)
{
    List const windows = Make(&TLocale::GetSupportedLocalesWindows);
    List const icu = Make(&TLocale::GetSupportedLocalesICU);
    std::vector<TLocale::LocaleInfo> const common = TLocale::GetCommonlySupportedLocalesForWindowsAndICU(ENGLISH);
    std::size_t next = 0;
    for (std::size_t i = 0; i < windows.lcids.size(); ++i) {
        if (icu.Find(windows.lcids[i]) == icu.lcids.size())
            continue;
        ASSERT_LT(next, common.size());
        EXPECT_EQ(common[next].lcid, windows.lcids[i]);
        EXPECT_EQ(common[next].name, windows.names[i]);
        EXPECT_EQ(common[next].displayName, windows.displayNames[i]);
        ++next;
    }
    EXPECT_EQ(next, common.size());
    EXPECT_GT(common.size(), 150u);
}

TEST(LocaleCatalogue, AnExceptionEndsTheWalkAndGoesNoFurther)
{
    int visits = 0;
    EXPECT_NO_THROW(detail::WalkSystemLocales([&](LCID) {
        if (++visits == 3)
            throw std::runtime_error("enough");
    }));
    EXPECT_EQ(visits, 3);
}

TEST(LocaleCatalogue, AVisitMayWalkAgain)
{
    int outer = 0;
    int inner = 0;
    detail::WalkSystemLocales([&](LCID) {
        if (++outer > 2)
            return;
        detail::WalkSystemLocales([&](LCID) { ++inner; });
    });
    EXPECT_EQ(inner, 2 * outer);
}

TEST(LocaleCatalogue, ManyThreadsMayAskForTheLists)
{
    std::vector<int> const expected = Make(&TLocale::GetSupportedLocales).lcids;
    std::vector<List> lists(4);
    std::vector<std::thread> threads;
    for (List & list : lists)
        threads.emplace_back([&list] { list = Make(&TLocale::GetSupportedLocales); });
    for (std::thread & thread : threads)
        thread.join();
    for (List const & list : lists)
        EXPECT_EQ(list.lcids, expected);
}

TEST(RegionalInfo, DateOrderIsThatOfTheFirstLetters)
{
    struct
    {
        char16_t const * pattern;
        TLocale::DateOrder order;
    } const rows[] = {
        {u"dd.MM.yyyy", TLocale::DateOrderDMY},     {u"M/d/yyyy", TLocale::DateOrderMDY},
        {u"yyyy-MM-dd", TLocale::DateOrderYMD},     {u"yyyy-dd-MM", TLocale::DateOrderYDM},
        {u"d.yyyy.M", TLocale::DateOrderUnknown},   {u"M-yyyy-d", TLocale::DateOrderUnknown},
        {u"dd.MM.", TLocale::DateOrderUnknown},     {u"MM.yyyy", TLocale::DateOrderUnknown},
        {u"d.yyyy", TLocale::DateOrderUnknown},     {u"", TLocale::DateOrderUnknown},
        {u"yyyy/d M d", TLocale::DateOrderYDM},      // the first of two
        {u"'dia' M/d/yyyy", TLocale::DateOrderDMY},  // quotes do not matter
    };
    for (auto const & row : rows)
        EXPECT_EQ(detail::DateOrderOf(row.pattern), row.order) << TString(row.pattern).toStdString();
}

TEST(RegionalInfo, DateOrderOfLocales)
{
    struct
    {
        LCID lcid;
        TLocale::DateOrder order;
    } const rows[] = {
        {1033, TLocale::DateOrderMDY},       {1031, TLocale::DateOrderDMY}, {2057, TLocale::DateOrderDMY},
        {1042, TLocale::DateOrderYMD},       {1053, TLocale::DateOrderYMD}, {1024, TLocale::DateOrderMDY},
        {0xFFFF, TLocale::DateOrderUnknown},  // no pattern at all
    };
    for (auto const & row : rows)
        EXPECT_EQ(TLocale::GetDateOrder(row.lcid), row.order) << row.lcid;
}

TEST(RegionalInfo, DateOrdersHaveTheirNumbers)
{
    EXPECT_EQ(static_cast<int>(TLocale::DateOrderUnknown), 0);
    EXPECT_EQ(static_cast<int>(TLocale::DateOrderDMY), 1);
    EXPECT_EQ(static_cast<int>(TLocale::DateOrderMDY), 2);
    EXPECT_EQ(static_cast<int>(TLocale::DateOrderYMD), 3);
    EXPECT_EQ(static_cast<int>(TLocale::DateOrderYDM), 4);
}

// No locale of ICU asks for a whole first week.
TEST(RegionalInfo, MinimalDaysOfEachBehaviour)
{
    struct
    {
        int behaviour;
        int days;
    } const rows[] = {{0, 1}, {1, 1}, {2, 4}, {3, 7}, {4, 1}, {-1, 1}};
    for (auto const & row : rows)
        EXPECT_EQ(detail::MinimalDaysOf(static_cast<FirstWeekBehaviour>(row.behaviour)), row.days) << row.behaviour;
}

TEST(RegionalInfo, MinimalDaysFollowTheBehaviourOfTheFirstWeek)
{
    std::map<FirstWeekBehaviour, int> seen;
    for (int const number : Make(&TLocale::GetSupportedLocales).lcids) {
        auto const lcid = static_cast<LCID>(number);
        FirstWeekBehaviour const behaviour = TLocale::GetFirstWeekBehaviour(lcid);
        ++seen[behaviour];
        EXPECT_EQ(TLocale::FirstWeekIsBroken(lcid), behaviour == FirstWeekContainsJanFirst);
        EXPECT_EQ(TLocale::GetMinimalDaysInFirstWeek(lcid), detail::MinimalDaysOf(behaviour));
    }
    EXPECT_GT(seen[FirstWeekContainsJanFirst], 0);
    EXPECT_GT(seen[FirstWeekFourDays], 0);
    EXPECT_EQ(TLocale::GetMinimalDaysInFirstWeek(1033), 1);
    EXPECT_EQ(TLocale::GetMinimalDaysInFirstWeek(1031), 4);
}

TEST(RegionalInfo, QueriesReachTheProvider)
{
    EXPECT_EQ(TLocale::GetCurrencyString(1031), TString(u"€"));
    EXPECT_EQ(TLocale::GetCurrencyDecimalPlaces(1041), 0);
    EXPECT_EQ(TLocale::GetNumberDecimalPlaces(1031), 2);
    EXPECT_EQ(TLocale::GetDecimalPoint(1031), TString(u","));
    EXPECT_EQ(TLocale::GetThousandSeparator(1031), TString(u"."));
    EXPECT_EQ(TLocale::GetListSeparator(1031), TString(u";"));
    EXPECT_EQ(TLocale::GetMeasureSystem(1031), Localization::MeasureMetric);
    EXPECT_EQ(TLocale::GetMeasureSystem(1033), Localization::MeasureUS);
    EXPECT_EQ(TLocale::GetFirstWeekBehaviour(1031), FirstWeekFourDays);
    NumberFormatOptions options;
    TLocale::GetSystemCurrencySettings(1031, &options);
    EXPECT_EQ(options.suffix, TString(u" €"));
    TLocale::GetSystemNumberSettings(1031, &options);
    EXPECT_EQ(options.suffix, TString());
    EXPECT_EQ(options.decimalSeparator, TString(u","));
    EXPECT_EQ(TLocale::GetLocaleFormatAsWindows(ICUUtils::SpecShortTime, 1033), TString(u"h:mm tt"));
    EXPECT_EQ(TLocale::GetLocaleFormatAsICU(ICUUtils::SpecShortTime, 1033), TString(u"h:mm a"));
    EXPECT_EQ(TLocale::GetLocaleFormatAsCustom(ICUUtils::SpecShortTime, 1033), TString(u"h:nn AM/PM"));
    EXPECT_EQ(TLocale::GetLocaleFormatQLocale(ICUUtils::SpecShortTime, 1033), TString(u"h:mm AP"));
    EXPECT_EQ(ICUUtils::GetLocaleFormatAsICU(ICUUtils::SpecShortTime, 1033), TString(u"h:mm a"));
    EXPECT_EQ(ICUUtils::GetLocaleFormatQLocale(ICUUtils::SpecShortTime, 1033), TString(u"h:mm AP"));
}
