#pragma once

#include <QWidget>

#include "services/DesktopDialogs.h"

namespace kestrel::desktop {

// A window of the desktop library as the owner of dialogs.
class QtOwnerWindow : public services::OwnerWindow {
  public:
    explicit QtOwnerWindow(const QWidget& window) : window_(window) {}

    services::WindowHandle hWnd() const override {
        return static_cast<services::WindowHandle>(window_.winId());
    }

  private:
    const QWidget& window_;
};

}  // namespace kestrel::desktop
