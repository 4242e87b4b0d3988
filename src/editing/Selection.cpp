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

// (ground AND mask) XOR image, stretched over `to`.
void Compose(gdi::Surface& ground, gdi::Rect to, const gdi::Surface& mask,
             const gdi::Surface& image) {
    gdi::StretchBlt(ground, to, mask, mask.Bounds(), RasterOp::And);
    gdi::StretchBlt(ground, to, image, image.Bounds(), RasterOp::Xor);
}

}  // namespace

Selection::Selection(document::IconDocument& document, document::Canvas& canvas,
                     ModCollections& history, GridView& grid, EditorWindow& window)
    : document_(document), canvas_(canvas), history_(history), grid_(grid), window_(window) {
    canvas_.SetOverlay(*this);
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
    window_.RefreshEditCommands();
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
    Enter(State::Floating);
    document_.Modified = true;
}

void Selection::MoveBy(int columns, int rows) {
    if (!Exists()) return;
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
    canvas_.EraseAndRedraw(Cells());
    window_.RefreshEditCommands();
}

void Selection::Float(gdi::Surface mask, gdi::Surface image) {
    marquee_ = {};
    Enter(State::Floating);
    ReplacePlanes(std::move(mask), std::move(image));
    window_.RefreshEditCommands();
}

void Selection::ReplacePlanes(gdi::Surface mask, gdi::Surface image) {
    PicSelMask = std::move(mask);
    PicSelImage = std::move(image);
    marquee_.x2 = marquee_.x1 + PicSelMask.Width() * kCellSize;
    marquee_.y2 = marquee_.y1 + PicSelMask.Height() * kCellSize;
    ShowFloatingSelection();
}

void Selection::DropSelection() {
    if (!Exists()) return;
    const bool floating = SelectionFloating();
    EraseMarquee();
    if (floating) CompositeSelection();
    window_.RefreshEditCommands();
}

void Selection::Delete() {
    if (!Exists()) return;
    const gdi::Rect cells = SelectionMarked() ? Cells() : gdi::Rect{};
    EraseMarquee();
    canvas_.EraseAndRedraw(cells);
    history_.ClearRedoList();
    history_.PushUndoSnapshot();
}

void Selection::Forget() {
    state_ = State::None;
    ShowMoveCursor(false);
}

void Selection::CopyAreaToSelection() {
    const gdi::Rect area = Cells();
    PicSelImage = gdi::Surface(area.width, area.height, gdi::kBlack);
    PicSelMask = gdi::Surface(area.width, area.height, gdi::kWhite);
    const auto copy = [&](gdi::Surface& to, const gdi::Surface& from) {
        gdi::BitBlt(to, 0, 0, area.width, area.height, from, area.left, area.top, RasterOp::Copy);
    };
    copy(PicSelImage, document_.PicImage);
    copy(PicSelMask, document_.PicMask);
}

void Selection::CompositeSelection() {
    CompositeOver(document_);
    canvas_.RedrawAll();
    history_.ClearRedoList();
    history_.PushUndoSnapshot();
}

void Selection::CompositeOver(document::IconDocument& planes) const {
    const gdi::Rect cells = Cells();
    Compose(planes.PicImage, cells, PicSelMask, PicSelImage);
    gdi::StretchBlt(planes.PicMask, cells, PicSelMask, PicSelMask.Bounds(), RasterOp::And);
}

void Selection::ShowFloatingSelection() {
    canvas_.ShowGrid();
    canvas_.PreviewIcon();
    document_.Modified = true;
}

void Selection::StampSelection() {
    const gdi::Rect cells = Cells();
    gdi::StretchBlt(document_.PicMask, cells, PicSelMask, PicSelMask.Bounds(), RasterOp::Copy);
    gdi::StretchBlt(document_.PicImage, cells, PicSelImage, PicSelImage.Bounds(), RasterOp::Copy);
    canvas_.RedrawAll();
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
    Compose(grid, {x1, y1, x2 - x1, y2 - y1}, PicSelMask, PicSelImage);
}

void Selection::DrawOverLines(gdi::Surface& grid) const {
    if (MarqueeIsShown()) DrawMarquee(grid);
}

void Selection::DrawOnPreview(gdi::Surface& preview) const {
    if (SelectionFloating()) Compose(preview, Cells(), PicSelMask, PicSelImage);
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
    DrawMarquee(canvas_.PicMain);
    grid_.RepaintGrid(canvas_.PicMain.Bounds());
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
