// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/locales.h"

#include <array>

#include "basis/system/process.h"

namespace varnholt {
namespace {

// A language's first row serves its regions that have no row. European desktops in English, which
// have no number of their own, take the British one for its metric units.
// clang-format off
constexpr std::array<Locale, 249> table{{
    {"en_US", 0x409, false}, {"en_GB", 0x809, true}, {"en_AU", 0xC09, true},
    {"en_CA", 0x1009, true}, {"en_NZ", 0x1409, true}, {"en_IE", 0x1809, true},
    {"en_ZA", 0x1C09, true}, {"en_JM", 0x2009, true}, {"en_029", 0x2409, true},
    {"en_BZ", 0x2809, true}, {"en_TT", 0x2C09, true}, {"en_ZW", 0x3009, true},
    {"en_PH", 0x3409, true}, {"en_HK", 0x3C09, true}, {"en_IN", 0x4009, true},
    {"en_MY", 0x4409, true}, {"en_SG", 0x4809, true}, {"en_AG", 0x809, true},
    {"en_BE", 0x809, true}, {"en_BW", 0x809, true}, {"en_CH", 0x809, true}, {"en_CY", 0x809, true},
    {"en_DE", 0x809, true}, {"en_DK", 0x809, true}, {"en_FI", 0x809, true}, {"en_IL", 0x809, true},
    {"en_MT", 0x809, true}, {"en_NG", 0x809, true}, {"en_NL", 0x809, true}, {"en_SC", 0x809, true},
    {"en_SE", 0x809, true}, {"en_ZM", 0x809, true}, {"af_ZA", 0x436, true}, {"am_ET", 0x45E, true},
    {"ar_SA", 0x401, true}, {"ar_IQ", 0x801, true}, {"ar_EG", 0xC01, true}, {"ar_LY", 0x1001, true},
    {"ar_DZ", 0x1401, true}, {"ar_MA", 0x1801, true}, {"ar_TN", 0x1C01, true},
    {"ar_OM", 0x2001, true}, {"ar_YE", 0x2401, true}, {"ar_SY", 0x2801, true},
    {"ar_JO", 0x2C01, true}, {"ar_LB", 0x3001, true}, {"ar_KW", 0x3401, true},
    {"ar_AE", 0x3801, true}, {"ar_BH", 0x3C01, true}, {"ar_QA", 0x4001, true},
    {"as_IN", 0x44D, true}, {"az_AZ", 0x42C, true}, {"ba_RU", 0x46D, true}, {"be_BY", 0x423, true},
    {"bg_BG", 0x402, true}, {"bn_IN", 0x445, true}, {"bn_BD", 0x845, true}, {"bo_CN", 0x451, true},
    {"br_FR", 0x47E, true}, {"bs_BA", 0x141A, true}, {"ca_ES", 0x403, true},
    {"chr_US", 0x45C, false}, {"ckb_IQ", 0x492, true}, {"co_FR", 0x483, true},
    {"cs_CZ", 0x405, true}, {"cy_GB", 0x452, true}, {"da_DK", 0x406, true}, {"de_DE", 0x407, true},
    {"de_CH", 0x807, true}, {"de_AT", 0xC07, true}, {"de_LU", 0x1007, true},
    {"de_LI", 0x1407, true}, {"dsb_DE", 0x82E, true}, {"dv_MV", 0x465, true},
    {"el_GR", 0x408, true}, {"el_CY", 0x408, true}, {"es_ES", 0xC0A, true}, {"es_MX", 0x80A, true},
    {"es_GT", 0x100A, true}, {"es_CR", 0x140A, true}, {"es_PA", 0x180A, true},
    {"es_DO", 0x1C0A, true}, {"es_VE", 0x200A, true}, {"es_CO", 0x240A, true},
    {"es_PE", 0x280A, true}, {"es_AR", 0x2C0A, true}, {"es_EC", 0x300A, true},
    {"es_CL", 0x340A, true}, {"es_UY", 0x380A, true}, {"es_PY", 0x3C0A, true},
    {"es_BO", 0x400A, true}, {"es_SV", 0x440A, true}, {"es_HN", 0x480A, true},
    {"es_NI", 0x4C0A, true}, {"es_PR", 0x500A, false}, {"es_US", 0x540A, false},
    {"es_CU", 0x5C0A, true}, {"et_EE", 0x425, true}, {"eu_ES", 0x42D, true}, {"fa_IR", 0x429, true},
    {"ff_SN", 0x867, true}, {"fi_FI", 0x40B, true}, {"fil_PH", 0x464, true}, {"fo_FO", 0x438, true},
    {"fr_FR", 0x40C, true}, {"fr_BE", 0x80C, true}, {"fr_CA", 0xC0C, true}, {"fr_CH", 0x100C, true},
    {"fr_LU", 0x140C, true}, {"fr_MC", 0x180C, true}, {"fr_RE", 0x200C, true},
    {"fr_CD", 0x240C, true}, {"fr_SN", 0x280C, true}, {"fr_CM", 0x2C0C, true},
    {"fr_CI", 0x300C, true}, {"fr_ML", 0x340C, true}, {"fr_MA", 0x380C, true},
    {"fr_HT", 0x3C0C, true}, {"fy_NL", 0x462, true}, {"ga_IE", 0x83C, true}, {"gd_GB", 0x491, true},
    {"gl_ES", 0x456, true}, {"gsw_FR", 0x484, true}, {"gu_IN", 0x447, true}, {"ha_NG", 0x468, true},
    {"haw_US", 0x475, false}, {"he_IL", 0x40D, true}, {"hi_IN", 0x439, true},
    {"hr_HR", 0x41A, true}, {"hr_BA", 0x101A, true}, {"hsb_DE", 0x42E, true},
    {"hu_HU", 0x40E, true}, {"hy_AM", 0x42B, true}, {"id_ID", 0x421, true}, {"ig_NG", 0x470, true},
    {"ii_CN", 0x478, true}, {"is_IS", 0x40F, true}, {"it_IT", 0x410, true}, {"it_CH", 0x810, true},
    {"iu_CA", 0x45D, true}, {"ja_JP", 0x411, true}, {"ka_GE", 0x437, true}, {"kk_KZ", 0x43F, true},
    {"kl_GL", 0x46F, true}, {"km_KH", 0x453, true}, {"kn_IN", 0x44B, true}, {"ko_KR", 0x412, true},
    {"kok_IN", 0x457, true}, {"ky_KG", 0x440, true}, {"lb_LU", 0x46E, true}, {"lo_LA", 0x454, true},
    {"lt_LT", 0x427, true}, {"lv_LV", 0x426, true}, {"mi_NZ", 0x481, true}, {"mk_MK", 0x42F, true},
    {"ml_IN", 0x44C, true}, {"mn_MN", 0x450, true}, {"mn_CN", 0x850, true}, {"mni_IN", 0x458, true},
    {"moh_CA", 0x47C, true}, {"mr_IN", 0x44E, true}, {"ms_MY", 0x43E, true}, {"ms_BN", 0x83E, true},
    {"mt_MT", 0x43A, true}, {"my_MM", 0x455, true}, {"nb_NO", 0x414, true}, {"nn_NO", 0x814, true},
    {"no_NO", 0x414, true}, {"ne_NP", 0x461, true}, {"ne_IN", 0x861, true}, {"nl_NL", 0x413, true},
    {"nl_BE", 0x813, true}, {"nso_ZA", 0x46C, true}, {"oc_FR", 0x482, true}, {"om_ET", 0x472, true},
    {"or_IN", 0x448, true}, {"pa_IN", 0x446, true}, {"pa_PK", 0x846, true}, {"pl_PL", 0x415, true},
    {"prs_AF", 0x48C, true}, {"ps_AF", 0x463, true}, {"pt_BR", 0x416, true}, {"pt_PT", 0x816, true},
    {"quc_GT", 0x486, true}, {"quz_BO", 0x46B, true}, {"quz_EC", 0x86B, true},
    {"quz_PE", 0xC6B, true}, {"rm_CH", 0x417, true}, {"ro_RO", 0x418, true}, {"ro_MD", 0x818, true},
    {"ru_RU", 0x419, true}, {"ru_MD", 0x819, true}, {"ru_UA", 0x419, true}, {"rw_RW", 0x487, true},
    {"sa_IN", 0x44F, true}, {"sah_RU", 0x485, true}, {"sd_PK", 0x859, true}, {"se_NO", 0x43B, true},
    {"se_SE", 0x83B, true}, {"se_FI", 0xC3B, true}, {"si_LK", 0x45B, true}, {"sk_SK", 0x41B, true},
    {"sl_SI", 0x424, true}, {"sma_NO", 0x183B, true}, {"sma_SE", 0x1C3B, true},
    {"smj_NO", 0x103B, true}, {"smj_SE", 0x143B, true}, {"smn_FI", 0x243B, true},
    {"sms_FI", 0x203B, true}, {"so_SO", 0x477, true}, {"sq_AL", 0x41C, true},
    {"sr_RS", 0x281A, true}, {"sr_BA", 0x1C1A, true}, {"sr_ME", 0x301A, true},
    {"st_ZA", 0x430, true}, {"sv_SE", 0x41D, true}, {"sv_FI", 0x81D, true}, {"sw_KE", 0x441, true},
    {"syr_SY", 0x45A, true}, {"ta_IN", 0x449, true}, {"ta_LK", 0x849, true}, {"te_IN", 0x44A, true},
    {"tg_TJ", 0x428, true}, {"th_TH", 0x41E, true}, {"ti_ET", 0x473, true}, {"ti_ER", 0x873, true},
    {"tk_TM", 0x442, true}, {"tn_ZA", 0x432, true}, {"tn_BW", 0x832, true}, {"tr_TR", 0x41F, true},
    {"ts_ZA", 0x431, true}, {"tt_RU", 0x444, true}, {"tzm_DZ", 0x85F, true}, {"ug_CN", 0x480, true},
    {"uk_UA", 0x422, true}, {"ur_PK", 0x420, true}, {"ur_IN", 0x820, true}, {"uz_UZ", 0x443, true},
    {"ve_ZA", 0x433, true}, {"vi_VN", 0x42A, true}, {"wo_SN", 0x488, true}, {"xh_ZA", 0x434, true},
    {"yo_NG", 0x46A, true}, {"zh_CN", 0x804, true}, {"zh_TW", 0x404, true}, {"zh_HK", 0xC04, true},
    {"zh_SG", 0x1004, true}, {"zh_MO", 0x1404, true}, {"zu_ZA", 0x435, true},
}};
// clang-format on

/// "de_AT" of "de-AT.UTF-8@euro".
std::string bareName(std::string_view name) {
    std::string bare(name.substr(0, name.find_first_of(".@")));
    for (char& c : bare)
        if (c == '-') c = '_';
    return bare;
}

std::string_view languageOf(std::string_view name) { return name.substr(0, name.find('_')); }

}  // namespace

std::span<const Locale> locales() { return table; }

unsigned localeNumber(std::string_view name) {
    const std::string bare = bareName(name);
    for (const Locale& locale : table)
        if (bare == locale.name) return locale.number;
    for (const Locale& locale : table)
        if (languageOf(bare) == languageOf(locale.name)) return locale.number;
    return defaultLocale;
}

unsigned platformLocale() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const std::string name = environmentVariable(variable).value_or("");
        if (!name.empty()) return localeNumber(name);
    }
    return defaultLocale;
}

}  // namespace varnholt
