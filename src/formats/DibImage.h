#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "formats/ByteReader.h"
#include "formats/IconImage.h"

namespace kestrel::formats {

// Where the parts of an icon's bitmap lie, in bytes from its header, and how its pixels are stored.
// Made only of header fields: the parts need not be inside the data.
struct DibLayout {
    ImageInfo info;
    bool topDown = false;
    std::uint64_t paletteOffset = 0;
    std::uint64_t paletteColors = 0;
    std::uint64_t colorOffset = 0;
    std::uint64_t colorStride = 0;
    std::uint64_t maskOffset = 0;
    std::uint64_t maskStride = 0;
    std::uint64_t end = 0;
    // Bits of red, green, blue and alpha in a pixel of 16 or 32 bits; 0 = not stored.
    std::array<std::uint32_t, 4> channels{};
};

// Reads the BITMAPINFOHEADER (40 to 124 bytes, so V4 and V5 too, but not OS/2's 64) in `head`, the
// start of an image of `length` bytes. The height in an icon's header counts colour image and mask
// together; some writers leave the doubling out, which shows by header and directory naming the
// same size and the rows being there. Nothing when the header is cut, compressed or out of range.
std::optional<DibLayout> ReadDibLayout(Bytes head, std::uint64_t length, int directoryWidth,
                                       int directoryHeight);

// The same of an image that is there as a whole.
inline std::optional<DibLayout> ReadDibLayout(Bytes image, int directoryWidth,
                                              int directoryHeight) {
    return ReadDibLayout(image, image.size(), directoryWidth, directoryHeight);
}

// Decodes the image; nothing when the colour data is cut. A cut mask counts as opaque.
std::optional<IconImage> DecodeDib(Bytes image, const DibLayout& layout);

// The same as pixels that keep their alpha, as JoinAlpha makes them where there is a mask only.
std::optional<gdi::Surface> ReadDibPixels(Bytes image, const DibLayout& layout);

}  // namespace kestrel::formats
