#include "imaging/FilterPipeline.h"

#include <algorithm>

#include "imaging/OpaquePixels.h"

namespace kestrel::imaging {

using gdi::kIconSize;

gdi::Surface PrepareFilterSource(const gdi::Surface& plane) {
    gdi::Surface picture(kIconSize, kIconSize);
    for (int y = 0; y < kIconSize; ++y) {
        for (int x = 0; x < kIconSize; ++x) {
            picture.SetPixel(
                x, y,
                plane.GetPixel(std::min(x, plane.Width() - 1), std::min(y, plane.Height() - 1)));
        }
    }
    return picture;
}

void ApplyFilterResult(const gdi::Surface& filtered, gdi::IconPlanes& planes) {
    ChangeOpaquePixels(planes,
                       [&](int x, int y, gdi::COLORREF) { return filtered.GetPixel(x, y); });
}

}  // namespace kestrel::imaging
