#include "desktop/Pictures.h"

namespace kestrel::desktop {

namespace {

// Between 0xAABBGGRR and 0xAARRGGBB.
constexpr std::uint32_t SwapRedAndBlue(std::uint32_t pixel) {
    return (pixel & 0xFF00FF00) | (pixel & 0xFF) << 16 | (pixel >> 16 & 0xFF);
}

QRgb ToRgb(gdi::COLORREF color) {
    return SwapRedAndBlue(color) | 0xFF000000;
}

}  // namespace

QImage ToImage(const gdi::Surface& surface, gdi::Rect area) {
    QImage image(area.width, area.height, QImage::Format_RGB32);
    for (int y = 0; y < area.height; ++y) {
        const auto source = surface.Row(area.top + y).subspan(static_cast<std::size_t>(area.left));
        auto* target = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < area.width; ++x)
            target[x] = ToRgb(source[static_cast<std::size_t>(x)]);
    }
    return image;
}

QImage ToImage(const gdi::IconPlanes& icon) {
    QImage image = ToImage(icon.image, icon.Bounds()).convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (icon.IsTransparent(x, y)) image.setPixel(x, y, 0);
        }
    }
    return image;
}

QImage ToImage(const gdi::Surface& pixels) {
    QImage image(pixels.Width(), pixels.Height(), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* target = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (const gdi::COLORREF pixel : pixels.Row(y))
            *target++ = SwapRedAndBlue(pixel);
    }
    return image;
}

gdi::COLORREF ToPixel(QRgb pixel) {
    return SwapRedAndBlue(pixel);
}

QColor ToColor(gdi::COLORREF color) {
    return {ToRgb(color)};
}

gdi::COLORREF ToColorRef(const QColor& color) {
    return gdi::Rgb(static_cast<std::uint8_t>(color.red()),
                    static_cast<std::uint8_t>(color.green()),
                    static_cast<std::uint8_t>(color.blue()));
}

}  // namespace kestrel::desktop
