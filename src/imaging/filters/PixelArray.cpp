#include "imaging/filters/PixelArray.h"

namespace kestrel::filters {

PixelArray::PixelArray(const gdi::Surface& picture)
    : width_(picture.Width()), height_(picture.Height()), values_(Index(kChannels, 0)) {
    for (int y = 0; y < height_; ++y) {
        std::uint8_t* blue = Row(kBlue, y);
        std::uint8_t* green = Row(kGreen, y);
        std::uint8_t* red = Row(kRed, y);
        for (const gdi::COLORREF color : picture.Row(y)) {
            *blue++ = gdi::Blue(color);
            *green++ = gdi::Green(color);
            *red++ = gdi::Red(color);
        }
    }
}

void PixelArray::CopyTo(gdi::Surface& picture) const {
    for (int y = 0; y < height_; ++y) {
        const std::uint8_t* blue = Row(kBlue, y);
        const std::uint8_t* green = Row(kGreen, y);
        const std::uint8_t* red = Row(kRed, y);
        for (gdi::COLORREF& color : picture.Row(y))
            color = gdi::Rgb(*red++, *green++, *blue++);
    }
}

}  // namespace kestrel::filters
