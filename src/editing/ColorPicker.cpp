#include "editing/ColorPicker.h"

#include "document/GridCoordinates.h"

namespace kestrel::editing {

Outcome ColorPicker::Release(Button button, int x, int y) {
    if (!document::IsInIcon(x, y)) return Outcome::HandBack;
    const int cx = document::CellOf(x);
    const int cy = document::CellOf(y);
    if (document_.IsTransparent(cx, cy)) {
        application_.Beep();
        wells_.SetTransparent(button);
    } else {
        wells_.SetPenColor(button, document_.PicImage().GetPixel(cx, cy));
    }
    return Outcome::HandBack;
}

}  // namespace kestrel::editing
