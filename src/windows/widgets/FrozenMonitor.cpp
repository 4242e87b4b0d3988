#include "windows/widgets/FrozenMonitor.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "desktop/Pictures.h"
#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "windows/widgets/DevicePixels.h"

namespace kestrel::widgets {

namespace {

// The whole numbers around a rectangle.
gdi::Rect Around(const QRectF& area) {
    const QRect whole = area.toAlignedRect();
    return {whole.x(), whole.y(), whole.width(), whole.height()};
}

}  // namespace

FrozenMonitor::FrozenMonitor(const tools::Capture& capture, gdi::Rect part, QScreen* monitor)
    : capture_(capture), part_(part), monitor_(monitor) {
    setWindowTitle(desktop::ToText(i18n::kCaptureTitle.Now()));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMouseTracking(true);
    // The frame is the pointer.
    setCursor(Qt::BlankCursor);
}

// A window manager would keep the window off its panels, and move it.
void FrozenMonitor::CoverUnmanaged() {
    setWindowFlags(Qt::Window | Qt::X11BypassWindowManagerHint);
    PutOnMonitor();
    show();
    raise();
    activateWindow();
    windowHandle()->installEventFilter(this);
}

void FrozenMonitor::CoverManaged() {
    PutOnMonitor();
    showFullScreen();
    activateWindow();
}

void FrozenMonitor::PutOnMonitor() {
    setScreen(monitor_);
    // A unit more each way covers what a scale that is no whole number leaves.
    setGeometry(monitor_->geometry().adjusted(0, 0, 1, 1));
}

double FrozenMonitor::Pixels() const {
    const double pixels = double{1} * part_.width / monitor_->geometry().width();
    // The width was rounded, the scale was not.
    const bool pixelOnPixel =
        std::abs(pixels - devicePixelRatioF()) * monitor_->geometry().width() < 2;
    return pixelOnPixel ? devicePixelRatioF() : pixels;
}

void FrozenMonitor::Repaint(gdi::Rect area) {
    const double pixels = Pixels();
    const gdi::Rect units =
        Around({(area.left - part_.left) / pixels, (area.top - part_.top) / pixels,
                area.width / pixels, area.height / pixels});
    // The desktop library rounds once more before it hands on what was painted.
    update(units.left - 1, units.top - 1, units.width + 2, units.height + 2);
}

// In strips that stay in the processor's cache, and for which no memory is mapped.
void FrozenMonitor::paintEvent(QPaintEvent* event) {
    constexpr int kStrip = 16;
    const double pixels = Pixels();
    QPainter painter(this);
    painter.scale(1 / pixels, 1 / pixels);
    for (const QRect& units : event->region()) {
        const gdi::Rect area = Around({units.x() * pixels, units.y() * pixels,
                                       units.width() * pixels, units.height() * pixels});
        for (int y = 0; y < area.height; y += kStrip) {
            const gdi::Surface strip =
                capture_.Shown({area.left + part_.left, area.top + y + part_.top, area.width,
                                std::min(kStrip, area.height - y)});
            painter.drawImage(QPoint(area.left, area.top + y),
                              desktop::ToImage(strip, strip.Bounds()));
        }
    }
}

// The desktop library rounds points to units; those in the scene are exact. Where the pointer has
// not moved, keys may have moved the square since.
void FrozenMonitor::PointAt(QPointF unit) {
    if (unit == pointer_) return;
    pointer_ = unit;
    const double pixels = Pixels();
    onPointer({part_.left + static_cast<int>(std::floor((unit.x() + kPointError) * pixels)),
               part_.top + static_cast<int>(std::floor((unit.y() + kPointError) * pixels))});
}

void FrozenMonitor::enterEvent(QEnterEvent* event) {
    PointAt(event->scenePosition());
}

// The button that began a drag in the main window may come up here: that is no click.
void FrozenMonitor::mousePressEvent(QMouseEvent* event) {
    pressed_ = true;
    PointAt(event->scenePosition());
}

void FrozenMonitor::mouseMoveEvent(QMouseEvent* event) {
    PointAt(event->scenePosition());
}

void FrozenMonitor::mouseReleaseEvent(QMouseEvent* event) {
    PointAt(event->scenePosition());
    if (pressed_) onClick();
}

void FrozenMonitor::keyPressEvent(QKeyEvent* event) {
    onKey(event->key());
}

void FrozenMonitor::closeEvent(QCloseEvent* /*event*/) {
    onGone();
}

bool FrozenMonitor::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Expose && !windowHandle()->isExposed()) onGone();
    return QWidget::eventFilter(object, event);
}

}  // namespace kestrel::widgets
