#pragma once

#include "platform/gdi/IconPlanes.h"

namespace kestrel::imaging {

// How a picture larger than the icon is shrunk: to the icon's size, or in proportion.
enum class PasteFit { Shrink, KeepAspect };

// What is transparent in a pasted picture: white and whatever lets more than half of the ground
// through, or nothing, the picture being laid over white.
enum class PasteMode { Transparent, Opaque };

bool FitsIcon(gdi::Size picture);

// The size to which a picture is shrunk that does not fit; it has at least one pixel.
gdi::Size FittedSize(gdi::Size picture, PasteFit fit);

// A picture of 0xAABBGGRR pixels as planes of another size, by repeating or dropping pixels.
gdi::IconPlanes PlanesOf(const gdi::Surface& picture, gdi::Size size, PasteMode mode);

}  // namespace kestrel::imaging
