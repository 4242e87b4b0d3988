#include "platform/gdi/Surface.h"

#include <algorithm>

namespace kestrel::gdi {

Surface::Surface(int width, int height, COLORREF background)
    : width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      backColor_(background & kWhite),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), backColor_) {}

void Surface::Clear() {
    std::fill(pixels_.begin(), pixels_.end(), backColor_);
}

bool Surface::SamePixels(const Surface& other) const {
    return width_ == other.width_ && height_ == other.height_ && pixels_ == other.pixels_;
}

}  // namespace kestrel::gdi
