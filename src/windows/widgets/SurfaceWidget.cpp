#include "windows/widgets/SurfaceWidget.h"

#include <QCursor>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "desktop/Pictures.h"
#include "windows/widgets/DevicePixels.h"
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

void SurfaceWidget::DivideBy(const gdi::StepPattern& pattern) {
    pattern_ = pattern;
    known_.reset();
}

void SurfaceWidget::Show(const gdi::Surface& surface) {
    known_.reset();
    surface_ = &surface;
    setFixedSize(surface.Width(), surface.Height());
}

const gdi::ScreenSteps& SurfaceWidget::Steps() const {
    const QSize room = DevicePixelsOf(*this).size();
    const qreal scale = devicePixelRatioF();
    if (!known_ || known_->room != room || known_->scale != scale) {
        const gdi::Size surface{surface_->Width(), surface_->Height()};
        known_ = {room, scale, {pattern_, surface, {room.width(), room.height()}, scale}};
    }
    return known_->steps;
}

QRectF SurfaceWidget::UnitsOf(gdi::Rect pixels) const {
    const gdi::Rect place = Steps().PlaceOf(pixels);
    const qreal scale = devicePixelRatioF();
    const QPointF corner = DevicePixelsOf(*this).topLeft() + QPoint(place.left, place.top);
    return {corner / scale - mapTo(window(), QPoint()), QSizeF(place.width, place.height) / scale};
}

void SurfaceWidget::Repaint(gdi::Rect area) {
    if (surface_ == nullptr) return;
    // A rubber band reaches beyond the surface.
    const QRect inside = QRect(area.left, area.top, area.width, area.height) &
                         QRect(0, 0, surface_->Width(), surface_->Height());
    if (inside.isEmpty()) return;
    const QRectF units = UnitsOf({inside.x(), inside.y(), inside.width(), inside.height()});
    const QRect whole = units.toAlignedRect();
    // The desktop library rounds once more before it hands on what was painted.
    update(whole == units ? whole : whole.adjusted(-1, -1, 1, 1));
}

void SurfaceWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QTransform toDevice = painter.deviceTransform();
    const QColor ground = palette().color(QPalette::Window);
    const gdi::ScreenSteps& steps = Steps();
    // Pixels that lie in the widget in part only.
    if (toDevice.m11() != std::floor(toDevice.m11())) painter.fillRect(rect(), ground);
    UseDevicePixels(painter);
    const QTransform toPixels = toDevice * painter.deviceTransform().inverted();
    const QRect all(QPoint(), DevicePixelsOf(*this).size());
    for (const QRect& part : event->region()) {
        const QRect pixels = toPixels.mapRect(QRectF(part)).toAlignedRect() & all;
        const gdi::Surface shown =
            steps.Shown(*surface_, {pixels.x(), pixels.y(), pixels.width(), pixels.height()},
                        desktop::ToColorRef(ground));
        painter.drawImage(pixels.topLeft(), desktop::ToImage(shown, shown.Bounds()));
    }
}

QPoint SurfaceWidget::PixelAt(QPointF unit) const {
    const gdi::Point pixel = Steps().At(DevicePixelAt(*this, unit));
    return {pixel.x, pixel.y};
}

QPoint SurfaceWidget::PointerAt() const {
    const QPoint rounded = mapFromGlobal(QCursor::pos());
    return rounded == lastRounded_ ? lastPoint_ : PixelAt(rounded);
}

void SurfaceWidget::mousePressEvent(QMouseEvent* event) {
    doubleClicked_ = Qt::NoButton;
    if (!mouseIgnored_ && onMouseDown) onMouseDown(event->button(), PixelAt(ExactPoint(*event)));
}

// The second press of a quick pair is a press like any other.
void SurfaceWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    doubleClicked_ = event->button();
}

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event) {
    lastPoint_ = PixelAt(ExactPoint(*event));
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
        onMouseUp(event->button(), PixelAt(ExactPoint(*event)));
    }
}

}  // namespace kestrel::widgets
