#include "editing/RectangleTool.h"

#include "platform/gdi/Draw.h"

namespace kestrel::editing {

void RectangleTool::DrawRubberBand(gdi::Surface& grid, const Corners& band) const {
    gdi::DrawBox(grid, band.x1, band.y1, band.x2, band.y2, gdi::kBlack);
}

void RectangleTool::Draw(gdi::Surface& plane, const Corners& cells, ShapeColors colors) const {
    const auto [x1, y1, x2, y2] = cells;
    if (interior_ != Interior::Plain) {
        const bool solid = interior_ == Interior::Solid;
        gdi::FillBox(plane, x1, y1, x2, y2, solid ? colors.own : colors.other);
    }
    gdi::DrawBox(plane, x1, y1, x2, y2, colors.own);
}

}  // namespace kestrel::editing
