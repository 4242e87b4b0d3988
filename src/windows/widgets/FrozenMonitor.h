#pragma once

#include <QWidget>
#include <functional>

#include "tools/Capture.h"

namespace kestrel::widgets {

// Covers one monitor with its part of a frozen picture of the screen, pixel on pixel, also on a
// scaled desktop. Points and areas are in pixels of the picture.
class FrozenMonitor : public QWidget {
  public:
    // `part` is the monitor's part of the picture, which outlives the window.
    FrozenMonitor(const tools::Capture& capture, gdi::Rect part, QScreen* monitor);

    // In front of all, beside the window manager, or as a full-screen window of its.
    void CoverUnmanaged();
    void CoverManaged();
    // These pixels changed.
    void Repaint(gdi::Rect area);

    std::function<void(gdi::Point pixel)> onPointer;
    // A click with any button has ended.
    std::function<void()> onClick;
    std::function<void(int key)> onKey;
    // Whoever closed or hid it.
    std::function<void()> onGone;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void PutOnMonitor();
    void PointAt(QPointF unit);
    // Of the picture for one unit of the window.
    double Pixels() const;

    const tools::Capture& capture_;
    gdi::Rect part_;
    QScreen* monitor_;
    // Where it was last, in units; at first outside.
    QPointF pointer_{-1, -1};
    bool pressed_ = false;
};

}  // namespace kestrel::widgets
