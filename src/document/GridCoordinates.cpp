#include "document/GridCoordinates.h"

#include <algorithm>
#include <utility>

namespace kestrel::document {

namespace {

int CellLine(int v) {
    return CellOf(v) * kCellSize;
}

int NearestLine(int v) {
    const int line = CellLine(v);
    return v % kCellSize < kCellSize / 2 ? line : line + kCellSize;
}

}  // namespace

void SnapToCell(int& x, int& y) {
    x = CellLine(x);
    y = CellLine(y);
}

void SnapToNearestLine(int& x, int& y) {
    x = NearestLine(x);
    y = NearestLine(y);
}

void CellCentre(int& x, int& y) {
    x = CellLine(x) + kCellSize / 2;
    y = CellLine(y) + kCellSize / 2;
}

void ClampToGrid(int& x, int& y) {
    x = std::clamp(x, 0, kGridSize);
    y = std::clamp(y, 0, kGridSize);
}

void SwapInt(int& a, int& b) {
    std::swap(a, b);
}

}  // namespace kestrel::document
