#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::gdi {

// How a source pixel S meets a target pixel D: S, D & S, D ^ S.
enum class RasterOp { Copy, And, Xor };

// Copies a width x height block of `source` at (sourceX, sourceY) onto `target` at (x, y). Parts
// outside either surface are left out. `source` may be `target` itself; the block then arrives as
// it was before the call.
void BitBlt(Surface& target, int x, int y, int width, int height, const Surface& source,
            int sourceX, int sourceY, RasterOp op);

// Stretches the `from` part of `source` over the `to` part of `target` by repeating or dropping
// pixels: target pixel i reads source pixel floor(i * from.width / to.width). Never blends. Parts
// outside either surface are left out; empty rectangles draw nothing.
void StretchBlt(Surface& target, Rect to, const Surface& source, Rect from, RasterOp op);

// Fills the part of `area` that lies inside with one colour, whatever the drawing state.
void PatBlt(Surface& target, Rect area, COLORREF color);

}  // namespace kestrel::gdi
