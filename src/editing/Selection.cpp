#include "editing/Selection.h"

#include <cstdint>
#include <limits>
#include <utility>

#include "document/GridCoordinates.h"
#include "platform/gdi/Blit.h"
#include "platform/gdi/Draw.h"

namespace kestrel::editing {

namespace {

using document::CellOf;
using document::kCellSize;
using document::kGridSize;
using gdi::RasterOp;

// Grid coordinates are 16-bit values.
bool IsGridCoordinate(int v) {
    using Limits = std::numeric_limits<std::int16_t>;
    return v >= Limits::min() && v <= Limits::max();
}

}  // namespace

Selection::Selection(const EditParts& parts, GridView& grid) : parts_(parts), grid_(grid) {
    parts_.canvas.SetOverlay(*this);
}

void Selection::BeginMarquee(int x, int y) {
    DropSelection();
    document::SnapToNearestLine(x, y);
    document::ClampToGrid(x, y);
    marquee_ = {x, y, x, y};
    Enter(State::Drawing);
}

void Selection::StretchMarquee(int x, int y) {
    document::SnapToCell(x, y);
    document::ClampToGrid(x, y);
    if (state_ != State::Drawing || (x == marquee_.x2 && y == marquee_.y2)) return;
    InvertMarquee();
    marquee_.x2 = x;
    marquee_.y2 = y;
    InvertMarquee();
}

void Selection::EndMarquee() {
    if (state_ != State::Drawing) return;
    Enter(State::None);
    auto& [x1, y1, x2, y2] = marquee_;
    if (x1 > x2) document::SwapInt(x1, x2);
    if (y1 > y2) document::SwapInt(y1, y2);
    if (x1 != x2 && y1 != y2) Mark();
    parts_.window.RefreshEditCommands();
}

void Selection::MarkAll() {
    marquee_ = {0, 0, kGridSize, kGridSize};
    Mark();
}

void Selection::Mark() {
    CopyAreaToSelection();
    Enter(State::Marked);
}

void Selection::BeginMove(int x, int y) {
    if (SelectionMarked()) LiftSelection();
    // To the cell, so that a press alone moves nothing.
    document::SnapToCell(x, y);
    grip_ = {x - marquee_.x1, y - marquee_.y1};
    Enter(State::Moving);
}

void Selection::MoveTo(int x, int y) {
    document::SnapToCell(x, y);
    if (MovingSelection() && PlaceAt(x - grip_.x, y - grip_.y)) ShowFloatingSelection();
}

void Selection::EndMove() {
    if (!MovingSelection()) return;
    const EditSteps::Step step(parts_.steps);
    Enter(State::Floating);
    parts_.document.Modified = true;
}

void Selection::MoveBy(int columns, int rows) {
    if (!Exists()) return;
    const EditSteps::Step step(parts_.steps);
    if (SelectionMarked()) LiftSelection();
    PlaceAt(marquee_.x1 + columns * kCellSize, marquee_.y1 + rows * kCellSize);
    ShowFloatingSelection();
}

bool Selection::PlaceAt(int x1, int y1) {
    const Corners place{x1, y1, x1 + marquee_.x2 - marquee_.x1, y1 + marquee_.y2 - marquee_.y1};
    for (const int v : {place.x1, place.y1, place.x2, place.y2}) {
        if (!IsGridCoordinate(v)) return false;
    }
    return std::exchange(marquee_, place) != place;
}

void Selection::LiftSelection() {
    Enter(State::Floating);
    IconEdit(parts_, Leaves::NoEntry).Planes().Erase(Cells());
    parts_.window.RefreshEditCommands();
}

void Selection::Float(gdi::IconPlanes planes, GridPoint leftTop) {
    const EditSteps::Step step(parts_.steps);
    marquee_ = {leftTop.x, leftTop.y, leftTop.x, leftTop.y};
    Enter(State::Floating);
    planes_ = std::move(planes);
    ShowChanged();
    parts_.window.RefreshEditCommands();
}

void Selection::ShowChanged() {
    if (SelectionFloating()) {
        marquee_.x2 = marquee_.x1 + planes_.Width() * kCellSize;
        marquee_.y2 = marquee_.y1 + planes_.Height() * kCellSize;
        ShowFloatingSelection();
    } else if (SelectionMarked()) {
        StampSelection();
    }
}

void Selection::DropSelection() {
    if (!Exists()) return;
    const bool floating = SelectionFloating();
    EraseMarquee();
    if (floating) CompositeSelection();
    parts_.window.RefreshEditCommands();
}

void Selection::Delete() {
    if (!Exists()) return;
    const gdi::Rect cells = SelectionMarked() ? Cells() : gdi::Rect{};
    EraseMarquee();
    IconEdit(parts_, Leaves::Entry).Planes().Erase(cells);
}

void Selection::Forget() {
    state_ = State::None;
    ShowMoveCursor(false);
}

void Selection::CopyAreaToSelection() {
    const gdi::Rect area = Cells();
    planes_ = gdi::IconPlanes(area.width, area.height);
    const auto copy = [&](gdi::Surface& to, const gdi::Surface& from) {
        gdi::BitBlt(to, 0, 0, area.width, area.height, from, area.left, area.top, RasterOp::Copy);
    };
    copy(planes_.image, parts_.document.PicImage());
    copy(planes_.mask, parts_.document.PicMask());
}

void Selection::CompositeSelection() {
    CompositeOver(IconEdit(parts_, Leaves::Entry).Planes());
}

void Selection::CompositeOver(gdi::IconPlanes& icon) const {
    const gdi::Rect cells = Cells();
    gdi::DrawOver(icon.image, cells, planes_);
    gdi::StretchBlt(icon.mask, cells, planes_.mask, planes_.Bounds(), RasterOp::And);
}

void Selection::ShowFloatingSelection() {
    parts_.canvas.ShowGrid();
    parts_.canvas.PreviewIcon();
    parts_.document.Modified = true;
}

void Selection::StampSelection() {
    const gdi::Rect cells = Cells();
    IconEdit edit(parts_, Leaves::NoEntry);
    gdi::StretchBlt(edit.Planes().mask, cells, planes_.mask, planes_.Bounds(), RasterOp::Copy);
    gdi::StretchBlt(edit.Planes().image, cells, planes_.image, planes_.Bounds(), RasterOp::Copy);
}

void Selection::UpdateMoveCursor(int x, int y) {
    const auto& [x1, y1, x2, y2] = marquee_;
    const bool inside = x >= x1 && x <= x2 && y >= y1 && y <= y2;
    ShowMoveCursor(MovingSelection() || (Exists() && inside));
}

void Selection::ShowMoveCursor(bool shown) {
    if (std::exchange(moveCursor_, shown) == shown) return;
    grid_.SetGridCursor(shown ? GridCursor::Move : GridCursor::Cross);
}

gdi::Rect Selection::Cells() const {
    const int left = CellOf(marquee_.x1);
    const int top = CellOf(marquee_.y1);
    return {left, top, CellOf(marquee_.x2) - left, CellOf(marquee_.y2) - top};
}

void Selection::DrawUnderLines(gdi::Surface& grid) const {
    if (!SelectionFloating()) return;
    const auto& [x1, y1, x2, y2] = marquee_;
    gdi::DrawOver(grid, {x1, y1, x2 - x1, y2 - y1}, planes_);
}

void Selection::DrawOverLines(gdi::Surface& grid) const {
    if (MarqueeIsShown()) DrawMarquee(grid);
}

void Selection::DrawOnPreview(gdi::Surface& preview) const {
    if (SelectionFloating()) gdi::DrawOver(preview, Cells(), planes_);
}

void Selection::DrawMarquee(gdi::Surface& grid) const {
    const gdi::DrawState before = grid.state;
    grid.state.drawMode = gdi::DrawMode::Invert;
    grid.state.lineStyle = gdi::LineStyle::Dot;
    gdi::DrawBox(grid, marquee_.x1, marquee_.y1, marquee_.x2, marquee_.y2, gdi::kBlack);
    grid.state = before;
}

// Inverted twice, the grid is as it was.
void Selection::InvertMarquee() {
    DrawMarquee(parts_.canvas.PicMain);
    grid_.RepaintGrid(parts_.canvas.PicMain.Bounds());
}

void Selection::Enter(State next) {
    const bool wasShown = MarqueeIsShown();
    state_ = next;
    if (MarqueeIsShown() != wasShown) InvertMarquee();
}

void Selection::EraseMarquee() {
    Enter(State::None);
    Forget();
}

}  // namespace kestrel::editing
