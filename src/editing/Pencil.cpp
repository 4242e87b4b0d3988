#include "editing/Pencil.h"

#include "document/GridCoordinates.h"

namespace kestrel::editing {

void Pencil::Press(Button button, int x, int y) {
    history_.ClearRedoList();
    Move(button, x, y);
}

void Pencil::Move(Button button, int x, int y) {
    // The outer grid lines on the left and top belong to no cell.
    if (x < 1 || y < 1) return;
    const int cx = document::CellOf(x);
    const int cy = document::CellOf(y);
    if (wells_.IsTransparent(button)) {
        canvas_.PaintCellTransparent(cx, cy);
    } else {
        canvas_.PaintCell(cx, cy, canvas_.PicMain.state.foreColor);
    }
}

}  // namespace kestrel::editing
