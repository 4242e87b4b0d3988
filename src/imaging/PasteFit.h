#pragma once

#include "platform/gdi/IconPlanes.h"

namespace kestrel::imaging {

// How a picture larger than the icon is shrunk: to the icon's size, or in proportion.
enum class PasteFit { Shrink, KeepAspect };

// What is transparent in a pasted picture: white and whatever lets more than half of the ground
// through, or nothing, the picture being laid over white.
enum class PasteMode { Transparent, Opaque };

// In pixels.
struct PictureSize {
    int width = 0;
    int height = 0;
    bool operator==(const PictureSize&) const = default;
};

bool FitsIcon(PictureSize picture);

// The size to which a picture is shrunk that does not fit; it has at least one pixel.
PictureSize FittedSize(PictureSize picture, PasteFit fit);

// A picture of 0xAABBGGRR pixels as planes of another size, by repeating or dropping pixels.
gdi::IconPlanes PlanesOf(const gdi::Surface& picture, PictureSize size, PasteMode mode);

}  // namespace kestrel::imaging
