#include "editing/FreehandTool.h"

#include "document/GridCoordinates.h"

namespace kestrel::editing {

void FreehandTool::Press(Button button, int x, int y) {
    history_.ClearRedoList();
    Move(button, x, y);
}

void FreehandTool::Move(Button button, int x, int y) {
    // The outer grid lines on the left and top belong to no cell.
    if (x < 1 || y < 1) return;
    Paint(button, document::CellOf(x), document::CellOf(y));
}

}  // namespace kestrel::editing
