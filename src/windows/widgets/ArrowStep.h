#pragma once

#include <QPoint>
#include <Qt>
#include <optional>

namespace kestrel::widgets {

// Where an arrow key leads, one step to the right or down counting positive; nothing for any other
// key.
inline std::optional<QPoint> ArrowStep(int key) {
    switch (key) {
        case Qt::Key_Left:
            return QPoint(-1, 0);
        case Qt::Key_Right:
            return QPoint(1, 0);
        case Qt::Key_Up:
            return QPoint(0, -1);
        case Qt::Key_Down:
            return QPoint(0, 1);
        default:
            return std::nullopt;
    }
}

}  // namespace kestrel::widgets
