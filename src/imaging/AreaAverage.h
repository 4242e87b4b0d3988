#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::imaging {

// A picture of 0xAABBGGRR pixels made smaller: each pixel is the average of the area it covers, in
// which a colour counts as much as it is opaque. Sides are at most 1024.
gdi::Surface AreaAverage(const gdi::Surface& picture, gdi::Size size);

}  // namespace kestrel::imaging
