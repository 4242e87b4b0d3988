#pragma once

#include <QWidget>
#include <functional>

#include "platform/gdi/Surface.h"

namespace kestrel::widgets {

// Shows a picture, one pixel of it a pixel of the screen, whatever scale the windows have.
class DevicePixelView : public QWidget {
  public:
    // Draws the picture's rows from `top` on.
    using DrawRows = std::function<void(gdi::Surface& rows, int top)>;

    DevicePixelView(DrawRows drawRows, QWidget* parent);

    // How many pixels of the screen lie wholly within it.
    gdi::Size SizeInPixels() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    DrawRows drawRows_;
};

}  // namespace kestrel::widgets
