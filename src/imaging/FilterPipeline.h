#pragma once

#include "platform/gdi/IconPlanes.h"

namespace kestrel::imaging {

// The 32 x 32 picture that a filter works on: the plane from its top left and, beyond the edges of
// a smaller one, its nearest pixel.
gdi::Surface PrepareFilterSource(const gdi::Surface& plane);

// Gives the opaque pixels of the planes the colours of the filtered picture.
void ApplyFilterResult(const gdi::Surface& filtered, gdi::IconPlanes& planes);

}  // namespace kestrel::imaging
