#pragma once

#include <QImage>
#include <QPainter>
#include <QWidget>

#include "platform/gdi/Surface.h"

namespace kestrel::widgets {

// Points come with errors of rounding, on Wayland cut to 256ths of a unit: a pixel's edge must not
// fall to its neighbour.
inline constexpr qreal kPointError = 1.0 / 256;

// The pixels of the screen that lie wholly within a widget; points are those of its window.
QRect DevicePixelsOf(const QWidget& widget);

// The pixel, counted in the widget from the first of them, at a point in the widget's units.
gdi::Point DevicePixelAt(const QWidget& widget, QPointF unit);

// From now on the painter's unit is a pixel of the screen, and the first that lies wholly right of
// and below its present origin is the new one.
void UseDevicePixels(QPainter& painter);

// What a place covers on the screen, rounded to whole pixels, for a painter that uses those of the
// device from the first one on.
QRect InDevicePixels(const QPainter& painter, const QRect& place);

// Draws a picture in the middle of a place, each of its pixels as a square of whole pixels of the
// screen, as large as the place allows.
void DrawSharp(QPainter& painter, const QRect& place, const QImage& picture);

// Draws a picture whose pixels are those of the device, with its corner nearest to a point.
void DrawUnscaled(QPainter& painter, QPoint leftTop, const QImage& picture);

// Draws the outline of a place along its inside, as wide as a unit is in whole pixels.
void DrawOutline(QPainter& painter, const QRect& place, const QColor& color);

}  // namespace kestrel::widgets
