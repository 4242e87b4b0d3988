#include "platform/gdi/IconPlanes.h"

#include "platform/gdi/Blit.h"

namespace kestrel::gdi {

void IconPlanes::SetTransparent(int x, int y) {
    image.SetPixel(x, y, kBlack);
    mask.SetPixel(x, y, kWhite);
}

void IconPlanes::SetOpaque(int x, int y, COLORREF color) {
    image.SetPixel(x, y, color);
    mask.SetPixel(x, y, kBlack);
}

void IconPlanes::Erase(Rect area) {
    PatBlt(image, area, kBlack);
    PatBlt(mask, area, kWhite);
}

IconPlanes Stretched(const IconPlanes& planes, int width, int height) {
    IconPlanes stretched(width, height);
    StretchBlt(stretched.image, stretched.Bounds(), planes.image, planes.Bounds(), RasterOp::Copy);
    StretchBlt(stretched.mask, stretched.Bounds(), planes.mask, planes.Bounds(), RasterOp::Copy);
    return stretched;
}

void DrawOver(Surface& ground, Rect to, const IconPlanes& planes) {
    StretchBlt(ground, to, planes.mask, planes.Bounds(), RasterOp::And);
    StretchBlt(ground, to, planes.image, planes.Bounds(), RasterOp::Xor);
}

}  // namespace kestrel::gdi
