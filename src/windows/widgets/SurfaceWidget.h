#pragma once

#include <QMouseEvent>
#include <QWidget>
#include <functional>

#include "platform/gdi/Surface.h"

namespace kestrel::widgets {

// Shows a surface, one pixel of it a unit of the window, and hands on its mouse events. Points are
// in pixels of the surface and may lie outside while a button is held. Without a surface it has no
// size.
class SurfaceWidget : public QWidget {
  public:
    explicit SurfaceWidget(QWidget* parent);
    SurfaceWidget(const gdi::Surface& surface, QWidget* parent);

    // Shows this surface from now on, which outlives the widget or is shown no longer than it is.
    void Show(const gdi::Surface& surface);

    // From now on the mouse does nothing here, or something again.
    void IgnoreMouse(bool ignored) { mouseIgnored_ = ignored; }
    bool IgnoresMouse() const { return mouseIgnored_; }

    // The pixel under the pointer, wherever that is.
    QPoint PointerAt() const;

    // These pixels changed.
    void Repaint(gdi::Rect area);

    std::function<void(Qt::MouseButton button, QPoint point)> onMouseDown;
    std::function<void(Qt::MouseButtons held, QPoint point)> onMouseMove;
    std::function<void(Qt::MouseButton button, QPoint point)> onMouseUp;
    // In place of onMouseUp where the second press of a quick pair ends, wherever that is.
    std::function<void()> onDoubleClick;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    const gdi::Surface* surface_ = nullptr;
    bool mouseIgnored_ = false;
    // Where the pointer moved last, and what the cursor's own point, which is rounded, made of it.
    QPoint lastPoint_;
    QPoint lastRounded_;
    // The button of a quick pair whose second press is held; NoButton for none.
    Qt::MouseButton doubleClicked_ = Qt::NoButton;
};

}  // namespace kestrel::widgets
