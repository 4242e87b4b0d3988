#include "editing/FreehandTool.h"

#include "document/GridCoordinates.h"

namespace kestrel::editing {

void FreehandTool::Press(Button button, int x, int y) {
    edit_.emplace(parts_, Leaves::Entry);
    Move(button, x, y);
}

void FreehandTool::Move(Button button, int x, int y) {
    // The outer grid lines on the left and top belong to no cell.
    if (x < 1 || y < 1 || !edit_) return;
    Paint(*edit_, button, document::CellOf(x), document::CellOf(y));
}

Outcome FreehandTool::Release(Button /*button*/, int /*x*/, int /*y*/) {
    edit_.reset();
    return Outcome::Nothing;
}

}  // namespace kestrel::editing
