#pragma once

#include <memory>

#include "platform/Result.h"
#include "platform/gdi/Surface.h"
#include "services/DesktopDialogs.h"

namespace kestrel::services {

// Why there is no picture of the screen: the desktop has nothing that would give one, or the
// desktop or its user refused.
inline constexpr int kNoScreenPictures = 1;
inline constexpr int kScreenRefused = 2;

// While it lives one window has the pointer and the keys to itself.
class InputHold {
  public:
    virtual ~InputHold() = default;
};

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
    // The whole screen as it is shown now. Where programs may not see it the desktop is asked,
    // which may ask the user.
    virtual Result<gdi::Surface> Picture() = 0;
    // Whether windows may fade out instead of being gone at once.
    virtual bool IsComposited() const = 0;
    // Gives pointer and keys to a window that is shown, and keeps the pointer inside `area`, unless
    // another program has them. Null where the desktop knows nothing of the kind.
    virtual std::unique_ptr<InputHold> Hold(WindowHandle window, gdi::Rect area) = 0;
};

}  // namespace kestrel::services
