#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::services {

// The whole desktop with all its monitors. Positions are in its own pixels, whatever scale the
// windows have, from its top left corner.
class Screen {
  public:
    virtual ~Screen() = default;
    // Whether programs may see it. Where they may not, it has no size and nothing is copied.
    virtual bool IsSeen() const = 0;
    virtual gdi::Size Size() const = 0;
    // Copies the square that begins at (left, top) as it is shown now, as large as `into`. What
    // lies outside the screen stays as it was in `into`. False when the screen gave nothing.
    virtual bool Copy(gdi::Point leftTop, gdi::Surface& into) = 0;
    virtual gdi::Point Pointer() const = 0;
    virtual void MovePointer(gdi::Point to) = 0;
};

}  // namespace kestrel::services
