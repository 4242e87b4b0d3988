#include "document/Canvas.h"

#include "document/GridCoordinates.h"
#include "platform/gdi/Blit.h"
#include "platform/gdi/Draw.h"
#include "platform/gdi/PixelArt.h"
#include "resources/TransparentTile.h"

namespace kestrel::document {

namespace {

using gdi::kIconSize;
using gdi::RasterOp;

// The grid has one line more than it has cells.
constexpr int kGridPixels = kGridSize + 1;

}  // namespace

Canvas::Canvas(const IconDocument& document, GridDisplay& grid, PreviewDisplay& preview,
               gdi::COLORREF windowColor)
    : PicMain(kGridPixels, kGridPixels, gdi::kWhite),
      PicMainCopy(kGridSize, kGridSize, gdi::kWhite),
      PicIcon(kIconSize, kIconSize, windowColor),
      document_(document),
      grid_(grid),
      preview_(preview),
      gridLinesImage_(kGridPixels, kGridPixels, gdi::kWhite),
      transparentGridImage_(kGridPixels, kGridPixels, gdi::kBlack) {
    MakeGridLines();
    MakeTransparentGrid();
    ClearView();
    OverlayGrid();
}

void Canvas::MakeGridLines() {
    for (int v = 0; v <= kGridSize; v += kCellSize) {
        gdi::DrawLine(gridLinesImage_, v, 0, v, kGridPixels, gdi::kBlack);
        gdi::DrawLine(gridLinesImage_, 0, v, kGridPixels, v, gdi::kBlack);
    }
}

void Canvas::MakeTransparentGrid() {
    const gdi::Surface tile =
        gdi::ReadPixelArt(resources::kTransparentTile, {{'W', gdi::kWhite}, {'G', 0x808080}});
    for (int y = 1; y < kGridPixels; y += kCellSize) {
        for (int x = 1; x < kGridPixels; x += kCellSize) {
            gdi::BitBlt(transparentGridImage_, x, y, tile.Width(), tile.Height(), tile, 0, 0,
                        RasterOp::Copy);
        }
    }
}

void Canvas::ClearView() {
    gdi::BitBlt(PicMain, 0, 0, kGridPixels, kGridPixels, transparentGridImage_, 0, 0,
                RasterOp::Copy);
    gdi::BitBlt(PicMainCopy, 0, 0, kGridSize, kGridSize, transparentGridImage_, 0, 0,
                RasterOp::Copy);
}

void Canvas::OverlayGrid() {
    gdi::BitBlt(PicMain, 0, 0, kGridPixels, kGridPixels, gridLinesImage_, 0, 0, RasterOp::And);
    grid_.RepaintGrid(PicMain.Bounds());
}

void Canvas::RebuildBackingCopy() {
    gdi::BitBlt(PicMainCopy, 0, 0, kGridSize, kGridSize, transparentGridImage_, 0, 0,
                RasterOp::Copy);
    gdi::DrawOver(PicMainCopy, PicMainCopy.Bounds(), document_.Planes());
}

void Canvas::ShowGrid() {
    gdi::BitBlt(PicMain, 0, 0, kGridSize, kGridSize, PicMainCopy, 0, 0, RasterOp::Copy);
    if (overlay_ != nullptr) overlay_->DrawUnderLines(PicMain);
    OverlayGrid();
    if (overlay_ != nullptr) overlay_->DrawOverLines(PicMain);
}

void Canvas::RedrawAll() {
    RebuildBackingCopy();
    ShowGrid();
    PreviewIcon();
}

void Canvas::PreviewIcon() {
    PicIcon.Clear();
    gdi::DrawOver(PicIcon, document_.Planes().Bounds(), document_.Planes());
    if (overlay_ != nullptr) overlay_->DrawOnPreview(PicIcon);
    preview_.RepaintPreview(PicIcon.Bounds());
}

void Canvas::ShowEmptyIcon() {
    PicIcon.Clear();
    preview_.RepaintPreview(PicIcon.Bounds());
    ClearView();
    OverlayGrid();
}

void Canvas::PaintCell(int cx, int cy, gdi::COLORREF color) {
    if (!PicIcon.Contains(cx, cy)) return;
    const int x = cx * kCellSize;
    const int y = cy * kCellSize;
    gdi::FillBox(PicMain, x, y, x + kCellSize, y + kCellSize, color);
    gdi::DrawBox(PicMain, x, y, x + kCellSize, y + kCellSize, gdi::kBlack);
    gdi::PatBlt(PicMainCopy, {x, y, kCellSize, kCellSize}, color);
    PicIcon.SetPixel(cx, cy, color);
    RepaintCell(cx, cy);
}

void Canvas::PaintCellTransparent(int cx, int cy) {
    if (!PicIcon.Contains(cx, cy)) return;
    const int x = cx * kCellSize;
    const int y = cy * kCellSize;
    // The tile lies between the lines, which stay black on the grid; in the backing copy they took
    // the cell's colour and go back to black with the tile.
    for (gdi::Surface* view : {&PicMain, &PicMainCopy}) {
        gdi::BitBlt(*view, x, y, kCellSize, kCellSize, transparentGridImage_, x, y, RasterOp::Copy);
    }
    PicIcon.SetPixel(cx, cy, PicIcon.BackColor());
    RepaintCell(cx, cy);
}

void Canvas::RepaintCell(int cx, int cy) {
    grid_.RepaintGrid({cx * kCellSize, cy * kCellSize, kCellSize + 1, kCellSize + 1});
    preview_.RepaintPreview({cx, cy, 1, 1});
}

void Canvas::SetWindowColor(gdi::COLORREF color) {
    PicIcon.SetBackColor(color);
    PreviewIcon();
}

void Canvas::SetPenColor(gdi::COLORREF color) {
    for (gdi::Surface* surface : {&PicMain, &PicMainCopy, &PicIcon}) {
        surface->state.foreColor = color;
        surface->state.fillColor = color;
    }
}

}  // namespace kestrel::document
