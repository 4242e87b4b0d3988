#pragma once

#include <array>
#include <cstddef>

#include "platform/gdi/IconPlanes.h"

namespace kestrel::imaging {

// The scroll bars of the colour adjustment.
enum class AdjustmentBar { Brightness, Red, Green, Blue };
inline constexpr int kAdjustmentBars = 4;
// How many levels a step of a bar shifts a channel.
inline constexpr int kAdjustmentStep = 5;

// A colour in the making: channels may lie outside 0..255.
struct AdjustedColor {
    int red = 0;
    int green = 0;
    int blue = 0;
};

// The colours of an icon while its brightness and its three channels are shifted. Values that are
// pushed beyond 0..255 are remembered, so that moving back restores them exactly. Transparent
// pixels take no part.
class ColorAdjustment {
  public:
    // Every bar stands at 0.
    explicit ColorAdjustment(const gdi::IconPlanes& icon);

    // A bar has come to `value`. However far it went, that is one step up or down; where it was
    // already, nothing.
    void Change(AdjustmentBar bar, int value);
    // The colours as they were at first, and every bar at 0.
    void Reset();

    // Gives each opaque pixel of a 32 x 32 picture the colour that it has now.
    void Draw(gdi::Surface& picture) const;

  private:
    using Records = std::array<AdjustedColor, std::size_t{gdi::kIconSize} * gdi::kIconSize>;

    void Step(AdjustmentBar bar, int step);

    // As at first; the running values; and of each channel the last value within 0..255.
    Records AdjInitial;
    Records AdjWorking;
    Records AdjShown;
    // Where each bar was last.
    std::array<int, kAdjustmentBars> previous_{};
};

}  // namespace kestrel::imaging
