#include "tools/MagnifierSettings.h"

#include <algorithm>

#include "platform/system/Characters.h"
#include "platform/system/LeadingNumber.h"
#include "platform/system/LetterCase.h"

namespace kestrel::tools {

namespace {

constexpr std::string_view kSection = "Settings";

int WithinBounds(int zoom) {
    return std::clamp(zoom, MagnifierSettings::kLeastZoom, MagnifierSettings::kMostZoom);
}

bool ReadSwitch(settings::Settings& settings, std::string_view key) {
    return system::SameName(settings.ReadSetting(kSection, key, ""), "true");
}

void SaveSwitch(settings::Settings& settings, std::string_view key, bool on) {
    settings.WriteSetting(kSection, key, on ? "True" : "False");
}

}  // namespace

MagnifierSettings ReadMagnifierSettings(settings::Settings& settings) {
    const std::string zoom = settings.ReadSetting(kSection, "Zoom", "");
    MagnifierSettings chosen;
    chosen.zoom = WithinBounds(
        system::LeadingNumber(system::Trimmed(zoom)).value_or(MagnifierSettings::kUsualZoom));
    chosen.grid = ReadSwitch(settings, "Grid");
    chosen.onTop = ReadSwitch(settings, "OnTop");
    return chosen;
}

void SaveMagnifierSettings(settings::Settings& settings, const MagnifierSettings& chosen) {
    settings.WriteSetting(kSection, "Zoom", std::to_string(chosen.zoom));
    SaveSwitch(settings, "Grid", chosen.grid);
    SaveSwitch(settings, "OnTop", chosen.onTop);
}

int TypedZoom(std::string_view text) {
    return WithinBounds(system::LeadingNumber(text).value_or(0));
}

std::string PercentText(int zoom) {
    return std::to_string(zoom) + "%";
}

std::string RatioText(int zoom) {
    return std::to_string(zoom) + ":1";
}

}  // namespace kestrel::tools
