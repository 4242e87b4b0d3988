#include "i18n/Language.h"

namespace kestrel::i18n {

namespace {

std::string_view uiLanguage = kEnglish;

}  // namespace

std::string_view UiLanguage() {
    return uiLanguage;
}

void SetUiLanguage(std::string_view code) {
    for (const std::string_view known : {kChinese, kEnglish}) {
        if (code == known) uiLanguage = known;
    }
}

std::string_view LanguageOfLocale(std::string_view lcidText) {
    constexpr std::string_view kChineseInChina = "2052";
    return lcidText == kChineseInChina ? kChinese : kEnglish;
}

}  // namespace kestrel::i18n
