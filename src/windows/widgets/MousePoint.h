#pragma once

#include <QMouseEvent>
#include <cmath>

namespace kestrel::widgets {

// Where in the widget a mouse event took place. The desktop library rounds an event's point to the
// nearest unit, so that half of the device pixels of a scaled desktop would belong to a neighbour;
// its point in the window is exact.
inline QPointF ExactPoint(const QMouseEvent& event) {
    const QPointF point = event.position();
    if (point != point.toPoint()) return point;
    return point + event.scenePosition() - event.scenePosition().toPoint();
}

// The unit of the widget at that point; left of or above the widget it is negative.
inline QPoint UnitOf(const QMouseEvent& event) {
    const QPointF point = ExactPoint(event);
    return {static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y()))};
}

}  // namespace kestrel::widgets
