#pragma once

#include <QPainter>

namespace kestrel::widgets {

// What a focus mark stands on: the window's own colour, or any colour, where it is twice as wide
// and has a line in the window's colour within.
enum class MarkGround { Window, AnyColor };

// Draws the sign of the keyboard along the inside of a place, in the desktop's own colour and in
// whole device pixels. Coordinates are the painter's.
void DrawFocusMark(QPainter& painter, const QRectF& place, MarkGround ground,
                   const QPalette& palette);

}  // namespace kestrel::widgets
