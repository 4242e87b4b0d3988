#pragma once

#include <cstdint>

#include "formats/ByteReader.h"
#include "formats/IconImage.h"

namespace kestrel::formats {

// Larger images are refused before anything is allocated for them; 256 is the usual most.
inline constexpr int kMaxImageSide = 1024;
// A PNG that is no image of an icon may be a photograph.
inline constexpr int kMaxPngSide = 8192;
// The least alpha that counts as opaque.
inline constexpr std::uint32_t kOpaqueAlpha = 128;
// Where a pixel with alpha keeps it: 0xAABBGGRR.
inline constexpr std::uint32_t kAlphaBits = 0xFF000000;

// An image of the size that `info` tells: all transparent, no colour.
IconImage EmptyImage(const ImageInfo& info);

// Splits pixels that still carry alpha in their top byte into the two planes: opaque pixels keep
// their 24-bit colour, the others turn transparent and black.
void SplitAlpha(IconImage& image);

// Puts the mask into the top byte of the image's pixels: opaque ones get the alpha 255, those under
// a white mask turn transparent and black, also the ones that invert the screen.
void JoinAlpha(gdi::IconPlanes& planes);

// Pixel `x` of a row whose pixels are `bits` (1, 2, 4 or 8) wide, the first in the highest bits.
inline unsigned PackedPixel(Bytes row, std::size_t x, unsigned bits) {
    const std::size_t firstBit = x * bits;
    const unsigned below = 8 - bits - static_cast<unsigned>(firstBit % 8);
    return static_cast<unsigned>(row[firstBit / 8]) >> below & ((1U << bits) - 1);
}

}  // namespace kestrel::formats
