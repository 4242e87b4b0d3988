#include "windows/widgets/FocusMark.h"

#include <QPalette>
#include <algorithm>
#include <cmath>

namespace kestrel::widgets {

namespace {

// Filled: a pen may leave out a side where a unit is no whole number of pixels.
void DrawRing(QPainter& painter, const QRect& outside, int width, const QColor& color) {
    const QRect inside = outside.adjusted(width, width, -width, -width);
    for (const QRect& side : QRegion(outside) - inside)
        painter.fillRect(side, color);
}

}  // namespace

void DrawFocusMark(QPainter& painter, const QRectF& place, MarkGround ground,
                   const QPalette& palette) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF exact = toDevice.mapRect(place);
    const QPoint leftTop = exact.topLeft().toPoint();
    const QPoint end = exact.bottomRight().toPoint();
    const QRect pixels(leftTop, QSize(end.x() - leftTop.x(), end.y() - leftTop.y()));
    const qreal scale = toDevice.m11();
    const int line = std::max(1, static_cast<int>(scale));

    painter.save();
    painter.setTransform(painter.worldTransform() * toDevice.inverted());
    const QColor color = palette.color(QPalette::Highlight);
    if (ground == MarkGround::Window) {
        DrawRing(painter, pixels, line, color);
    } else {
        const int wide = static_cast<int>(std::lround(2 * scale));
        DrawRing(painter, pixels, wide, color);
        DrawRing(painter, pixels.adjusted(wide, wide, -wide, -wide), line,
                 palette.color(QPalette::Window));
    }
    painter.restore();
}

}  // namespace kestrel::widgets
