#pragma once

#include <QMouseEvent>
#include <cmath>

namespace kestrel::widgets {

// The unit of the widget on which a mouse event took place; left of or above the widget it is
// negative. The desktop library rounds an event's point to the nearest unit, so that half of the
// device pixels of a scaled desktop would belong to a neighbour; its point in the window is exact.
inline QPoint UnitOf(const QMouseEvent& event) {
    QPointF point = event.position();
    if (point == point.toPoint()) point += event.scenePosition() - event.scenePosition().toPoint();
    return {static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y()))};
}

}  // namespace kestrel::widgets
