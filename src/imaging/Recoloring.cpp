#include "imaging/Recoloring.h"

#include <algorithm>

#include "imaging/OpaquePixels.h"
#include "imaging/filters/Levels.h"

namespace kestrel::imaging {

namespace {

using document::kIconSize;

void DarkenPixel(document::IconDocument& icon, int x, int y, int darkening) {
    if (icon.PicMask.GetPixel(x, y) != gdi::kBlack) return;
    icon.PicImage.SetPixel(x, y, DisplayResults(icon.PicImage.GetPixel(x, y), darkening));
}

// The ring that lies `d` pixels inside the icon's edge.
void DarkenRing(document::IconDocument& icon, int d, int darkening) {
    const int far = kIconSize - 1 - d;
    for (int x = d; x <= far; ++x) {
        DarkenPixel(icon, x, d, darkening);
        DarkenPixel(icon, x, far, darkening);
    }
    for (int y = d + 1; y < far; ++y) {
        DarkenPixel(icon, d, y, darkening);
        DarkenPixel(icon, far, y, darkening);
    }
}

}  // namespace

void Grayscale(gdi::Surface& image, const gdi::Surface& mask) {
    ChangeOpaquePixels(image, mask, [](int, int, gdi::COLORREF color) {
        const int sum = 222 * gdi::Red(color) + 707 * gdi::Green(color) + 71 * gdi::Blue(color);
        const std::uint8_t grey = filters::Level(filters::Round(sum / 1000.0));
        return gdi::Rgb(grey, grey, grey);
    });
}

void Invert(gdi::Surface& image, const gdi::Surface& mask) {
    ChangeOpaquePixels(image, mask,
                       [](int, int, gdi::COLORREF color) { return color ^ gdi::kWhite; });
}

void Buttonize(document::IconDocument& icon, desktop::MessageLoop& loop) {
    constexpr int kInnermost = 3;
    int darkening = 8;
    for (int d = kInnermost; d >= 0; --d) {
        loop.DoEvents();
        DarkenRing(icon, d, darkening);
        darkening *= 2;
    }
}

gdi::COLORREF DisplayResults(gdi::COLORREF color, int darkening) {
    const auto darker = [darkening](int channel) { return filters::Level(channel - darkening); };
    return gdi::Rgb(darker(gdi::Red(color)), darker(gdi::Green(color)), darker(gdi::Blue(color)));
}

}  // namespace kestrel::imaging
