#pragma once

#include "platform/gdi/IconPlanes.h"
#include "services/MessageLoop.h"

namespace kestrel::imaging {

// Both change opaque pixels only.
void Grayscale(gdi::IconPlanes& planes);
void Invert(gdi::IconPlanes& planes);

// Darkens the four outermost rings of the icon's opaque pixels, the outermost most.
void Buttonize(gdi::IconPlanes& icon, services::MessageLoop& loop);

// The colour with this much taken from each channel, down to 0.
gdi::COLORREF DisplayResults(gdi::COLORREF color, int darkening);

}  // namespace kestrel::imaging
