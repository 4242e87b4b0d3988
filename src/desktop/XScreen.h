#pragma once

#include <memory>

#include "services/Screen.h"

namespace kestrel::desktop {

// The screen of an X display. On any other desktop no program sees it, nor where the display is a
// guest of such a desktop; there a picture of it comes from the desktop's portal.
class XScreen : public services::Screen {
  public:
    XScreen();
    ~XScreen() override;

    bool IsSeen() const override;
    gdi::Size Size() const override;
    bool Copy(gdi::Point leftTop, gdi::Surface& into) override;
    gdi::Point Pointer() const override;
    void MovePointer(gdi::Point to) override;
    Result<gdi::Surface> Picture() override;
    bool IsComposited() const override;
    std::unique_ptr<services::InputHold> Hold(services::WindowHandle window,
                                              gdi::Rect area) override;

  private:
    class Link;

    // Made when it is first asked for; null where there is none.
    Link* Linked() const;

    mutable std::unique_ptr<Link> link_;
};

}  // namespace kestrel::desktop
