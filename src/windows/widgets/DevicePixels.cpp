#include "windows/widgets/DevicePixels.h"

#include <QRegion>
#include <algorithm>
#include <cmath>

namespace kestrel::widgets {

namespace {

// A painter that counts the pixels of its device, and gives back what it was.
class DevicePainting {
  public:
    explicit DevicePainting(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setTransform(painter_.deviceTransform().inverted() * painter_.worldTransform());
    }
    DevicePainting(const DevicePainting&) = delete;
    DevicePainting& operator=(const DevicePainting&) = delete;
    ~DevicePainting() { painter_.restore(); }

  private:
    QPainter& painter_;
};

}  // namespace

QRect DevicePixelsOf(const QWidget& widget) {
    const qreal scale = widget.devicePixelRatioF();
    const QPoint from = widget.mapTo(widget.window(), QPoint());
    const QPoint end = from + QPoint(widget.width(), widget.height());
    const auto first = [&](int unit) {
        return static_cast<int>(std::ceil(unit * scale - kPointError));
    };
    const auto last = [&](int unit) {
        return static_cast<int>(std::floor(unit * scale + kPointError));
    };
    return {first(from.x()), first(from.y()), last(end.x()) - first(from.x()),
            last(end.y()) - first(from.y())};
}

gdi::Point DevicePixelAt(const QWidget& widget, QPointF unit) {
    const QPointF pixel =
        (unit + widget.mapTo(widget.window(), QPoint())) * widget.devicePixelRatioF();
    const QPoint first = DevicePixelsOf(widget).topLeft();
    return {static_cast<int>(std::floor(pixel.x() + kPointError)) - first.x(),
            static_cast<int>(std::floor(pixel.y() + kPointError)) - first.y()};
}

void UseDevicePixels(QPainter& painter) {
    const QTransform toDevice = painter.deviceTransform();
    painter.setTransform(QTransform::fromTranslate(std::ceil(toDevice.dx() - kPointError),
                                                   std::ceil(toDevice.dy() - kPointError)) *
                         toDevice.inverted() * painter.worldTransform());
}

QRect InDevicePixels(const QPainter& painter, const QRect& place) {
    const QRectF exact = painter.deviceTransform().mapRect(QRectF(place));
    const QPoint leftTop = exact.topLeft().toPoint();
    const QPoint end = exact.bottomRight().toPoint();
    return {leftTop, QSize(end.x() - leftTop.x(), end.y() - leftTop.y())};
}

void DrawSharp(QPainter& painter, const QRect& place, const QImage& picture) {
    const QRect pixels = InDevicePixels(painter, place);
    const int times =
        std::max(1, std::min(pixels.width() / picture.width(), pixels.height() / picture.height()));
    QRect target(QPoint(), picture.size() * times);
    target.moveCenter(pixels.center());
    const DevicePainting device(painter);
    painter.drawImage(target, picture);
}

void DrawUnscaled(QPainter& painter, QPoint leftTop, const QImage& picture) {
    const QPoint corner = InDevicePixels(painter, {leftTop, QSize()}).topLeft();
    const DevicePainting device(painter);
    painter.drawImage(QRect(corner, picture.size()), picture);
}

// Filled: a pen may leave out a side where a unit is no whole number of pixels.
void DrawOutline(QPainter& painter, const QRect& place, const QColor& color) {
    const QRect outside = InDevicePixels(painter, place);
    const int width = std::max(1, static_cast<int>(std::lround(painter.deviceTransform().m11())));
    const DevicePainting device(painter);
    for (const QRect& side : QRegion(outside) - outside.adjusted(width, width, -width, -width))
        painter.fillRect(side, color);
}

}  // namespace kestrel::widgets
