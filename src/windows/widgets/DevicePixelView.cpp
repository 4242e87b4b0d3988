#include "windows/widgets/DevicePixelView.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/Pictures.h"
#include "windows/widgets/AccessibleRole.h"
#include "windows/widgets/DevicePixels.h"

namespace kestrel::widgets {

namespace {

constexpr int kRowsAtATime = 16;

}  // namespace

DevicePixelView::DevicePixelView(DrawRows drawRows, QWidget* parent)
    : QWidget(parent), drawRows_(std::move(drawRows)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    SetRole(*this, QAccessible::Graphic);
}

gdi::Size DevicePixelView::SizeInPixels() const {
    const QSize size = DevicePixelsOf(*this).size();
    return {size.width(), size.height()};
}

void DevicePixelView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QTransform toDevice = painter.deviceTransform();
    const auto [width, height] = SizeInPixels();
    // Pixels that lie in the widget in part only.
    if (toDevice.mapRect(QRectF(rect())).size() != QSizeF(width, height)) {
        painter.fillRect(rect(), palette().color(QPalette::Window));
    }
    UseDevicePixels(painter);
    gdi::Surface rows(width, kRowsAtATime);
    for (int top = 0; top < height; top += kRowsAtATime) {
        const int count = std::min(kRowsAtATime, height - top);
        drawRows_(rows, top);
        painter.drawImage(0, top, desktop::ToImage(rows, {0, 0, width, count}));
    }
}

}  // namespace kestrel::widgets
