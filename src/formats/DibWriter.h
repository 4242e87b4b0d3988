#pragma once

#include "formats/IconExport.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::formats {

// The planes as a bitmap with its mask, as icon files and programs hold it: with a palette of 4 or
// 8 bits where the colours fit, else in 24 bits. Transparent pixels are black.
ImageBytes EncodeDib(const gdi::IconPlanes& icon);

}  // namespace kestrel::formats
