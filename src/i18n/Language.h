#pragma once

#include <string_view>

namespace kestrel::i18n {

// The codes of the two languages of the user interface.
inline constexpr std::string_view kChinese = "CHS";
inline constexpr std::string_view kEnglish = "ENG";

// The language in force, one of the two codes; English until SetUiLanguage says otherwise.
std::string_view UiLanguage();
// Any other code changes nothing.
void SetUiLanguage(std::string_view code);

// The language of a system locale, given as the decimal text of its identifier.
std::string_view LanguageOfLocale(std::string_view lcidText);

// A text that the user sees, in both languages.
struct Text {
    std::string_view english;
    std::string_view chinese;

    constexpr std::string_view In(std::string_view code) const {
        return code == kChinese ? chinese : english;
    }
    // In the language in force at this moment.
    std::string_view Now() const { return In(UiLanguage()); }
};

}  // namespace kestrel::i18n
