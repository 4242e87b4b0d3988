#include "editing/Pencil.h"

namespace kestrel::editing {

void Pencil::Paint(IconEdit& edit, Button button, int cx, int cy) {
    if (wells_.IsTransparent(button)) {
        edit.PaintCellTransparent(cx, cy);
    } else {
        edit.PaintCell(cx, cy, PenColor());
    }
}

}  // namespace kestrel::editing
