#pragma once

#include <functional>
#include <span>

#include "platform/gdi/Color.h"

namespace kestrel::gdi {

// Pixels of row `y` of a picture: each `distance`th from `x` on.
struct PixelRun {
    int x = 0;
    int distance = 1;
    int y = 0;
    std::span<const COLORREF> pixels;
};

// Is given a picture piece by piece, in any order; the pixels are there during the call only.
using TakePixels = std::function<void(const PixelRun&)>;

}  // namespace kestrel::gdi
