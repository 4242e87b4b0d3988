#include "settings/Settings.h"

#include "platform/system/Profile.h"

namespace kestrel::settings {

namespace {

constexpr std::string_view kLanguageSection = "Settings";
constexpr std::string_view kLanguageKey = "Language";

}  // namespace

std::string Settings::ReadSetting(std::string_view section, std::string_view key,
                                  std::string_view otherwise, const std::string& file) {
    return system::ReadProfileString(files_, section, key, otherwise, FileOr(file));
}

void Settings::WriteSetting(std::string_view section, std::string_view key, std::string_view value,
                            const std::string& file) {
    static_cast<void>(system::WriteProfileString(files_, section, key, value, FileOr(file)));
}

std::string ReadSavedLanguage(Settings& settings) {
    return settings.ReadSetting(kLanguageSection, kLanguageKey, "");
}

void SaveLanguage(Settings& settings, std::string_view code) {
    settings.WriteSetting(kLanguageSection, kLanguageKey, code);
}

}  // namespace kestrel::settings
