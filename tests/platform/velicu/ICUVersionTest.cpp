#include "velicu/ICUVersion.h"

#include <gtest/gtest.h>
#include <unicode/uversion.h>

#include "tests/support/ErrorMatchers.h"
#include "velicu/ICUString.h"

namespace VelICU_V2 {

TEST(ICUVersion, IsThatOfTheLibraryAndAtLeast68)
{
    EXPECT_EQ(U_ICU_VERSION_MAJOR_NUM, ICUVersion::GetMajor());
    EXPECT_EQ(U_ICU_VERSION_MAJOR_NUM >= 68, ICUVersion::Is_ICU_68());
}

TEST(ICUString, KeepsTheTextItWasMadeFrom)
{
    EXPECT_EQ(TString(u"gr\u00FC\u00DF"), ICUString::createInstance(u"gr\u00FC\u00DF")->ToTString());
    EXPECT_EQ(TString(u"gr"), ICUString::createInstance(u"gr\u00FC", 2)->ToTString());
    EXPECT_EQ(TString(u"gr\u00FC"), ICUString::createInstance("gr\xC3\xBC")->ToTString());
    EXPECT_EQ(TString(u"g"), ICUString::createInstance("gr", 1)->ToTString());
    EXPECT_EQ(3, ICUString::createInstance(TString(u"a\0b", 3))->length());
    EXPECT_EQ(TString(u"a\0b", 3), ICUString::createInstance(TString(u"a\0b", 3))->ToTString());
    EXPECT_EQ(TString(u"\xD800"), ICUString::createInstance(u"\xD800")->ToTString());
    EXPECT_EQ(TString(u"\uFFFD"), ICUString::createInstance("\xFF")->ToTString());
}

TEST(ICUString, NullIsTheEmptyText)
{
    EXPECT_EQ(0, ICUString::createInstance(static_cast<char16_t const *>(nullptr))->length());
    EXPECT_EQ(0, ICUString::createInstance(static_cast<char const *>(nullptr))->length());
    EXPECT_EQ(TString(), ICUString::createInstance(TString())->ToTString());
}

}  // namespace VelICU_V2
