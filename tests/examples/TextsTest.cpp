#include "typedtable/Texts.h"

#include <gtest/gtest.h>

#include <string>

#include "typedtable/UserError.h"
#include "velcoredata/core/LocalStrings.h"

using typedtable::LanguageScope;
using typedtable::Text;

// This program has no archives beside it: its own texts stay English, those of the library do not.

TEST(Texts, FillTheirPlacesOnce)
{
    EXPECT_EQ(Text("plain"), "plain");
    EXPECT_EQ(Text("%1 of %2", 3, "four"), "3 of four");
    EXPECT_EQ(Text("%2, %1, %2", "a", "b"), "b, a, b");
    EXPECT_EQ(Text("%1 %2", "%2", "%1"), "%2 %1") << "what was put in is not looked at again";
    EXPECT_EQ(Text("100% %", "a"), "100% %");
    EXPECT_EQ(Text("%3 %0 %1", "a"), "%3 %0 a");
    EXPECT_EQ(Text("%1", std::string("\xFF\xFE")), "\xFF\xFE") << "bytes of a file's name";
    EXPECT_EQ(Text("%1", 12345678901234ll), "12345678901234");
}

TEST(LanguageScope, PutsTheLibrarysTextsIntoALanguage)
{
    auto const year = [] { return CoreData::LookupTStrExported(CoreData::StringId::IDS_AGG_YEAR).toStdString(); };
    EXPECT_EQ(LanguageScope::GetLcid(), 0x409u);
    {
        LanguageScope const german("de");
        EXPECT_EQ(year(), "Jahr");
        EXPECT_EQ(LanguageScope::GetLcid(), 0x407u);
        EXPECT_EQ(german.GetMissing(), "German (Germany)");
        EXPECT_EQ(Text("1 row"), "1 row");
    }
    EXPECT_EQ(year(), "Year");
    EXPECT_EQ(LanguageScope::GetLcid(), 0x409u);
    EXPECT_EQ(LanguageScope("en_GB").GetMissing(), "");
    EXPECT_EQ(LanguageScope("en").GetMissing(), "");
}

TEST(LanguageScope, RefusesWhatIsNoLanguage)
{
    for (char const * name : {"xx", "xx_YY", "nonsense", "%", "\xFF", "\xC3\xA9"})
        EXPECT_THROW(LanguageScope{name}, typedtable::UserError) << name;
    EXPECT_EQ(LanguageScope::GetLcid(), 0x409u);
}
