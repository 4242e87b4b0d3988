#include "imaging/Recoloring.h"

#include <algorithm>
#include <utility>

#include "imaging/OpaquePixels.h"
#include "imaging/filters/Levels.h"

namespace kestrel::imaging {

namespace {

using gdi::kIconSize;

// The ring that lies `d` pixels inside the icon's edge.
void DarkenRing(gdi::Surface& image, const gdi::Surface& mask, int d, int darkening) {
    const auto darken = [&](int x, int y) {
        if (mask.GetPixel(x, y) != gdi::kBlack) return;
        image.SetPixel(x, y, DisplayResults(image.GetPixel(x, y), darkening));
    };
    const int far = kIconSize - 1 - d;
    for (int x = d; x <= far; ++x) {
        darken(x, d);
        darken(x, far);
    }
    for (int y = d + 1; y < far; ++y) {
        darken(d, y);
        darken(far, y);
    }
}

}  // namespace

void Grayscale(gdi::IconPlanes& planes) {
    ChangeOpaquePixels(planes, [](int, int, gdi::COLORREF color) {
        const int sum = 222 * gdi::Red(color) + 707 * gdi::Green(color) + 71 * gdi::Blue(color);
        const std::uint8_t grey = filters::Level(filters::Round(sum / 1000.0));
        return gdi::Rgb(grey, grey, grey);
    });
}

void Invert(gdi::IconPlanes& planes) {
    ChangeOpaquePixels(planes, [](int, int, gdi::COLORREF color) { return color ^ gdi::kWhite; });
}

void Buttonize(gdi::IconPlanes& icon, services::MessageLoop& loop) {
    constexpr int kInnermost = 3;
    // What runs in the meantime sees the icon before the command, not a part of it.
    gdi::Surface image = icon.image;
    int darkening = 8;
    for (int d = kInnermost; d >= 0; --d) {
        loop.DoEvents();
        DarkenRing(image, icon.mask, d, darkening);
        darkening *= 2;
    }
    icon.image = std::move(image);
}

gdi::COLORREF DisplayResults(gdi::COLORREF color, int darkening) {
    const auto darker = [darkening](int channel) { return filters::Level(channel - darkening); };
    return gdi::Rgb(darker(gdi::Red(color)), darker(gdi::Green(color)), darker(gdi::Blue(color)));
}

}  // namespace kestrel::imaging
