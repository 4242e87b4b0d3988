#include "windows/widgets/DevicePixelView.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/Pictures.h"
#include "windows/widgets/AccessibleRole.h"

namespace kestrel::widgets {

namespace {

constexpr int kRowsAtATime = 16;

// The whole pixels between two points of one axis, in units of a window of this scale.
int PixelsBetween(int start, int end, qreal scale) {
    return static_cast<int>(std::floor(end * scale) - std::ceil(start * scale));
}

}  // namespace

DevicePixelView::DevicePixelView(DrawRows drawRows, QWidget* parent)
    : QWidget(parent), drawRows_(std::move(drawRows)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    SetRole(*this, QAccessible::Graphic);
}

gdi::Size DevicePixelView::SizeInPixels() const {
    const qreal scale = devicePixelRatioF();
    const QPoint from = mapTo(window(), QPoint());
    return {PixelsBetween(from.x(), from.x() + width(), scale),
            PixelsBetween(from.y(), from.y() + height(), scale)};
}

void DevicePixelView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QTransform toDevice = painter.deviceTransform();
    const auto [width, height] = SizeInPixels();
    // Pixels that lie in the widget in part only.
    if (toDevice.mapRect(QRectF(rect())).size() != QSizeF(width, height)) {
        painter.fillRect(rect(), palette().color(QPalette::Window));
    }
    painter.setTransform(
        QTransform::fromTranslate(std::ceil(toDevice.dx()), std::ceil(toDevice.dy())) *
        toDevice.inverted());
    gdi::Surface rows(width, kRowsAtATime);
    for (int top = 0; top < height; top += kRowsAtATime) {
        const int count = std::min(kRowsAtATime, height - top);
        drawRows_(rows, top);
        painter.drawImage(0, top, desktop::ToImage(rows, {0, 0, width, count}));
    }
}

}  // namespace kestrel::widgets
