#pragma once

#include <cstddef>

#include "platform/gdi/Surface.h"

namespace kestrel::imaging {

// Gives every pixel that the mask does not show as transparent the colour change(x, y, color).
// Both planes have one size.
template <typename Change>
void ChangeOpaquePixels(gdi::Surface& image, const gdi::Surface& mask, const Change& change) {
    for (int y = 0; y < mask.Height(); ++y) {
        const auto colors = image.Row(y);
        const auto masks = mask.Row(y);
        for (std::size_t x = 0; x < colors.size(); ++x) {
            if (masks[x] != gdi::kWhite) colors[x] = change(static_cast<int>(x), y, colors[x]);
        }
    }
}

}  // namespace kestrel::imaging
