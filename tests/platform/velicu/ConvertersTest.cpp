#include "velicu/Converters.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace VelICU_V2 {

TEST(Converters, KnowTheNamesOfAStandard)
{
    ICUErrorCode status = U_ZERO_ERROR;
    EXPECT_STREQ("ISO-8859-1", t_ucnv_getStandardName("latin1", "MIME", status));
    EXPECT_STREQ("UTF-8", t_ucnv_getStandardName("utf8", "IANA", status));
    EXPECT_TRUE(ICU_SUCCESS(status));
    EXPECT_EQ(nullptr, t_ucnv_getStandardName("no such set", "IANA", status));
}

TEST(Converters, KnowTheConverterBehindAName)
{
    ICUErrorCode status = U_ZERO_ERROR;
    EXPECT_STREQ("ibm-5348_P100-1997", t_ucnv_getCanonicalName("windows-1252", "WINDOWS", status));
    EXPECT_TRUE(ICU_SUCCESS(status));
    EXPECT_EQ(nullptr, t_ucnv_getCanonicalName("windows-99999", "WINDOWS", status));
}

TEST(Converters, AreListedByIndex)
{
    int const count = t_ucnv_countAvailable();
    ASSERT_GT(count, 100);
    std::set<std::string> names;
    for (int i = 0; i < count; ++i)
        names.insert(t_ucnv_getAvailableName(i));
    EXPECT_EQ(static_cast<std::size_t>(count), names.size());
    EXPECT_EQ(1u, names.count("UTF-8"));
    EXPECT_EQ(nullptr, t_ucnv_getAvailableName(count));
    EXPECT_EQ(nullptr, t_ucnv_getAvailableName(-1));
}

}  // namespace VelICU_V2
