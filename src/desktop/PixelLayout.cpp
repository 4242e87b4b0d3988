#include "desktop/PixelLayout.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace kestrel::desktop {

namespace {

const xcb_visualtype_t* VisualOf(const xcb_screen_t& screen) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem != 0;
         xcb_depth_next(&depth)) {
        for (auto visual = xcb_depth_visuals_iterator(depth.data); visual.rem != 0;
             xcb_visualtype_next(&visual)) {
            if (visual.data->visual_id == screen.root_visual) return visual.data;
        }
    }
    return nullptr;
}

// A colour's share of a pixel, widened from the bits of its mask to eight.
std::uint32_t Channel(std::uint32_t pixel, std::uint32_t mask) {
    if (mask == 0) return 0;
    const std::uint32_t most = mask >> std::countr_zero(mask);
    return ((pixel & mask) >> std::countr_zero(mask)) * 255 / most;
}

}  // namespace

PixelLayout::PixelLayout(const xcb_setup_t& setup, const xcb_screen_t& screen)
    : lowestFirst_(setup.image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST) {
    const xcb_visualtype_t* visual = VisualOf(screen);
    const std::span formats(xcb_setup_pixmap_formats(&setup),
                            static_cast<std::size_t>(xcb_setup_pixmap_formats_length(&setup)));
    const auto format = std::ranges::find(formats, screen.root_depth, &xcb_format_t::depth);
    if (visual == nullptr || format == formats.end()) return;
    redMask_ = visual->red_mask;
    greenMask_ = visual->green_mask;
    blueMask_ = visual->blue_mask;
    bytesOfPixel_ = format->bits_per_pixel / 8U;
    pad_ = format->scanline_pad / 8U;
    usual_ = (std::endian::native == std::endian::little) == lowestFirst_ &&
             bytesOfPixel_ == sizeof(gdi::COLORREF) && redMask_ == 0xFF0000 &&
             greenMask_ == 0xFF00 && blueMask_ == 0xFF;
}

std::size_t PixelLayout::BytesOf(gdi::Size size) const {
    if (bytesOfPixel_ == 0 || pad_ == 0) return 0;
    return BytesOfRow(static_cast<std::size_t>(size.width)) * static_cast<std::size_t>(size.height);
}

std::size_t PixelLayout::BytesOfRow(std::size_t pixels) const {
    return (pixels * bytesOfPixel_ + pad_ - 1) / pad_ * pad_;
}

void PixelLayout::ReadRow(std::span<const std::uint8_t> bytes, int y,
                          std::span<gdi::COLORREF> into) const {
    const auto row = bytes.subspan(static_cast<std::size_t>(y) * BytesOfRow(into.size()),
                                   into.size() * bytesOfPixel_);
    if (usual_) {
        std::memcpy(into.data(), row.data(), row.size());
        for (gdi::COLORREF& pixel : into)
            pixel = (pixel & 0xFF00) | (pixel >> 16 & 0xFF) | (pixel & 0xFF) << 16;
        return;
    }
    for (std::size_t x = 0; x < into.size(); ++x)
        into[x] = ColorOf(row.subspan(x * bytesOfPixel_, bytesOfPixel_));
}

gdi::COLORREF PixelLayout::ColorOf(std::span<const std::uint8_t> bytes) const {
    std::uint32_t pixel = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        pixel = pixel << 8 | bytes[lowestFirst_ ? bytes.size() - 1 - i : i];
    return Channel(pixel, redMask_) | Channel(pixel, greenMask_) << 8 |
           Channel(pixel, blueMask_) << 16;
}

}  // namespace kestrel::desktop
