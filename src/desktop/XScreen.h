#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>

#include "services/Screen.h"

namespace kestrel::desktop {

// The screen of an X display. On any other desktop no program sees it.
class XScreen : public services::Screen, private QAbstractNativeEventFilter {
  public:
    XScreen();

    bool IsSeen() const override { return connection_ != nullptr; }
    gdi::Size Size() const override;
    bool Copy(gdi::Point leftTop, gdi::Surface& into) override;
    gdi::Point Pointer() const override;
    void MovePointer(gdi::Point to) override;

  private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    gdi::Size AskSize() const;
    bool CopyPart(gdi::Point leftTop, gdi::Surface& into);

    xcb_connection_t* connection_;
    xcb_window_t root_ = XCB_WINDOW_NONE;
    // Nothing until it is asked for the first time.
    mutable gdi::Size size_;
};

}  // namespace kestrel::desktop
