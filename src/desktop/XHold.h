#pragma once

#include <xcb/xcb.h>

#include "services/Screen.h"

namespace kestrel::desktop {

// Pointer and keys of an X display for one window alone, as far as no other program has them. The
// server lets go of them by itself when this program ends or the window is gone.
class XHold : public services::InputHold {
  public:
    // `area` is where the pointer may go.
    XHold(xcb_connection_t* connection, xcb_window_t window, gdi::Rect area);
    XHold(const XHold&) = delete;
    XHold& operator=(const XHold&) = delete;
    ~XHold() override;

  private:
    xcb_connection_t* connection_;
    // As large as the area. It is never seen; the pointer is kept inside it.
    xcb_window_t fence_;
};

}  // namespace kestrel::desktop
