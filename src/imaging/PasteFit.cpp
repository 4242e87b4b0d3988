#include "imaging/PasteFit.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "platform/gdi/Blit.h"

namespace kestrel::imaging {

namespace {

using gdi::COLORREF;
using gdi::kIconSize;

constexpr unsigned kOpaqueFrom = 128;

unsigned AlphaOf(COLORREF pixel) {
    return pixel >> 24;
}

std::uint8_t OverWhite(std::uint8_t channel, unsigned alpha) {
    constexpr unsigned kFull = 255;
    return static_cast<std::uint8_t>((channel * alpha + kFull * (kFull - alpha) + kFull / 2) /
                                     kFull);
}

COLORREF OverWhite(COLORREF pixel) {
    const unsigned alpha = AlphaOf(pixel);
    return gdi::Rgb(OverWhite(gdi::Red(pixel), alpha), OverWhite(gdi::Green(pixel), alpha),
                    OverWhite(gdi::Blue(pixel), alpha));
}

// Both sides lose a ten-thousandth of what they were at first until the longer one fits. Every step
// is rounded to float.
gdi::Size KeepAspect(gdi::Size picture) {
    constexpr float kSteps = 10000;
    auto width = static_cast<float>(picture.width);
    auto height = static_cast<float>(picture.height);
    const float widthStep = width / kSteps;
    const float heightStep = height / kSteps;
    const float& longer = width < height ? height : width;
    while (longer > kIconSize) {
        width -= widthStep;
        height -= heightStep;
    }
    // Halves go to the even neighbour.
    const auto side = [](float v) { return static_cast<int>(std::lrint(std::max(v, 1.0F))); };
    return {side(width), side(height)};
}

}  // namespace

bool FitsIcon(gdi::Size picture) {
    return picture.width <= kIconSize && picture.height <= kIconSize;
}

gdi::Size FittedSize(gdi::Size picture, PasteFit fit) {
    return fit == PasteFit::Shrink ? gdi::Size{kIconSize, kIconSize} : KeepAspect(picture);
}

gdi::IconPlanes PlanesOf(const gdi::Surface& picture, gdi::Size size, PasteMode mode) {
    gdi::IconPlanes planes(size.width, size.height);
    gdi::Surface scaled = planes.image;
    gdi::StretchBlt(scaled, scaled.Bounds(), picture, picture.Bounds(), gdi::RasterOp::Copy);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const COLORREF pixel = scaled.GetPixel(x, y);
            const COLORREF color =
                mode == PasteMode::Opaque ? OverWhite(pixel) : pixel & gdi::kWhite;
            const bool seeThrough = AlphaOf(pixel) < kOpaqueFrom || color == gdi::kWhite;
            if (mode == PasteMode::Transparent && seeThrough) continue;
            planes.SetOpaque(x, y, color);
        }
    }
    return planes;
}

}  // namespace kestrel::imaging
