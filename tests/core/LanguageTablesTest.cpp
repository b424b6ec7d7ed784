// The tables of languages, written down once more: a row that is lost, added or changed fails here.

#include <gtest/gtest.h>

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "main/core/LanguageTables.h"
#include "velcoredata/core/LanguageUtils.h"

using namespace LanguageUtils;

namespace {

using Rows = std::map<std::string, std::string>;

// Keys with blanks between, by what they lead to.
Rows Inverted(std::initializer_list<std::pair<char const *, char const *>> groups)
{
    Rows rows;
    for (auto const & [value, keys] : groups) {
        for (TString const & key : TString(TString::fromUtf8(keys)).split(u" "))
            EXPECT_TRUE(rows.emplace(key.toStdString(), value).second) << key;
    }
    return rows;
}

template <class Span>
Rows RowsOf(Span const & codes)
{
    Rows rows;
    for (auto const & row : codes)
        EXPECT_TRUE(rows.emplace(TString(row.key).toStdString(), TString(row.fullCode).toStdString()).second);
    return rows;
}

}  // namespace

TEST(LanguageTables, SupportedCodes)
{
    Rows const rows = Inverted({
        {"de_DE-EU", "de de_DE de_DE-EU"},
        {"en_US-US", "en en_US en_US-US"},
        {"en_GB-EU", "en_GB en_GB-EU en_US-EU"},
        {"en_US-APAC", "en_US-APAC"},
        {"es_ES-LATAM", "es es_ES es_ES-LATAM"},
        {"fr_FR-EU", "fr fr_FR fr_FR-EU"},
        {"fr_CA-USCA", "fr_CA fr_CA-USCA"},
        {"it_IT-EU", "it it_IT it_IT-EU"},
        {"ja_JP-Japan", "ja ja_JP ja_JP-Japan"},
        {"ko_KR-APAC", "ko ko_KR ko_KR-APAC"},
        {"pt_BR-LATAM", "pt pt_BR pt_BR-LATAM"},
        {"zh_CN-China", "zh zh_CN zh_CN-China"},
        {"zh_TW-APAC", "zh_TW zh_TW-APAC"},
    });
    ASSERT_EQ(rows.size(), 35u);
    EXPECT_EQ(RowsOf(LanguageUtils::detail::SupportedCodes()), rows);
    for (auto const & [key, fullCode] : rows) {
        TString const code = TString::fromStdString(key);
        EXPECT_TRUE(IsLanguageCodeSupported(code)) << key;
        EXPECT_EQ(GetClosestSupportedLanguageCode(code).toStdString(), fullCode) << key;
        EXPECT_EQ(GetSupportedLanguages().count(TString::fromStdString(fullCode)), 1u) << fullCode;
    }
    EXPECT_EQ(GetSupportedLanguages().size(), 13u);
}

TEST(LanguageTables, SpecialLocales)
{
    Rows const rows = Inverted({
        {"en_GB-EU", "Cy_az_AZ Cy_sr_SP Cy_uz_UZ Lt_az_AZ Lt_sr_SP Lt_uz_UZ af_ZA ar_AE ar_BH ar_DZ ar_EG ar_IQ ar_JO "
                     "ar_KW ar_LB ar_LY ar_MA ar_OM ar_QA ar_SA ar_SY ar_TN ar_YE be_BY bg_BG cs_CZ da_DK el_GR en_IE "
                     "en_ZA en_ZW et_EE fi_FI fo_FO he_IL hr_HR hu_HU hy_AM is_IS ka_GE ky_KZ lt_LT lv_LV mk_MK nb_NO "
                     "nl_BE nl_NL nn_NO pl_PL ro_RO ru_RU sk_SK sl_SI sq_AL sv_FI sv_SE sw_KE syr_SY tr_TR tt_RU "
                     "uk_UA"},
        {"es_ES-LATAM", "ca_ES es_AR es_BO es_CL es_CO es_CR es_DO es_EC es_GT es_HN es_MX es_NI es_PA es_PE es_PR "
                        "es_PY es_SV es_UY es_VE eu_ES gl_ES"},
        {"de_DE-EU", "de_AT de_CH de_LI de_LU"},
        {"en_US-APAC", "div_MV en_AU en_NZ en_PH fa_IR gu_IN hi_IN id_ID kk_KZ kn_IN kok_IN mr_IN ms_BN ms_MY pa_IN "
                       "sa_IN ta_IN te_IN th_TH ur_PK vi_VN"},
        {"en_US-US", "en_BZ en_CA en_CB en_JM en_TT"},
        {"fr_FR-EU", "fr_BE fr_CH fr_LU fr_MA fr_MC"},
        {"it_IT-EU", "it_CH"},
        {"zn_CN-China", "mn_MN"},
        {"pt_BR-LATAM", "pt_PT"},
        {"zh_CN-China", "zh_CHS zh_SG"},
        {"zh_TW-APAC", "zh_CHT zh_HK zh_MO"},
    });
    ASSERT_EQ(rows.size(), 125u);
    EXPECT_EQ(RowsOf(LanguageUtils::detail::SpecialLocales()), rows);
    for (auto const & [key, fullCode] : rows) {
        // No code "zn_CN-China" is supported, and no language is Mongolian.
        std::string const expected = key == "mn_MN" ? "en_US-US" : fullCode;
        EXPECT_EQ(GetClosestSpecialLocaleCode(TString::fromStdString(key)).toStdString(), expected) << key;
    }
}

