#include "editing/Pencil.h"

namespace kestrel::editing {

void Pencil::Paint(Button button, int cx, int cy) {
    if (wells_.IsTransparent(button)) {
        canvas_.PaintCellTransparent(cx, cy);
    } else {
        canvas_.PaintCell(cx, cy, canvas_.PicMain.state.foreColor);
    }
}

}  // namespace kestrel::editing
