#pragma once

#include <cstdint>

#include "platform/gdi/Surface.h"

namespace kestrel::gdi {

// Draws pixels in a surface's draw mode and leaves out what lies outside. Coordinates are 64-bit,
// so that sums of any two ints are safe; no call costs more than the surface's size.
class Pen {
  public:
    Pen(Surface& target, COLORREF color);

    void Dot(std::int64_t x, std::int64_t y) const;
    // Every `step`-th pixel from `first` on, at most up to and including `last`.
    void Row(std::int64_t y, std::int64_t first, std::int64_t last, int step = 1) const;
    void Column(std::int64_t x, std::int64_t first, std::int64_t last, int step = 1) const;

  private:
    void Ink(COLORREF& pixel) const { pixel = (pixel & keep_) ^ flip_; }

    Surface& target_;
    // The bits of the old pixel that stay, and those that are flipped afterwards.
    COLORREF keep_;
    COLORREF flip_;
};

}  // namespace kestrel::gdi
