#pragma once

#include "formats/IconExport.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::formats {

// The planes as a bitmap with its mask, as icon files and programs hold it: with a palette of 4 or
// 8 bits where the colours fit, else in 24 bits. Transparent pixels are black.
ImageBytes EncodeDib(const gdi::IconPlanes& icon);

// Pixels of 0xAABBGGRR as a bitmap of 32 bits that keeps their alpha. The mask, which readers that
// know no alpha go by, is opaque from kOpaqueAlpha on. Wholly transparent pixels are black.
ImageBytes EncodeDib(const gdi::Surface& pixels);

// Such pixels as icons of several sizes hold them: a side of 256 or more as a PNG, a smaller one as
// such a bitmap.
ImageBytes EncodeImage(const gdi::Surface& pixels);

}  // namespace kestrel::formats
