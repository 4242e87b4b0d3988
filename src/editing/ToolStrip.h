#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::editing {

// Pixels along each side of a tool's glyph.
inline constexpr int kGlyphSize = 16;

// The glyphs of the tools in one strip of 224 x 32 pixels: 14 slots side by side, of which the
// tools take the first 12. The upper half are AND masks, the lower half XOR images.
gdi::Surface ToolStrip();

}  // namespace kestrel::editing
