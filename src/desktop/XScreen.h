#pragma once

#include <xcb/xcb.h>

#include "services/Screen.h"

namespace kestrel::desktop {

// The screen of an X display. On any other desktop no program sees it.
class XScreen : public services::Screen {
  public:
    XScreen();

    bool IsSeen() const override { return connection_ != nullptr; }
    gdi::Size Size() const override;
    bool Copy(gdi::Point leftTop, gdi::Surface& into) override;
    gdi::Point Pointer() const override;
    void MovePointer(gdi::Point to) override;

  private:
    xcb_connection_t* connection_;
    xcb_window_t root_ = XCB_WINDOW_NONE;
};

}  // namespace kestrel::desktop
