#include "imaging/ColorAdjustment.h"

#include <utility>

#include "imaging/filters/Levels.h"

namespace kestrel::imaging {

namespace {

using filters::Level;
using gdi::kIconSize;

// In every channel of a transparent pixel: no colour has it.
constexpr int kTransparent = 1000;

AdjustedColor RecordOf(gdi::COLORREF color) {
    return {gdi::Red(color), gdi::Green(color), gdi::Blue(color)};
}

gdi::COLORREF ColorOf(const AdjustedColor& record) {
    return gdi::Rgb(Level(record.red), Level(record.green), Level(record.blue));
}

// The channels that a bar shifts.
std::array<bool, 3> GovernedBy(AdjustmentBar bar) {
    const bool all = bar == AdjustmentBar::Brightness;
    return {all || bar == AdjustmentBar::Red, all || bar == AdjustmentBar::Green,
            all || bar == AdjustmentBar::Blue};
}

}  // namespace

ColorAdjustment::ColorAdjustment(const gdi::IconPlanes& icon) {
    auto* record = AdjInitial.begin();
    for (int y = 0; y < kIconSize; ++y) {
        for (int x = 0; x < kIconSize; ++x) {
            const bool opaque = icon.mask.GetPixel(x, y) == gdi::kBlack;
            *record++ = opaque ? RecordOf(icon.image.GetPixel(x, y))
                               : AdjustedColor{kTransparent, kTransparent, kTransparent};
        }
    }
    Reset();
}

void ColorAdjustment::Change(AdjustmentBar bar, int value) {
    const int before = std::exchange(previous_[static_cast<std::size_t>(bar)], value);
    if (value != before) Step(bar, value > before ? kAdjustmentStep : -kAdjustmentStep);
}

void ColorAdjustment::Step(AdjustmentBar bar, int step) {
    const auto governed = GovernedBy(bar);
    constexpr std::array kChannels{&AdjustedColor::red, &AdjustedColor::green,
                                   &AdjustedColor::blue};
    for (std::size_t i = 0; i < AdjShown.size(); ++i) {
        if (AdjShown[i].red == kTransparent) continue;
        for (std::size_t k = 0; k < kChannels.size(); ++k) {
            if (!governed[k]) continue;
            int& working = AdjWorking[i].*kChannels[k];
            working += step;
            if (working == Level(working)) AdjShown[i].*kChannels[k] = working;
        }
    }
}

void ColorAdjustment::Reset() {
    AdjWorking = AdjInitial;
    AdjShown = AdjInitial;
    previous_ = {};
}

void ColorAdjustment::Draw(gdi::Surface& picture) const {
    const auto* record = AdjShown.begin();
    for (int y = 0; y < kIconSize; ++y) {
        for (int x = 0; x < kIconSize; ++x, ++record) {
            if (record->red != kTransparent) picture.SetPixel(x, y, ColorOf(*record));
        }
    }
}

}  // namespace kestrel::imaging
