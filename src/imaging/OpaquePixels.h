#pragma once

#include <cstddef>

#include "platform/gdi/IconPlanes.h"

namespace kestrel::imaging {

// Gives every pixel that the mask does not show as transparent the colour change(x, y, color).
template <typename Change>
void ChangeOpaquePixels(gdi::IconPlanes& planes, const Change& change) {
    for (int y = 0; y < planes.Height(); ++y) {
        const auto colors = planes.image.Row(y);
        const auto masks = planes.mask.Row(y);
        for (std::size_t x = 0; x < colors.size(); ++x) {
            if (masks[x] != gdi::kWhite) colors[x] = change(static_cast<int>(x), y, colors[x]);
        }
    }
}

}  // namespace kestrel::imaging
