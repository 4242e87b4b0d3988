#include "desktop/ScreenPixels.h"

#include "desktop/XConnection.h"

namespace kestrel::desktop {

gdi::Rect PixelsOf(const QScreen& monitor) {
    return PixelsOf(monitor, monitor.geometry());
}

// A monitor's corner is in pixels already, whatever its scale.
gdi::Rect PixelsOf(const QScreen& monitor, const QRect& place) {
    const double scale = XConnection() == nullptr ? 1 : monitor.devicePixelRatio();
    const QPoint corner = monitor.geometry().topLeft();
    const QPoint from = place.topLeft() - corner;
    return {corner.x() + qRound(from.x() * scale), corner.y() + qRound(from.y() * scale),
            qRound(place.width() * scale), qRound(place.height() * scale)};
}

}  // namespace kestrel::desktop
