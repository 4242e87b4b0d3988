#include "imaging/Shades.h"

#include <algorithm>
#include <cstdint>

#include "imaging/filters/Levels.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::imaging {

namespace {

using filters::Level;
using filters::Round;
using gdi::kIconSize;

bool IsDiagonal(int degrees) {
    return degrees / kDegreesPerStep % 2 != 0;
}

std::uint8_t Shade(int start, int end, int i, int steps) {
    return Level(Round(start + i * (static_cast<double>(end - start) / steps)));
}

// How many steps lead to a pixel.
int StepAt(int degrees, int x, int y) {
    const int fromRight = kIconSize - 1 - x;
    const int fromBottom = kIconSize - 1 - y;
    // A diagonal's start corner has the colour of its neighbours.
    const auto diagonal = [](int columns, int rows) { return std::max(columns + rows, 1); };
    switch (degrees / kDegreesPerStep % kDirections) {
        case 1:
            return diagonal(x, y);
        case 2:
            return y;
        case 3:
            return diagonal(fromRight, y);
        case 4:
            return fromRight;
        case 5:
            return diagonal(fromRight, fromBottom);
        case 6:
            return fromBottom;
        case 7:
            return diagonal(x, fromBottom);
        default:
            return x;
    }
}

}  // namespace

gdi::COLORREF Shades::ShadeColor(int i) const {
    const int steps = IsDiagonal(degrees) ? 2 * kIconSize : kIconSize;
    return gdi::Rgb(Shade(gdi::Red(start), gdi::Red(end), i, steps),
                    Shade(gdi::Green(start), gdi::Green(end), i, steps),
                    Shade(gdi::Blue(start), gdi::Blue(end), i, steps));
}

gdi::Surface DrawShade(const Shades& shades) {
    gdi::Surface picture(kIconSize, kIconSize);
    for (int y = 0; y < kIconSize; ++y) {
        for (int x = 0; x < kIconSize; ++x)
            picture.SetPixel(x, y, shades.ShadeColor(StepAt(shades.degrees, x, y)));
    }
    return picture;
}

}  // namespace kestrel::imaging
