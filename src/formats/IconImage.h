#pragma once

#include "platform/gdi/IconPlanes.h"

namespace kestrel::formats {

// What an image's own header says of it.
struct ImageInfo {
    int width = 0;
    int height = 0;
    int bitsPerPixel = 0;
    bool png = false;
    bool operator==(const ImageInfo&) const = default;
};

// One decoded image of an icon. Its planes may be asked for in another size than its own.
struct IconImage {
    ImageInfo info;
    gdi::IconPlanes planes;
};

}  // namespace kestrel::formats
