#pragma once

#include <cstdint>
#include <vector>

#include "platform/gdi/IconPlanes.h"

namespace kestrel::formats {

// The 32 x 32 planes as a PNG of 8-bit red, green, blue and alpha; transparent pixels are black.
std::vector<std::uint8_t> PngBytes(const gdi::IconPlanes& icon);

// Pixels of 0xAABBGGRR as such a PNG. It has at least one pixel.
std::vector<std::uint8_t> PngBytes(const gdi::Surface& pixels);

}  // namespace kestrel::formats
