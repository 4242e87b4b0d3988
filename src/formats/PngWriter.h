#pragma once

#include <cstdint>
#include <vector>

#include "platform/gdi/IconPlanes.h"

namespace kestrel::formats {

// How pixels are stored: 8-bit red, green, blue and alpha each, as icons and thumbnails want it,
// or, of at most 256 colours, a palette, which takes a fifth of the time to pack.
enum class PngPixels { Direct, FewInPalette };

// Pixels of 0xAABBGGRR as a PNG. There is at least one.
std::vector<std::uint8_t> PngBytes(const gdi::Surface& pixels,
                                   PngPixels stored = PngPixels::Direct);

// The 32 x 32 planes, with a palette if they can have one; transparent pixels are black.
std::vector<std::uint8_t> PngBytes(const gdi::IconPlanes& icon);

}  // namespace kestrel::formats
