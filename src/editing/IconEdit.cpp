#include "editing/IconEdit.h"

namespace kestrel::editing {

void Record(const EditParts& parts) {
    parts.history.PushUndoSnapshot();
    parts.window.RefreshEditCommands();
}

IconEdit::IconEdit(const EditParts& parts, Leaves leaves)
    : parts_(parts), step_(parts.steps), leaves_(leaves) {
    if (leaves_ == Leaves::Entry) parts_.history.ClearRedoList();
}

IconEdit::~IconEdit() {
    if (redraw_) parts_.canvas.RedrawAll();
    if (leaves_ == Leaves::OldestEntry) {
        parts_.history.ClearUndoHistory();
    } else {
        parts_.document.Modified = true;
    }
    if (leaves_ != Leaves::NoEntry) Record(parts_);
}

gdi::IconPlanes& IconEdit::Planes() {
    redraw_ = true;
    return parts_.document.ChangePlanes();
}

void IconEdit::PaintCell(int cx, int cy, gdi::COLORREF color) {
    parts_.document.ChangePlanes().SetOpaque(cx, cy, color);
    parts_.canvas.PaintCell(cx, cy, color);
}

void IconEdit::PaintCellTransparent(int cx, int cy) {
    parts_.document.ChangePlanes().SetTransparent(cx, cy);
    parts_.canvas.PaintCellTransparent(cx, cy);
}

}  // namespace kestrel::editing
