#include "imaging/FilterPipeline.h"

#include <algorithm>

#include "document/IconDocument.h"
#include "imaging/OpaquePixels.h"

namespace kestrel::imaging {

using document::kIconSize;

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

void ApplyFilterResult(const gdi::Surface& filtered, gdi::Surface& image,
                       const gdi::Surface& mask) {
    ChangeOpaquePixels(image, mask,
                       [&](int x, int y, gdi::COLORREF) { return filtered.GetPixel(x, y); });
}

}  // namespace kestrel::imaging
