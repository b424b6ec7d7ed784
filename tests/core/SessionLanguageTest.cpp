// Texts in the language of a session's locale.

#include <gtest/gtest.h>

#include <boost/any.hpp>

#include <memory>

#include "velcoredata/core/LocalStrings.h"
#include "velcoredata/core/TLocale.h"
#include "velcoreplatform/CoreThreadContext.h"

namespace {

TString YearIn(boost::any locale)
{
    ScopedSession const session;
    CoreThreadContext::SetGenericObject(TString(u"locale"), std::make_shared<boost::any>(std::move(locale)));
    return CoreData::LookupTStrExported(CoreData::StringId::IDS_AGG_YEAR);
}

}  // namespace

TEST(SessionLanguage, TextsAreInTheLanguageOfTheSessionsLocale)
{
    EXPECT_EQ(YearIn(std::make_shared<TLocale>(TString(u"de_DE"))), TString(u"Jahr"));
    EXPECT_EQ(YearIn(std::make_shared<TLocale>(TString(u"de"))), TString(u"Jahr"));
    EXPECT_EQ(YearIn(std::make_shared<TLocale>(0x40Cu)), TString(u"Année"));
    EXPECT_EQ(YearIn(std::make_shared<TLocale>(0x409u)), TString(u"Year"));
}

TEST(SessionLanguage, TextsAreEnglishWithoutALocale)
{
    EXPECT_EQ(YearIn(std::make_shared<TLocale>(TString())), TString(u"Year"));
    EXPECT_EQ(YearIn(std::shared_ptr<TLocale>()), TString(u"Year"));
    EXPECT_EQ(YearIn(boost::any()), TString(u"Year"));
    EXPECT_EQ(YearIn(5), TString(u"Year"));
    EXPECT_EQ(YearIn(TString(u"de_DE")), TString(u"Year"));
    ScopedSession const session;
    EXPECT_EQ(CoreData::LookupTStrExported(CoreData::StringId::IDS_AGG_YEAR), TString(u"Year"));
}
