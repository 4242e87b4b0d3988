#include "editing/PointerReadout.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "document/GridCoordinates.h"
#include "i18n/Captions.h"

namespace kestrel::editing {

namespace {

using document::CellOf;
using gdi::kIconSize;

// Left of or above the grid, -9 to -1 would truncate into the first cell.
int CellOrOutside(int v) {
    return v < 0 ? -1 : CellOf(v);
}

std::string Pair(int first, int second) {
    return std::to_string(first) + " , " + std::to_string(second);
}

// How far a drag reaches along one axis: cells `from` to `to`, cut off at the icon's edges.
int Extent(DragSize kind, int from, int to) {
    if (to >= kIconSize) return kIconSize - from;
    const int both = kind == DragSize::Cells ? 1 : 0;
    return to < 0 ? from + both : std::abs(to - from) + both;
}

}  // namespace

void PointerReadout::Show(ToolId tool, GridPoint at, std::optional<GridPoint> press) {
    status_.SetStatusPanel(StatusPanel::Hint, RowOf(tool).gridHint.Now());
    const int cx = CellOrOutside(at.x);
    const int cy = CellOrOutside(at.y);
    ShowPixel(cx, cy);
    ShowPointerReadout(cx, cy);
    ShowDragSize(RowOf(tool).dragSize, cx, cy, press);
}

void PointerReadout::ShowPixel(int cx, int cy) {
    if (!document_.PicMask().Contains(cx, cy)) {
        status_.SetStatusPanel(StatusPanel::Pixel, {});
    } else if (document_.IsTransparent(cx, cy)) {
        status_.SetStatusPanel(StatusPanel::Pixel, i18n::kTransparent.Now());
    } else {
        // Blue, green, red without leading zeros.
        std::array<char, 8> digits{};
        std::snprintf(digits.data(), digits.size(), "#%X", document_.PicImage().GetPixel(cx, cy));
        status_.SetStatusPanel(StatusPanel::Pixel, digits.data());
    }
}

void PointerReadout::ShowPointerReadout(int cx, int cy) {
    const auto inside = [](int cell) { return std::clamp(cell, 0, kIconSize - 1); };
    Print(StatusPanel::Cell, Pair(inside(cx), inside(cy)));
}

// After the drag its size stays, until a tool is used that has none.
void PointerReadout::ShowDragSize(DragSize kind, int cx, int cy, std::optional<GridPoint> press) {
    if (kind == DragSize::None) {
        Print(StatusPanel::DragSize, {});
    } else if (press) {
        Print(StatusPanel::DragSize,
              Pair(Extent(kind, CellOf(press->x), cx), Extent(kind, CellOf(press->y), cy)));
    }
}

void PointerReadout::Print(StatusPanel panel, std::string_view text) {
    status_.SetStatusPanel(panel, text);
    preview_.PrintReadout(panel, text);
}

}  // namespace kestrel::editing
