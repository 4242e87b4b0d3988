#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::imaging {

inline constexpr int kDegreesPerStep = 45;
inline constexpr int kDirections = 8;

// A gradient over 32 x 32 pixels from one colour towards another. The colour goes 32 steps along
// the sides and 64 along the diagonals; the last one, the end colour, is never reached.
struct Shades {
    gdi::COLORREF start = gdi::kBlack;
    gdi::COLORREF end = gdi::kWhite;
    // Where the start colour is: 0 and 360 the left side, 45 the top left corner, and so on
    // clockwise. A multiple of 45.
    int degrees = 0;

    // The colour after `i` steps.
    gdi::COLORREF ShadeColor(int i) const;
};

gdi::Surface DrawShade(const Shades& shades);

}  // namespace kestrel::imaging
