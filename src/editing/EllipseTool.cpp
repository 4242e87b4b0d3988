#include "editing/EllipseTool.h"

#include <algorithm>

#include "platform/gdi/Draw.h"

namespace kestrel::editing {

void EllipseTool::DrawRubberBand(gdi::Surface& grid, const Corners& band) const {
    gdi::Ellipse(grid, band.x1, band.y1, band.x2, band.y2);
}

void EllipseTool::Draw(gdi::Surface& plane, const Corners& cells, ShapeColors colors) const {
    const gdi::DrawState before = plane.state;
    plane.state.foreColor = colors.own;
    plane.state.fillColor = interior_ == Interior::Filled ? colors.other : colors.own;
    plane.state.fillStyle =
        interior_ == Interior::Plain ? gdi::FillStyle::Transparent : gdi::FillStyle::Solid;
    const auto [left, right] = std::minmax(cells.x1, cells.x2);
    const auto [top, bottom] = std::minmax(cells.y1, cells.y2);
    // The last column and row of an ellipse's box are left out.
    gdi::Ellipse(plane, left, top, right + 1, bottom + 1);
    plane.state = before;
}

}  // namespace kestrel::editing
