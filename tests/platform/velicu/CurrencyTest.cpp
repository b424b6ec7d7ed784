#include "velicu/Currency.h"

#include <gtest/gtest.h>

#include <string>

namespace VelICU_V2 {

TEST(Currency, IsThatOfTheCountry)
{
    struct Row
    {
        char const * locale;
        char16_t const * code;
    };
    for (Row const & row : {Row{"en_US", u"USD"}, Row{"de_AT", u"EUR"}, Row{"ja_JP", u"JPY"}, Row{nullptr, u"USD"}}) {
        ICUErrorCode status = U_ZERO_ERROR;
        char16_t code[4] = {};
        EXPECT_EQ(3, t_ucurr_forLocale(row.locale, code, 4, status));
        EXPECT_TRUE(ICU_SUCCESS(status));
        EXPECT_EQ(row.code, std::u16string(code));
    }
}

TEST(Currency, ALocaleWithoutACountryHasNone)
{
    ICUErrorCode status = U_ZERO_ERROR;
    char16_t code[4] = {};
    EXPECT_EQ(0, t_ucurr_forLocale("en", code, 4, status));
    EXPECT_TRUE(ICU_FAILURE(status));
}

}  // namespace VelICU_V2
