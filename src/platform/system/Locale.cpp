#include "platform/system/Locale.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>

#include "platform/system/LetterCase.h"

namespace kestrel::system {
namespace {

struct LocaleId {
    std::string_view name;
    std::uint32_t lcid;
};

constexpr std::uint32_t kEnglishUnitedStates = 1033;

constexpr LocaleId kLocaleIds[] = {
    {"ar_eg", 3073}, {"ar_sa", 1025}, {"bg_bg", 1026}, {"ca_es", 1027}, {"cs_cz", 1029},
    {"da_dk", 1030}, {"de_at", 3079}, {"de_ch", 2055}, {"de_de", 1031}, {"el_gr", 1032},
    {"en_au", 3081}, {"en_ca", 4105}, {"en_gb", 2057}, {"en_ie", 6153}, {"en_in", 16393},
    {"en_nz", 5129}, {"en_us", 1033}, {"es_es", 3082}, {"es_mx", 2058}, {"fi_fi", 1035},
    {"fr_be", 2060}, {"fr_ca", 3084}, {"fr_ch", 4108}, {"fr_fr", 1036}, {"he_il", 1037},
    {"hr_hr", 1050}, {"hu_hu", 1038}, {"id_id", 1057}, {"it_it", 1040}, {"ja_jp", 1041},
    {"ko_kr", 1042}, {"nb_no", 1044}, {"nl_be", 2067}, {"nl_nl", 1043}, {"pl_pl", 1045},
    {"pt_br", 1046}, {"pt_pt", 2070}, {"ro_ro", 1048}, {"ru_ru", 1049}, {"sk_sk", 1051},
    {"sv_se", 1053}, {"th_th", 1054}, {"tr_tr", 1055}, {"uk_ua", 1058}, {"vi_vn", 1066},
    {"zh", 2052},    {"zh_cn", 2052}, {"zh_hk", 3076}, {"zh_mo", 5124}, {"zh_sg", 4100},
    {"zh_tw", 1028},
};

// The language and territory of a locale name, without codeset and modifier.
std::string LanguageAndTerritory(std::string_view name) {
    std::string plain(name.substr(0, name.find_first_of(".@")));
    std::replace(plain.begin(), plain.end(), '-', '_');
    return plain;
}

}  // namespace

std::uint32_t LcidOfLocaleName(std::string_view name) {
    const std::string wanted = LanguageAndTerritory(name);
    const auto* row = std::find_if(std::begin(kLocaleIds), std::end(kLocaleIds),
                                   [&](const LocaleId& id) { return SameName(id.name, wanted); });
    return row == std::end(kLocaleIds) ? kEnglishUnitedStates : row->lcid;
}

std::uint32_t GetSystemDefaultLCID() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* name = std::getenv(variable);
        if (name != nullptr && *name != '\0') return LcidOfLocaleName(name);
    }
    return kEnglishUnitedStates;
}

}  // namespace kestrel::system
