#include "editing/FloodFill.h"

#include "document/GridCoordinates.h"
#include "platform/gdi/Draw.h"

namespace kestrel::editing {

Outcome FloodFill::Release(Button /*button*/, int x, int y) {
    if (!document::IsInIcon(x, y)) return Outcome::Nothing;
    history_.ClearRedoList();
    Fill(document::CellOf(x), document::CellOf(y), canvas_.PicMain.state.foreColor);
    canvas_.PreviewIcon();
    canvas_.RebuildGrid();
    return Outcome::Changed;
}

// The icon is flooded twice, on the window's colour and on white. A pixel is in the area when it
// has the fill colour on both: so a transparent area ends at opaque pixels that look like one of
// the grounds.
void FloodFill::Fill(int cx, int cy, gdi::COLORREF color) {
    gdi::Surface onWindow = canvas_.PicIcon;
    gdi::Surface onWhite(document::kIconSize, document::kIconSize, gdi::kWhite);
    canvas_.DrawIconOver(onWhite);
    for (gdi::Surface* picture : {&onWindow, &onWhite}) {
        gdi::FloodFillSurface(*picture, cx, cy, picture->GetPixel(cx, cy), color);
    }
    const gdi::COLORREF seedMask = document_.PicMask.GetPixel(cx, cy);
    for (int y = 0; y < document::kIconSize; ++y) {
        for (int x = 0; x < document::kIconSize; ++x) {
            if (onWhite.GetPixel(x, y) == color && onWindow.GetPixel(x, y) == color &&
                document_.PicMask.GetPixel(x, y) == seedMask) {
                document_.PicMask.SetPixel(x, y, gdi::kBlack);
                document_.PicImage.SetPixel(x, y, color);
            }
        }
    }
}

}  // namespace kestrel::editing
