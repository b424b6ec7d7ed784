#include "main/core/LanguageTables.h"

namespace LanguageUtils::detail {

namespace {

constexpr DesktopLanguage desktopLanguages[] = {
    {u"de_DE", u"&Deutsch", u"Deutsch", u"0", u"EU"},
    {u"en_US", u"&English (United States)", u"English US", u"0", u"US"},
    {u"en_GB", u"E&nglish (United Kingdom)", u"English UK", u"0", u"EU"},
    {u"fr_FR", u"&Fran\u00E7ais (France)", u"Fran\u00E7ais (France)", u"0", u"EU"},
    {u"pt_BR", u"&Portugu\u00EAs", u"Portugu\u00EAs Brasil", u"0", u"LATAM"},
    {u"es_ES", u"E&spa\u00F1ol", u"Espa\u00F1ol", u"0", u"LATAM"},
    {u"it_IT", u"&Italiano", u"Italiano", u"0", u"EU"},
    {u"ja_JP", u"\u65E5\u672C\u8A9E(&J)", u"z1-Japanese", u"0", u"Japan"},
    {u"ko_KR", u"\uD55C\uAD6D\uC5B4(&K)", u"z4-Korean", u"0", u"APAC"},
    {u"zh_CN", u"\u7B80\u4F53\u4E2D\u6587(&C)", u"z2-Chinese Simplified", u"0", u"China"},
    {u"zh_TW", u"\u7E41\u9AD4\u4E2D\u6587(&T)", u"z3-Chinese Traditional", u"0", u"APAC"},
    {u"ga_IE", u"Ps\u00E8\u00FAd&o", u"z4-Pseudo", u"0", u"US"},
    {u"ar_YE", u"BiDi Ps\u00E8\u00FAd&o", u"z5-BiDi Pseudo", u"0", u"US"},
    {u"fr_CA", u"F&ran\u00E7ais (Canada)", u"Fran\u00E7ais (Canada)", u"0", u"USCA"},
};

constexpr CodeRow supportedCodes[] = {
    {u"de", u"de_DE-EU"},
    {u"de_DE", u"de_DE-EU"},
    {u"de_DE-EU", u"de_DE-EU"},
    {u"en", u"en_US-US"},
    {u"en_US", u"en_US-US"},
    {u"en_US-US", u"en_US-US"},
    {u"en_GB", u"en_GB-EU"},
    {u"en_GB-EU", u"en_GB-EU"},
    {u"en_US-EU", u"en_GB-EU"},
    {u"en_US-APAC", u"en_US-APAC"},
    {u"es", u"es_ES-LATAM"},
    {u"es_ES", u"es_ES-LATAM"},
    {u"es_ES-LATAM", u"es_ES-LATAM"},
    {u"fr", u"fr_FR-EU"},
    {u"fr_FR", u"fr_FR-EU"},
    {u"fr_FR-EU", u"fr_FR-EU"},
    {u"fr_CA", u"fr_CA-USCA"},
    {u"fr_CA-USCA", u"fr_CA-USCA"},
    {u"it", u"it_IT-EU"},
    {u"it_IT", u"it_IT-EU"},
    {u"it_IT-EU", u"it_IT-EU"},
    {u"ja", u"ja_JP-Japan"},
    {u"ja_JP", u"ja_JP-Japan"},
    {u"ja_JP-Japan", u"ja_JP-Japan"},
    {u"ko", u"ko_KR-APAC"},
    {u"ko_KR", u"ko_KR-APAC"},
    {u"ko_KR-APAC", u"ko_KR-APAC"},
    {u"pt", u"pt_BR-LATAM"},
    {u"pt_BR", u"pt_BR-LATAM"},
    {u"pt_BR-LATAM", u"pt_BR-LATAM"},
    {u"zh", u"zh_CN-China"},
    {u"zh_CN", u"zh_CN-China"},
    {u"zh_CN-China", u"zh_CN-China"},
    {u"zh_TW", u"zh_TW-APAC"},
    {u"zh_TW-APAC", u"zh_TW-APAC"},
};

// "zn_CN-China" is no supported code, so that mn_MN goes by its language.
constexpr CodeRow specialLocales[] = {
    {u"Cy_az_AZ", u"en_GB-EU"},  {u"Cy_sr_SP", u"en_GB-EU"}, {u"Cy_uz_UZ", u"en_GB-EU"}, {u"Lt_az_AZ", u"en_GB-EU"},
    {u"Lt_sr_SP", u"en_GB-EU"},  {u"Lt_uz_UZ", u"en_GB-EU"}, {u"af_ZA", u"en_GB-EU"},    {u"ar_AE", u"en_GB-EU"},
    {u"ar_BH", u"en_GB-EU"},     {u"ar_DZ", u"en_GB-EU"},    {u"ar_EG", u"en_GB-EU"},    {u"ar_IQ", u"en_GB-EU"},
    {u"ar_JO", u"en_GB-EU"},     {u"ar_KW", u"en_GB-EU"},    {u"ar_LB", u"en_GB-EU"},    {u"ar_LY", u"en_GB-EU"},
    {u"ar_MA", u"en_GB-EU"},     {u"ar_OM", u"en_GB-EU"},    {u"ar_QA", u"en_GB-EU"},    {u"ar_SA", u"en_GB-EU"},
    {u"ar_SY", u"en_GB-EU"},     {u"ar_TN", u"en_GB-EU"},    {u"ar_YE", u"en_GB-EU"},    {u"be_BY", u"en_GB-EU"},
    {u"bg_BG", u"en_GB-EU"},     {u"cs_CZ", u"en_GB-EU"},    {u"da_DK", u"en_GB-EU"},    {u"el_GR", u"en_GB-EU"},
    {u"en_IE", u"en_GB-EU"},     {u"en_ZA", u"en_GB-EU"},    {u"en_ZW", u"en_GB-EU"},    {u"et_EE", u"en_GB-EU"},
    {u"fi_FI", u"en_GB-EU"},     {u"fo_FO", u"en_GB-EU"},    {u"he_IL", u"en_GB-EU"},    {u"hr_HR", u"en_GB-EU"},
    {u"hu_HU", u"en_GB-EU"},     {u"hy_AM", u"en_GB-EU"},    {u"is_IS", u"en_GB-EU"},    {u"ka_GE", u"en_GB-EU"},
    {u"ky_KZ", u"en_GB-EU"},     {u"lt_LT", u"en_GB-EU"},    {u"lv_LV", u"en_GB-EU"},    {u"mk_MK", u"en_GB-EU"},
    {u"nb_NO", u"en_GB-EU"},     {u"nl_BE", u"en_GB-EU"},    {u"nl_NL", u"en_GB-EU"},    {u"nn_NO", u"en_GB-EU"},
    {u"pl_PL", u"en_GB-EU"},     {u"ro_RO", u"en_GB-EU"},    {u"ru_RU", u"en_GB-EU"},    {u"sk_SK", u"en_GB-EU"},
    {u"sl_SI", u"en_GB-EU"},     {u"sq_AL", u"en_GB-EU"},    {u"sv_FI", u"en_GB-EU"},    {u"sv_SE", u"en_GB-EU"},
    {u"sw_KE", u"en_GB-EU"},     {u"syr_SY", u"en_GB-EU"},   {u"tr_TR", u"en_GB-EU"},    {u"tt_RU", u"en_GB-EU"},
    {u"uk_UA", u"en_GB-EU"},     {u"ca_ES", u"es_ES-LATAM"}, {u"es_AR", u"es_ES-LATAM"}, {u"es_BO", u"es_ES-LATAM"},
    {u"es_CL", u"es_ES-LATAM"},  {u"es_CO", u"es_ES-LATAM"}, {u"es_CR", u"es_ES-LATAM"}, {u"es_DO", u"es_ES-LATAM"},
    {u"es_EC", u"es_ES-LATAM"},  {u"es_GT", u"es_ES-LATAM"}, {u"es_HN", u"es_ES-LATAM"}, {u"es_MX", u"es_ES-LATAM"},
    {u"es_NI", u"es_ES-LATAM"},  {u"es_PA", u"es_ES-LATAM"}, {u"es_PE", u"es_ES-LATAM"}, {u"es_PR", u"es_ES-LATAM"},
    {u"es_PY", u"es_ES-LATAM"},  {u"es_SV", u"es_ES-LATAM"}, {u"es_UY", u"es_ES-LATAM"}, {u"es_VE", u"es_ES-LATAM"},
    {u"eu_ES", u"es_ES-LATAM"},  {u"gl_ES", u"es_ES-LATAM"}, {u"de_AT", u"de_DE-EU"},    {u"de_CH", u"de_DE-EU"},
    {u"de_LI", u"de_DE-EU"},     {u"de_LU", u"de_DE-EU"},    {u"div_MV", u"en_US-APAC"}, {u"en_AU", u"en_US-APAC"},
    {u"en_NZ", u"en_US-APAC"},   {u"en_PH", u"en_US-APAC"},  {u"fa_IR", u"en_US-APAC"},  {u"gu_IN", u"en_US-APAC"},
    {u"hi_IN", u"en_US-APAC"},   {u"id_ID", u"en_US-APAC"},  {u"kk_KZ", u"en_US-APAC"},  {u"kn_IN", u"en_US-APAC"},
    {u"kok_IN", u"en_US-APAC"},  {u"mr_IN", u"en_US-APAC"},  {u"ms_BN", u"en_US-APAC"},  {u"ms_MY", u"en_US-APAC"},
    {u"pa_IN", u"en_US-APAC"},   {u"sa_IN", u"en_US-APAC"},  {u"ta_IN", u"en_US-APAC"},  {u"te_IN", u"en_US-APAC"},
    {u"th_TH", u"en_US-APAC"},   {u"ur_PK", u"en_US-APAC"},  {u"vi_VN", u"en_US-APAC"},  {u"en_BZ", u"en_US-US"},
    {u"en_CA", u"en_US-US"},     {u"en_CB", u"en_US-US"},    {u"en_JM", u"en_US-US"},    {u"en_TT", u"en_US-US"},
    {u"fr_BE", u"fr_FR-EU"},     {u"fr_CH", u"fr_FR-EU"},    {u"fr_LU", u"fr_FR-EU"},    {u"fr_MA", u"fr_FR-EU"},
    {u"fr_MC", u"fr_FR-EU"},     {u"it_CH", u"it_IT-EU"},    {u"mn_MN", u"zn_CN-China"}, {u"pt_PT", u"pt_BR-LATAM"},
    {u"zh_CHS", u"zh_CN-China"}, {u"zh_SG", u"zh_CN-China"}, {u"zh_CHT", u"zh_TW-APAC"}, {u"zh_HK", u"zh_TW-APAC"},
    {u"zh_MO", u"zh_TW-APAC"},
};

constexpr ScriptRow scripts[] = {
    {u"zh_CN", ScriptSimplified},      {u"zh_Hans_CN", ScriptSimplified},  {u"zh_SG", ScriptSimplified},
    {u"zh_Hans_SG", ScriptSimplified}, {u"zh_TW", ScriptTraditional},      {u"zh_Hant_TW", ScriptTraditional},
    {u"zh_HK", ScriptTraditional},     {u"zh_Hans_HK", ScriptTraditional}, {u"zh_Hant_HK", ScriptTraditional},
    {u"zh_MO", ScriptTraditional},     {u"zh_Hans_MO", ScriptTraditional}, {u"zh_Hant_MO", ScriptTraditional},
};

constexpr MapRow mapCodes[] = {
    {u"zh_SG", MapCodeUS},      {u"zh_TW", MapCodeUS},      {u"en_US", MapCodeUS},      {u"zh_CN", MapCodeCN},
    {u"zh_Hans_CN", MapCodeCN}, {u"zh_HK", MapCodeCN},      {u"zh_Hant_HK", MapCodeCN}, {u"zh_MO", MapCodeCN},
    {u"zh_Hant_MO", MapCodeCN}, {u"bo_CN", MapCodeCN},      {u"ii_CN", MapCodeCN},      {u"mn_Mong_CN", MapCodeCN},
    {u"ug_CN", MapCodeCN},      {u"zh_Hans_HK", MapCodeCN}, {u"zh_Hans_MO", MapCodeCN}, {u"en_HK", MapCodeCN},
    {u"en_IN", MapCodeIN},      {u"as_IN", MapCodeIN},      {u"bn_IN", MapCodeIN},      {u"brx_IN", MapCodeIN},
    {u"gu_IN", MapCodeIN},      {u"hi_IN", MapCodeIN},      {u"kn_IN", MapCodeIN},      {u"kok_IN", MapCodeIN},
    {u"ml_IN", MapCodeIN},      {u"mr_IN", MapCodeIN},      {u"ne_IN", MapCodeIN},      {u"or_IN", MapCodeIN},
    {u"pa_IN", MapCodeIN},      {u"pa_Guru_IN", MapCodeIN}, {u"sa_IN", MapCodeIN},      {u"ta_IN", MapCodeIN},
    {u"te_IN", MapCodeIN},      {u"bo_IN", MapCodeIN},      {u"ur_IN", MapCodeIN},
};

}  // namespace

std::span<DesktopLanguage const> DesktopLanguages() noexcept
{
    return desktopLanguages;
}

std::span<CodeRow const> SupportedCodes() noexcept
{
    return supportedCodes;
}

std::span<CodeRow const> SpecialLocales() noexcept
{
    return specialLocales;
}

std::span<ScriptRow const> Scripts() noexcept
{
    return scripts;
}

std::span<MapRow const> MapCodes() noexcept
{
    return mapCodes;
}

}  // namespace LanguageUtils::detail
