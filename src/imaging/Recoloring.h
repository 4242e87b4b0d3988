#pragma once

#include "document/IconDocument.h"
#include "platform/gdi/Surface.h"
#include "services/MessageLoop.h"

namespace kestrel::imaging {

// Both change opaque pixels only.
void Grayscale(gdi::Surface& image, const gdi::Surface& mask);
void Invert(gdi::Surface& image, const gdi::Surface& mask);

// Darkens the four outermost rings of the icon's opaque pixels, the outermost most.
void Buttonize(document::IconDocument& icon, services::MessageLoop& loop);

// The colour with this much taken from each channel, down to 0.
gdi::COLORREF DisplayResults(gdi::COLORREF color, int darkening);

}  // namespace kestrel::imaging
