// The defaults on a system whose locale is another than en_US: ICU's default locale is set here, without the library.

#include <gtest/gtest.h>

#include <unicode/locid.h>

#include <vector>

#include "tests/support/MemorySettings.h"
#include "velcoredata/core/LanguageCode.h"
#include "velcoredata/core/LanguageUtils.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/string/CoreICUUtils.h"
#include "velcoredata/string/ICUUtils.h"
#include "velicu/ICULocale.h"

namespace {

// ICU's default locale while the object lives.
class IcuDefault
{
public:
    explicit IcuDefault(char const * name) : m_before(icu::Locale::getDefault()) { Set(icu::Locale(name)); }
    ~IcuDefault() { Set(m_before); }
    IcuDefault(IcuDefault const &) = delete;
    IcuDefault & operator=(IcuDefault const &) = delete;

private:
    static void Set(icu::Locale const & locale)
    {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(locale, status);
        EXPECT_TRUE(U_SUCCESS(status));
    }

    icu::Locale m_before;
};

struct System
{
    char const * icuDefault;
    LCID lcid;
    char16_t const * isoString;
    char16_t const * closest;
    char16_t const * special;
    SOWValue startOfWeek;
    char16_t const * decimalPoint;
};

System const SYSTEMS[] = {
    {"de_AT", 0xC07, u"de_AT", u"de_DE-EU", u"de_DE-EU", SOW_MONDAY, u","},
    {"sv_SE", 0x41D, u"sv_SE", u"en_US", u"en_GB-EU", SOW_MONDAY, u","},
    {"hi_IN", 0x439, u"hi_IN", u"en_US", u"en_US-APAC", SOW_SUNDAY, u"."},
    {"zh_Hant_HK", 0xC04, u"zh_HK", u"zh_TW-APAC", u"zh_TW-APAC", SOW_SUNDAY, u"."},
    {"ja_JP", 0x411, u"ja_JP", u"ja_JP-Japan", u"ja_JP-Japan", SOW_SUNDAY, u"."},
    {"sr_Latn_RS", 0x241A, u"sr_Latn_RS", u"en_US", u"en_US-US", SOW_MONDAY, u","},
    {"en_US_POSIX", 0x409, u"en_US", u"en_US-US", u"en_US-US", SOW_SUNDAY, u"."},
};

constexpr LCID DEFAULTS[] = {127, 1024, 2048, 3072, 4096, 5120};

}  // namespace

TEST(DefaultLocale, TheDefaultsAreTheSystemsLocale)
{
    for (System const & system : SYSTEMS) {
        SCOPED_TRACE(system.icuDefault);
        IcuDefault const scope(system.icuDefault);
        EXPECT_EQ(TLocale::GetUserDefaultLCID(), system.lcid);
        for (LCID const lcid : DEFAULTS) {
            EXPECT_EQ(LanguageUtils::ConvertDefaultLocale(lcid), system.lcid);
            EXPECT_EQ(LanguageUtils::GetLocaleNarrowStr(lcid), TString(system.isoString).toStdString());
            EXPECT_EQ(TLocale::GetPrimaryLanguage(lcid), system.lcid & 0x3FF);
            EXPECT_EQ(TLocale::GetDecimalPoint(lcid), TString(system.decimalPoint));
        }
        EXPECT_EQ(LanguageUtils::GetLocaleStr(4096), u"ar_YE");
        EXPECT_EQ(LanguageUtils::GetLocaleNarrowStr(0), "root");
        EXPECT_EQ(TLocale::GetDecimalPoint(0), TString(system.decimalPoint));

        EXPECT_EQ(LanguageCode().GetISOString(), system.isoString);
        EXPECT_EQ(LanguageCode().GetLCID(), 1024u);
        TLocale const user(1024);
        EXPECT_EQ(user.getLanguageCode().GetISOString(), system.isoString);
        TLocale const copy(user);
        EXPECT_EQ(copy.GetLCID(), system.lcid);
        EXPECT_STREQ(CoreICUUtils::GetLocale(2048)->getName(), TString(system.isoString).toStdString().c_str());
        EXPECT_EQ(ICUUtils::GetDefaultLCID(), system.lcid);
        EXPECT_EQ(ICUUtils::GetStartOfWeek(), system.startOfWeek);
    }
    struct
    {
        char const * icuDefault;
        LCID lcid;
    } const others[] = {
        // A language has its likely region.
        {"de", 0x407},
        {"zh_Hant", 0x404},
        {"de@collation=phonebook", 0x407},
        // A locale without a number has the first of its language.
        {"de_BE", 0x407},
        {"fr_DZ", 0x40C},
        // The published name comes before ICU's number: it has none for en_AE, and Simplified Chinese for Hong Kong's.
        {"en_AE", 0x4C09},
        {"zh_Hans_HK", 0xC04},
        // No number at all.
        {"eo_001", 0x409},
        {"tlh", 0x409},
    };
    for (auto const & other : others) {
        IcuDefault const scope(other.icuDefault);
        EXPECT_EQ(TLocale::GetUserDefaultLCID(), other.lcid) << other.icuDefault;
    }
    IcuDefault const scope("zh_Hant_HK");
    EXPECT_STREQ(CoreICUUtils::GetLocale(1024)->getName(), "zh_Hant_HK");  // ICU's own name
}

