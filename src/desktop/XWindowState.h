#pragma once

#include <xcb/xcb.h>

#include <QWidget>

namespace kestrel::desktop {

// A state that the window manager of an X display keeps for a window, such as
// "_NET_WM_STATE_SKIP_TASKBAR". A window that is hidden loses it. Elsewhere nothing happens.
// Protocol: Extended Window Manager Hints 1.5, _NET_WM_STATE.
class XWindowState {
  public:
    // `window` outlives this.
    XWindowState(QWidget& window, const char* name) : window_(window), name_(name) {}

    // Asks for it, or that it ends, while the window is shown.
    void Set(bool set);

  private:
    QWidget& window_;
    const char* name_;
    xcb_atom_t state_ = XCB_ATOM_NONE;
    xcb_atom_t kind_ = XCB_ATOM_NONE;
};

}  // namespace kestrel::desktop
