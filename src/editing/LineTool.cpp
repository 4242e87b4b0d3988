#include "editing/LineTool.h"

#include "platform/gdi/Draw.h"

namespace kestrel::editing {

void LineTool::DrawRubberBand(gdi::Surface& grid, const Corners& band) const {
    gdi::DrawLine(grid, band.x1, band.y1, band.x2, band.y2, gdi::kBlack);
}

void LineTool::Draw(gdi::Surface& plane, const Corners& cells, ShapeColors colors) const {
    gdi::DrawLine(plane, cells.x1, cells.y1, cells.x2, cells.y2, colors.own);
    plane.SetPixel(cells.x2, cells.y2, colors.own);
}

}  // namespace kestrel::editing
