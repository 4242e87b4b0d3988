#pragma once

#include <xcb/xcb.h>

#include <QTimer>

#include "services/Screen.h"

namespace kestrel::desktop {

// Pointer and keys of an X display for one window alone. Where another program has them, as while
// its menu is open, they are asked for again until it lets go. The server lets go of them by itself
// when this program ends or the window is gone.
class XHold : public services::InputHold {
  public:
    // `area` is where the pointer may go.
    XHold(xcb_connection_t* connection, xcb_window_t window, gdi::Rect area);
    XHold(const XHold&) = delete;
    XHold& operator=(const XHold&) = delete;
    ~XHold() override;

  private:
    // Whether both are there.
    bool Grab();

    xcb_connection_t* connection_;
    xcb_window_t window_;
    // As large as the area. It is never seen; the pointer is kept inside it.
    xcb_window_t fence_;
    QTimer again_;
};

}  // namespace kestrel::desktop
