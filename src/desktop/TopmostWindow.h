#pragma once

#include <xcb/xcb.h>

#include <QWidget>

namespace kestrel::desktop {

// Keeps a window above all others, in so far as the window manager allows it.
class TopmostWindow {
  public:
    // `window` outlives this.
    explicit TopmostWindow(QWidget& window);

    // Puts the window above all others, also those that claim the same, or gives the place up. The
    // keyboard stays where it is. Does nothing to a window that is not on the screen.
    void Set(bool topmost);

  private:
    QWidget& window_;
    xcb_connection_t* connection_;
    xcb_atom_t stateAtom_ = XCB_ATOM_NONE;
    xcb_atom_t aboveAtom_ = XCB_ATOM_NONE;
};

}  // namespace kestrel::desktop