TEST(DefaultLocale, AFirstChoiceOfLanguageIsNearTheSystems)
{
    for (System const & system : SYSTEMS) {
        SCOPED_TRACE(system.icuDefault);
        IcuDefault const scope(system.icuDefault);
        test_support::MemorySettings settings;
        for (int call = 0; call < 2; ++call) {
            EXPECT_EQ(LanguageUtils::GetUILanguageCodeStr(), system.closest);
            EXPECT_EQ(LanguageUtils::GetSampleDataSourcesLanguageString(), system.special);
            EXPECT_EQ(LanguageUtils::GetSampleWorkbooksLanguageString(), LanguageUtils::GetISOString(system.closest));
        }
        EXPECT_EQ(settings.values.at(u"veltria/velcoredata/35/LanguageCode"), system.closest);
        EXPECT_EQ(settings.values.at(u"veltria/velcoredata/35/SamplesLanguage"), system.special);
    }
}

TEST(DefaultLocale, LocalesOfTheProcessStayAsTheyWereMade)
{
    TLocale const & user = TLocale::GetUserDefaultLocale();
    TLocale const & system = TLocale::GetSystemInvariantLocale();
    TString const & icu = TLocale::GetUserDefaultICULocale();
    IcuDefault const scope("de_AT");
    for (TLocale const * const locale : {&TLocale::GetUserDefaultLocale(), &TLocale::GetSystemInvariantLocale()}) {
        EXPECT_TRUE(locale == &user || locale == &system);
        EXPECT_STREQ(locale->getICULocale().getName(), "en_US");
        EXPECT_EQ(locale->getLanguageCode().GetISOString(), u"en_US");
    }
    EXPECT_EQ(&TLocale::GetUserDefaultICULocale(), &icu);
    EXPECT_EQ(icu, u"en_US");
    EXPECT_EQ(LanguageUtils::GetDefaultLanguage(), u"en");
    EXPECT_EQ(LanguageUtils::GetDefaultISOString(), u"en_US");
}

TEST(DefaultLocale, TheListsOfLocalesAreMadeAnewAtEachCall)
{
    auto const nameOfGerman = [](auto list) {
        std::vector<int> lcids;
        std::vector<TString> names;
        std::vector<TString> displayNames;
        list(1024u, lcids, names, displayNames);
        for (std::size_t i = 0; i < lcids.size(); ++i) {
            if (lcids[i] == 1031)
                return displayNames[i];
        }
        return TString();
    };
    for (auto const list : {&TLocale::GetSupportedLocalesICU, &TLocale::GetSupportedLocalesWindows}) {
        EXPECT_EQ(nameOfGerman(list), u"German (Germany)");
        IcuDefault const scope("fr_FR");
        EXPECT_EQ(nameOfGerman(list), u"allemand (Allemagne)");
    }
}
