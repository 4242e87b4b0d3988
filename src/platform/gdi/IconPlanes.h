#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::gdi {

// Icon pixels along each side.
inline constexpr int kIconSize = 32;

// The two planes of an icon or of a part of one, both of one size. A transparent pixel is white in
// the mask and black in the image; an opaque one is black in the mask and has its colour in the
// image. White in the mask with any other colour is an inverted-screen pixel. What is seen is
// (ground AND mask) XOR image.
struct IconPlanes {
    // All transparent.
    IconPlanes() : IconPlanes(kIconSize, kIconSize) {}
    IconPlanes(int width, int height) : image(width, height, kBlack), mask(width, height, kWhite) {}

    int Width() const { return mask.Width(); }
    int Height() const { return mask.Height(); }
    Rect Bounds() const { return mask.Bounds(); }
    bool IsTransparent(int x, int y) const { return mask.GetPixel(x, y) == kWhite; }

    void SetTransparent(int x, int y);
    void SetOpaque(int x, int y, COLORREF color);
    // Makes the part of `area` that lies inside transparent.
    void Erase(Rect area);

    bool SamePixels(const IconPlanes& other) const {
        return image.SamePixels(other.image) && mask.SamePixels(other.mask);
    }

    Surface image;
    Surface mask;
};

// The planes in another size, by repeating or dropping pixels.
IconPlanes Stretched(const IconPlanes& planes, int width, int height);

// Draws the planes, stretched over `to`, as they are seen on what is there.
void DrawOver(Surface& ground, Rect to, const IconPlanes& planes);

}  // namespace kestrel::gdi
