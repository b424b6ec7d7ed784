// Collations and locales that the collation tests run over.
#pragma once

#include <iterator>

// Names of every kind: binary, root, strengths, shifted, word sort, ignored digits, tailored languages.
inline constexpr char16_t const * lawCollations[] = {u"binary",     u"LROOT",      u"LEN_RUS",    u"LEN_RUS_S1",
                                                     u"LEN_RUS_S2", u"AS_LEN_RUS", u"LEN_RUS_WO", u"LEN_RUS_XO",
                                                     u"LSV_RSE",    u"LTH"};

inline constexpr char const * sampleLocales[] = {
    "af_ZA", "am_ET", "ar_EG",  "ar_SA", "az_AZ", "be_BY", "bg_BG", "bn_IN", "bs_BA", "ca_ES", "cs_CZ", "cy_GB",
    "da_DK", "de_AT", "de_DE",  "el_GR", "en_AU", "en_GB", "en_US", "eo",    "es_ES", "es_MX", "et_EE", "eu_ES",
    "fa_IR", "fi_FI", "fil_PH", "fo_FO", "fr_CA", "fr_FR", "ga_IE", "gl_ES", "gu_IN", "he_IL", "hi_IN", "hr_HR",
    "hu_HU", "hy_AM", "id_ID",  "is_IS", "it_IT", "ja_JP", "ka_GE", "kk_KZ", "km_KH", "kn_IN", "ko_KR", "ky_KG",
    "lo_LA", "lt_LT", "lv_LV",  "mk_MK", "ml_IN", "mn_MN", "mr_IN", "ms_MY", "mt_MT", "my_MM", "nb_NO", "ne_NP",
    "nl_NL", "pa_IN", "pl_PL",  "pt_BR", "pt_PT", "ro_RO", "ru_RU", "si_LK", "sk_SK", "sl_SI", "sq_AL", "sr_RS",
    "sv_SE", "ta_IN", "te_IN",  "th_TH", "tr_TR", "uk_UA", "ur_PK", "uz_UZ", "vi_VN", "zh_CN", "zh_TW", "zu_ZA"};
static_assert(std::size(sampleLocales) >= 60);
