#include "windows/widgets/SurfaceWidget.h"

#include <QCursor>
#include <QPaintEvent>
#include <QPainter>

#include "desktop/Pictures.h"
#include "windows/widgets/MousePoint.h"

namespace kestrel::widgets {

SurfaceWidget::SurfaceWidget(QWidget* parent) : QWidget(parent) {
    setFixedSize(0, 0);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

SurfaceWidget::SurfaceWidget(const gdi::Surface& surface, QWidget* parent) : SurfaceWidget(parent) {
    Show(surface);
}

void SurfaceWidget::Show(const gdi::Surface& surface) {
    surface_ = &surface;
    setFixedSize(surface.Width(), surface.Height());
}

void SurfaceWidget::Repaint(gdi::Rect area) {
    update(area.left, area.top, area.width, area.height);
}

void SurfaceWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (const QRect& part : event->region()) {
        const QRect inside = part & rect();
        painter.drawImage(
            inside.topLeft(),
            desktop::ToImage(*surface_, {inside.x(), inside.y(), inside.width(), inside.height()}));
    }
}

QPoint SurfaceWidget::PointerAt() const {
    const QPoint rounded = mapFromGlobal(QCursor::pos());
    return rounded == lastRounded_ ? lastPoint_ : rounded;
}

void SurfaceWidget::mousePressEvent(QMouseEvent* event) {
    doubleClicked_ = Qt::NoButton;
    if (!mouseIgnored_ && onMouseDown) onMouseDown(event->button(), UnitOf(*event));
}

// The second press of a quick pair is a press like any other.
void SurfaceWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    doubleClicked_ = event->button();
}

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event) {
    lastPoint_ = UnitOf(*event);
    lastRounded_ = mapFromGlobal(event->globalPosition().toPoint());
    if (!mouseIgnored_ && onMouseMove) onMouseMove(event->buttons(), lastPoint_);
}

void SurfaceWidget::mouseReleaseEvent(QMouseEvent* event) {
    const bool ofDoubleClick = event->button() == doubleClicked_;
    if (ofDoubleClick) doubleClicked_ = Qt::NoButton;
    if (mouseIgnored_) return;
    if (ofDoubleClick && onDoubleClick) {
        onDoubleClick();
    } else if (onMouseUp) {
        onMouseUp(event->button(), UnitOf(*event));
    }
}

}  // namespace kestrel::widgets
