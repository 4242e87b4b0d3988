#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::formats {

// What an image's own header says of it.
struct ImageInfo {
    int width = 0;
    int height = 0;
    int bitsPerPixel = 0;
    bool png = false;
    bool operator==(const ImageInfo&) const = default;
};

// One decoded image of an icon. `mask` is white where the image is transparent and black where it
// is opaque; `color` is what is XORed over the masked ground: the colour of an opaque pixel, black
// for a transparent one, any other colour for an inverted-screen pixel.
struct IconImage {
    ImageInfo info;
    gdi::Surface mask;
    gdi::Surface color;
};

// Which part of an icon DrawIcon renders.
enum class DrawPart { Mask, Image, Normal };

// Renders the image into `target` at (0, 0), width x height pixels, stretched by repeating or
// dropping pixels. Mask and Image copy that plane; Normal composes both over what is there
// (AND with the mask, then XOR with the image).
void DrawIcon(gdi::Surface& target, const IconImage& icon, int width, int height, DrawPart part);

}  // namespace kestrel::formats
