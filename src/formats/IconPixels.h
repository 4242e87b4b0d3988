#pragma once

#include <cstdint>

#include "formats/IconImage.h"

namespace kestrel::formats {

// Larger images are refused before anything is allocated for them; 256 is the usual most.
inline constexpr int kMaxImageSide = 1024;
// The least alpha that counts as opaque.
inline constexpr std::uint32_t kOpaqueAlpha = 128;

// An image of the size that `info` tells: all transparent, no colour.
IconImage EmptyImage(const ImageInfo& info);

// Splits pixels that still carry alpha in their top byte into the two planes: opaque pixels keep
// their 24-bit colour, the others turn transparent and black.
void SplitAlpha(IconImage& image);

}  // namespace kestrel::formats
