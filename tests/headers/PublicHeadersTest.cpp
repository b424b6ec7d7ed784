#include "AllPublicHeaders.h"

#include <string>
#include <vector>

namespace {

std::vector<std::string> LeakedMacros()
{
    std::vector<std::string> leaked;
#define LEAKED(macro) leaked.emplace_back(macro)
    // ICU
#if defined(U_ICU_VERSION) || defined(U_ICU_VERSION_MAJOR_NUM) || defined(U_NAMESPACE_BEGIN)
    LEAKED("ICU: U_ICU_VERSION");
#endif
#if defined(UTYPES_H) || defined(__UTYPES_H__) || defined(UNISTR_H)
    LEAKED("ICU: UTYPES_H");
#endif
    // Boost.Xpressive and Boost.Spirit; their parts all include the headers guarded so
#if defined(BOOST_XPRESSIVE_XPRESSIVE_FWD_HPP_EAN_10_04_2005) ||                                                       \
    defined(BOOST_XPRESSIVE_DETAIL_DETAIL_FWD_HPP_EAN_10_04_2005)
    LEAKED("Boost.Xpressive");
#endif
#if defined(BOOST_SPIRIT_VERSION) || defined(SPIRIT_VERSION)
    LEAKED("Boost.Spirit");
#endif
    // Qt's private headers
#if defined(QGLOBAL_P_H) || defined(QTCORE_PRIVATE) || defined(QLOCALE_P_H) || defined(QOBJECT_P_H) ||                 \
    defined(QDATETIME_P_H) || defined(QSTRINGALGORITHMS_P_H) || defined(QT_PRIVATE_H)
    LEAKED("private headers of Qt");
#endif
    // Qt's keywords
#if defined(foreach) || defined(signals) || defined(slots) || defined(emit)
    LEAKED("keywords of Qt");
#endif
    // oneTBB, xxHash, Windows names
#if defined(__TBB_concurrent_unordered_map_H) || defined(TBB_VERSION_MAJOR)
    LEAKED("oneTBB");
#endif
#if defined(XXHASH_H_5627135585666179) || defined(XXH_VERSION_NUMBER)
    LEAKED("xxHash");
#endif
#if defined(GetLocaleInfo) || defined(min) || defined(max)
    LEAKED("GetLocaleInfo, min or max");
#endif
#undef LEAKED
    return leaked;
}

}  // namespace

// Only now: what the test framework itself defines must not count.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

TEST(PublicHeaders, LeakNoForeignMacros)
{
    EXPECT_THAT(LeakedMacros(), testing::IsEmpty());
}
