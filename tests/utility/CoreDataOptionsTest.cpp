#include "velcoredata/utility/CoreDataOptions.h"

#include <gtest/gtest.h>

#include "velcoredata/core/LanguageCode.h"
#include "velcoredata/core/TLocale.h"
#include "velcoredata/data/StringWithCollationCache.h"

TEST(CoreDataOptions, SwitchesAreOffAtLoadAndStayAsTheyAreSet)
{
    struct
    {
        bool (*get)();
        void (*set)(bool);
    } const rows[] = {
        {&CoreDataOptions::GetUseBiDiPseudo, &CoreDataOptions::SetUseBiDiPseudo},
        {&CoreDataOptions::GetUseCanadianFrenchUI, &CoreDataOptions::SetUseCanadianFrenchUI},
        {&CoreDataOptions::GetUseNonSessionSpecificLocale, &CoreDataOptions::SetUseNonSessionSpecificLocale},
    };
    for (auto const & row : rows) {
        EXPECT_FALSE(row.get());
        row.set(true);
        for (auto const & other : rows)
            EXPECT_EQ(other.get(), other.get == row.get);
        row.set(false);
        EXPECT_FALSE(row.get());
    }
}

TEST(CoreDataOptions, LanguagesReadTheBiDiSwitch)
{
    CoreDataOptions::SetUseBiDiPseudo(true);
    TLocale const pseudo(u"ar_YE-US");
    CoreDataOptions::SetUseBiDiPseudo(false);
    EXPECT_EQ(pseudo.GetLCID(), 4096u);
    EXPECT_NE(TLocale(u"ar_YE-US").GetLCID(), 4096u);
}

// One test: the process keeps what is set.
TEST(CoreDataOptions, DefaultLocaleIsNamelessUntilItIsSet)
{
    TLocale const & nameless = CoreDataOptions::GetDefaultLocaleObject();
    EXPECT_EQ(nameless.GetLCID(), 0u);
    EXPECT_TRUE(nameless.getLanguageCode().GetISOString().isEmpty());
    EXPECT_EQ(&CoreDataOptions::GetDefaultLocaleObject(), &nameless);

    CoreDataOptions::SetDefaultLocale(u"de_DE");
    EXPECT_EQ(CoreDataOptions::GetDefaultLocaleObject().GetLCID(), 0x407u);
    EXPECT_EQ(&CoreDataOptions::GetDefaultLocaleObject(), &CoreDataOptions::GetDefaultLocaleObject());
    CoreDataOptions::SetDefaultLocale(u"fr_FR");
    EXPECT_EQ(CoreDataOptions::GetDefaultLocaleObject().GetLCID(), 0x40Cu);
    CoreDataOptions::SetDefaultLocale(u"");
    EXPECT_EQ(CoreDataOptions::GetDefaultLocaleObject().GetLCID(), 0u);
}

TEST(CoreDataOptions, TheSizeOfTheStringPoolIsForwarded)
{
    auto const before = StringWithCollationCache::GetStringPoolThreadLocalCacheSize();
    CoreDataOptions::SetStringPoolThreadLocalCacheSize(77);
    EXPECT_EQ(StringWithCollationCache::GetStringPoolThreadLocalCacheSize(), 77u);
    CoreDataOptions::SetStringPoolThreadLocalCacheSize(static_cast<std::size_t>(before));
}
