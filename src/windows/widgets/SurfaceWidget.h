#pragma once

#include <QMouseEvent>
#include <QWidget>
#include <functional>
#include <optional>

#include "platform/gdi/ScreenSteps.h"

namespace kestrel::widgets {

// Shows a surface, one pixel of it a unit of the window and on scaled desktops in whole pixels of
// the screen, and hands on its mouse events. Points are in pixels of the surface and may lie
// outside while a button is held. Without a surface it has no size.
class SurfaceWidget : public QWidget {
  public:
    explicit SurfaceWidget(QWidget* parent);
    SurfaceWidget(const gdi::Surface& surface, QWidget* parent);

    // How the surface is divided, which counts on scaled desktops; at first it is one picture.
    void DivideBy(const gdi::StepPattern& pattern);
    // Shows this surface from now on, which outlives the widget or is shown no longer than it is.
    void Show(const gdi::Surface& surface);

    // From now on the mouse does nothing here, or something again.
    void IgnoreMouse(bool ignored) { mouseIgnored_ = ignored; }
    bool IgnoresMouse() const { return mouseIgnored_; }

    // The pixel under the pointer, wherever that is.
    QPoint PointerAt() const;

    // These pixels changed.
    void Repaint(gdi::Rect area);
    // Where they are shown, in the widget's units.
    QRectF UnitsOf(gdi::Rect pixels) const;

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
    const gdi::ScreenSteps& Steps() const;
    QPoint PixelAt(QPointF unit) const;

    const gdi::Surface* surface_ = nullptr;
    gdi::StepPattern pattern_;
    // Worked out for these pixels of the screen; a stroke asks for it at every move.
    struct KnownSteps {
        QSize room;
        qreal scale = 0;
        gdi::ScreenSteps steps;
    };
    mutable std::optional<KnownSteps> known_;
    bool mouseIgnored_ = false;
    // Where the pointer moved last, and what the cursor's own point, which is rounded, made of it.
    QPoint lastPoint_;
    QPoint lastRounded_;
    // The button of a quick pair whose second press is held; NoButton for none.
    Qt::MouseButton doubleClicked_ = Qt::NoButton;
};

}  // namespace kestrel::widgets
