#pragma once

namespace kestrel::document {

// Grid units (screen pixels of the editing grid) per icon pixel.
inline constexpr int kCellSize = 10;
// The grid's extent in grid units, from the first line to the last.
inline constexpr int kGridSize = 320;

// The icon coordinate under a grid coordinate; truncates toward zero.
constexpr int CellOf(int v) {
    return v / kCellSize;
}

// Whether the grid point lies over an icon pixel, and not on the last line.
constexpr bool IsInIcon(int x, int y) {
    return x >= 0 && y >= 0 && x < kGridSize && y < kGridSize;
}

// To the left and top line of the cell.
void SnapToCell(int& x, int& y);
// To the line that is nearest; the middle of a cell goes up.
void SnapToNearestLine(int& x, int& y);
// To the centre of the cell.
void CellCentre(int& x, int& y);
// Into 0..320.
void ClampToGrid(int& x, int& y);

void SwapInt(int& a, int& b);

}  // namespace kestrel::document
