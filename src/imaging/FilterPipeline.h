#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::imaging {

// The 32 x 32 picture that a filter works on: the plane from its top left and, beyond the edges of
// a smaller one, its nearest pixel.
gdi::Surface PrepareFilterSource(const gdi::Surface& plane);

// Puts the filtered picture into a plane, except where the mask shows it as transparent.
void ApplyFilterResult(const gdi::Surface& filtered, gdi::Surface& image, const gdi::Surface& mask);

}  // namespace kestrel::imaging