TEST(LanguageTables, MapCodes)
{
    Rows const rows = Inverted({
        {"US", "zh_SG zh_TW en_US"},
        {"CN", "zh_CN zh_Hans_CN zh_HK zh_Hant_HK zh_MO zh_Hant_MO bo_CN ii_CN mn_Mong_CN ug_CN zh_Hans_HK zh_Hans_MO "
               "en_HK"},
        {"IN", "en_IN as_IN bn_IN brx_IN gu_IN hi_IN kn_IN kok_IN ml_IN mr_IN ne_IN or_IN pa_IN pa_Guru_IN sa_IN ta_IN "
               "te_IN bo_IN ur_IN"},
    });
    Rows ours;
    for (auto const & [locale, code] : GetMapCodeLocales())
        ours.emplace(locale.toStdString(), GetMapCodeString(code).toStdString());
    EXPECT_EQ(ours, rows);
    EXPECT_EQ(static_cast<int>(MapCodeUS), 1);
    EXPECT_EQ(static_cast<int>(MapCodeCN), 2);
    EXPECT_EQ(static_cast<int>(MapCodeIN), 3);
}

TEST(LanguageTables, DesktopLanguages)
{
    struct
    {
        char const *isoString, *menuLabel, *sortName, *market;
    } const rows[] = {
        {"de_DE", "&Deutsch", "Deutsch", "EU"},
        {"en_US", "&English (United States)", "English US", "US"},
        {"en_GB", "E&nglish (United Kingdom)", "English UK", "EU"},
        {"fr_FR", "&Français (France)", "Français (France)", "EU"},
        {"pt_BR", "&Português", "Português Brasil", "LATAM"},
        {"es_ES", "E&spañol", "Español", "LATAM"},
        {"it_IT", "&Italiano", "Italiano", "EU"},
        {"ja_JP", "日本語(&J)", "z1-Japanese", "Japan"},
        {"ko_KR", "한국어(&K)", "z4-Korean", "APAC"},
        {"zh_CN", "简体中文(&C)", "z2-Chinese Simplified", "China"},
        {"zh_TW", "繁體中文(&T)", "z3-Chinese Traditional", "APAC"},
        {"ga_IE", "Psèúd&o", "z4-Pseudo", "US"},
        {"ar_YE", "BiDi Psèúd&o", "z5-BiDi Pseudo", "US"},
        {"fr_CA", "F&rançais (Canada)", "Français (Canada)", "USCA"},
    };
    auto const ours = LanguageUtils::detail::DesktopLanguages();
    ASSERT_EQ(ours.size(), std::size(rows));
    for (std::size_t i = 0; i < ours.size(); ++i) {
        EXPECT_EQ(TString(ours[i].isoString).toStdString(), rows[i].isoString);
        EXPECT_EQ(TString(ours[i].menuLabel).toStdString(), rows[i].menuLabel);
        EXPECT_EQ(TString(ours[i].sortName).toStdString(), rows[i].sortName);
        EXPECT_EQ(TString(ours[i].enabled).toStdString(), "0");
        EXPECT_EQ(TString(ours[i].market).toStdString(), rows[i].market);
    }
}
