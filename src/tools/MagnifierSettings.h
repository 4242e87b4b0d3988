#pragma once

#include <string>
#include <string_view>

#include "settings/Settings.h"

namespace kestrel::tools {

// What the user chose in the magnifier, kept from one time to the next.
struct MagnifierSettings {
    // In percent.
    static constexpr int kLeastZoom = 25;
    static constexpr int kMostZoom = 1000;
    static constexpr int kUsualZoom = 200;

    int zoom = kUsualZoom;
    bool grid = false;
    bool onTop = false;
};

MagnifierSettings ReadMagnifierSettings(settings::Settings& settings);
void SaveMagnifierSettings(settings::Settings& settings, const MagnifierSettings& chosen);

// The zoom that a user typed, as far as it goes; an empty text counts as 0.
int TypedZoom(std::string_view text);

// As it is shown beside the scroll bar, and in the main window's status bar.
std::string PercentText(int zoom);
std::string RatioText(int zoom);
// The ratio of the editing grid, which stands there while no magnifier is seen.
inline constexpr std::string_view kGridRatio = "10:1";

}  // namespace kestrel::tools
