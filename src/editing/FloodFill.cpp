#include "editing/FloodFill.h"

#include "document/GridCoordinates.h"
#include "platform/gdi/Draw.h"

namespace kestrel::editing {

Outcome FloodFill::Release(Button /*button*/, int x, int y) {
    if (!document::IsInIcon(x, y)) return Outcome::Nothing;
    Fill(document::CellOf(x), document::CellOf(y), parts_.canvas.PicMain.state.foreColor);
    return Outcome::Nothing;
}

// The icon is flooded twice, on the window's colour and on white. A pixel is in the area when it
// has the fill colour on both: so a transparent area ends at opaque pixels that look like one of
// the grounds.
void FloodFill::Fill(int cx, int cy, gdi::COLORREF color) {
    IconEdit edit(parts_, Leaves::Entry);
    gdi::IconPlanes& icon = edit.Planes();
    gdi::Surface onWindow = parts_.canvas.PicIcon;
    gdi::Surface onWhite(gdi::kIconSize, gdi::kIconSize, gdi::kWhite);
    gdi::DrawOver(onWhite, onWhite.Bounds(), icon);
    for (gdi::Surface* picture : {&onWindow, &onWhite}) {
        gdi::FloodFillSurface(*picture, cx, cy, picture->GetPixel(cx, cy), color);
    }
    const gdi::COLORREF seedMask = icon.mask.GetPixel(cx, cy);
    for (int y = 0; y < gdi::kIconSize; ++y) {
        for (int x = 0; x < gdi::kIconSize; ++x) {
            if (onWhite.GetPixel(x, y) == color && onWindow.GetPixel(x, y) == color &&
                icon.mask.GetPixel(x, y) == seedMask) {
                icon.SetOpaque(x, y, color);
            }
        }
    }
}

}  // namespace kestrel::editing
