#include "editing/ToolStrip.h"

#include "platform/controls/ImageList.h"
#include "platform/gdi/Blit.h"
#include "resources/ImageList.h"
#include "resources/ToolStrip.h"

namespace kestrel::editing {

gdi::Surface ToolStrip() {
    constexpr int kSlots = 14;
    const controls::ImageList glyphs(resources::kToolStrip, resources::kImageListInks);
    gdi::Surface strip(kSlots * kGlyphSize, 2 * kGlyphSize, gdi::kWhite);
    gdi::PatBlt(strip, {0, kGlyphSize, strip.Width(), kGlyphSize}, gdi::kBlack);
    for (int slot = 0; slot < glyphs.Count(); ++slot) {
        const int x = slot * kGlyphSize;
        const gdi::IconPlanes glyph = glyphs.Picture(slot + 1);
        gdi::BitBlt(strip, x, 0, kGlyphSize, kGlyphSize, glyph.mask, 0, 0, gdi::RasterOp::Copy);
        gdi::BitBlt(strip, x, kGlyphSize, kGlyphSize, kGlyphSize, glyph.image, 0, 0,
                    gdi::RasterOp::Copy);
    }
    return strip;
}

}  // namespace kestrel::editing
