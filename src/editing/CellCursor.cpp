#include "editing/CellCursor.h"

#include <utility>

#include "document/GridCoordinates.h"

namespace kestrel::editing {

namespace {

using document::kCellSize;

HeldButtons Only(Button button) {
    return {button == Button::Left, button == Button::Right};
}

GridPoint CentreOf(GridPoint cell) {
    return {cell.x * kCellSize + kCellSize / 2, cell.y * kCellSize + kCellSize / 2};
}

// The grid lines of one axis between which two cells and those between them lie, from the first to
// the other.
std::pair<int, int> LinesAround(int from, int to) {
    const int first = to < from ? from + 1 : from;
    const int last = to < from ? to : to + 1;
    return {first * kCellSize, last * kCellSize};
}

}  // namespace

void CellCursor::MoveTo(GridPoint cell) {
    const bool stays = cell == std::exchange(cell_, cell);
    // A command may have ended the gesture while its key was still held.
    if (!editor_.IsInGesture()) held_ = Button::None;
    if (IsPressed() && sweeps_) {
        // As with a mouse, a press without a step marks nothing.
        if (!stays) Sweep();
        return;
    }
    const auto [x, y] = CentreOf(cell);
    editor_.PicMain_MouseMove(Only(held_), x, y);
}

void CellCursor::Press(Button button) {
    MoveTo(cell_);
    if (IsPressed()) return;
    sweeps_ = button == Button::Left && editor_.Tools().CurrentTool() == ToolId::Selection &&
              !editor_.Selected().HasMoveCursor();
    held_ = button;
    press_ = cell_;
    const auto [x, y] = CentreOf(cell_);
    editor_.PicMain_MouseDown(button, x, y);
}

void CellCursor::Release() {
    const Button held = std::exchange(held_, Button::None);
    if (held == Button::None || !editor_.IsInGesture()) return;
    if (sweeps_) return editor_.EndGesture();
    const auto [x, y] = CentreOf(cell_);
    editor_.PicMain_MouseUp(held, x, y);
}

// A marquee begins and ends at grid lines. So that the cells of both ends lie within, it begins
// anew at the side of its first cell that is away from the cursor.
void CellCursor::Sweep() {
    const auto [left, right] = LinesAround(press_.x, cell_.x);
    const auto [top, bottom] = LinesAround(press_.y, cell_.y);
    editor_.EndGesture();
    editor_.Selected().DropSelection();
    editor_.PicMain_MouseDown(held_, left, top);
    editor_.PicMain_MouseMove(Only(held_), right, bottom);
}

}  // namespace kestrel::editing
