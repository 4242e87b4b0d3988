#include "editing/ShapeTool.h"

#include <algorithm>

#include "document/GridCoordinates.h"

namespace kestrel::editing {

void ShapeTool::Press(Button /*button*/, int x, int y) {
    edit_.emplace(parts_, Leaves::Entry);
    document::CellCentre(x, y);
    band_ = {x, y, x, y};
    InvertRubberBand();
}

void ShapeTool::Move(Button /*button*/, int x, int y) {
    document::CellCentre(x, y);
    if (x == band_.x2 && y == band_.y2) return;
    InvertRubberBand();
    band_.x2 = x;
    band_.y2 = y;
    InvertRubberBand();
}

Outcome ShapeTool::Release(Button button, int x, int y) {
    Move(button, x, y);
    InvertRubberBand();
    using document::CellOf;
    const Corners cells{CellOf(band_.x1), CellOf(band_.y1), CellOf(band_.x2), CellOf(band_.y2)};
    gdi::IconPlanes& icon = edit_->Planes();
    Draw(icon.mask, cells, {gdi::kBlack, gdi::kBlack});
    Draw(icon.image, cells,
         {parts_.canvas.PicMain.state.foreColor, wells_.PenColor(Other(button))});
    edit_.reset();
    return Outcome::Nothing;
}

void ShapeTool::InvertRubberBand() {
    gdi::DrawState& state = parts_.canvas.PicMain.state;
    state.drawMode = gdi::DrawMode::Invert;
    DrawRubberBand(parts_.canvas.PicMain, band_);
    state.drawMode = gdi::DrawMode::CopyPen;
    const auto [left, right] = std::minmax(band_.x1, band_.x2);
    const auto [top, bottom] = std::minmax(band_.y1, band_.y2);
    grid_.RepaintGrid({left, top, right - left + 1, bottom - top + 1});
}

}  // namespace kestrel::editing
