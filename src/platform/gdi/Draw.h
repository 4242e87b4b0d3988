#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::gdi {

// Coordinates may be any int; what lies outside the target is left out at no cost. Lines, boxes and
// ellipses obey the target's draw mode (copy or invert), and line and box outlines its line style
// (solid, or dotted: every second pixel along the outline, starting with the first, which in a box
// is the top left corner). An ellipse's outline is always solid. In invert mode each pixel of a
// figure is inverted exactly once, so drawing it again restores the target. Sunken edges and
// floods paint their colours whatever the drawing state.

// A Bresenham line from (x1, y1) that leaves out its last point (x2, y2).
void DrawLine(Surface& target, int x1, int y1, int x2, int y2, COLORREF color);

// A one-pixel box outline, both corners included, in any order.
void DrawBox(Surface& target, int x1, int y1, int x2, int y2, COLORREF color);

// A filled box, both corners included, in any order.
void FillBox(Surface& target, int x1, int y1, int x2, int y2, COLORREF color);

// An ellipse inscribed in the box whose right and bottom edges are excluded (edges in any order),
// outlined with the target's fore colour, filled with its fill colour when its fill style is
// solid. Symmetric about both axes; the outline is 8-connected and one pixel wide, the filled form
// is exactly the outline and its inside.
void Ellipse(Surface& target, int left, int top, int right, int bottom);

// A one-pixel sunken edge just inside the rectangle (right and bottom excluded): shadow along the
// left and top, highlight along the right and bottom, whose line also has the two shared corners.
void DrawSunkenEdge(Surface& target, int left, int top, int right, int bottom);

// Paints the 4-connected area of pixels that have the colour `surfaceColor` and hang together with
// (x, y). Nothing happens when the start has another colour or lies outside.
void FloodFillSurface(Surface& target, int x, int y, COLORREF surfaceColor, COLORREF fill);

}  // namespace kestrel::gdi
