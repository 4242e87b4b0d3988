#include "tools/IconGrid.h"

#include <algorithm>

namespace kestrel::tools {

namespace {

constexpr int kPictureSize = 32;
// From the corner of a cell to that of its picture and of its box.
constexpr int kToPicture = 3;
constexpr int kToBox = 1;
constexpr int kBoxSize = 37;

// A square in the cell of the icon, so far from the cell's corner.
gdi::Rect InCell(int icon, int distance, int size) {
    return {icon % IconGrid::kColumns * IconGrid::kCellSize + distance,
            icon / IconGrid::kColumns * IconGrid::kCellSize + distance, size, size};
}

}  // namespace

int IconGrid::Height() const {
    const int rows = (count_ + kColumns - 1) / kColumns;
    return std::max(rows * kCellSize, kSeenHeight);
}

gdi::Rect IconGrid::PictureOf(int icon) const {
    return InCell(icon, kToPicture, kPictureSize);
}

gdi::Rect IconGrid::BoxOf(int icon) const {
    return InCell(icon, kToBox, kBoxSize);
}

std::optional<int> IconGrid::IconAt(int x, int y) const {
    if (x < 0 || x >= kColumns * kCellSize || y < 0 || y >= Height()) return std::nullopt;
    const int icon = y / kCellSize * kColumns + x / kCellSize;
    return icon < count_ ? std::optional(icon) : std::nullopt;
}

int IconGrid::Moved(int icon, GridMove move) const {
    switch (move) {
        case GridMove::Left:
            return std::max(icon - 1, 0);
        case GridMove::Right:
            return std::min(icon + 1, count_ - 1);
        case GridMove::Up:
            return RowsUp(icon, 1);
        case GridMove::Down:
            return RowsDown(icon, 1);
        case GridMove::PageUp:
            return RowsUp(icon, kSeenRows);
        case GridMove::PageDown:
            return RowsDown(icon, kSeenRows);
        case GridMove::First:
            return 0;
        case GridMove::Last:
            return count_ - 1;
    }
    return icon;
}

int IconGrid::RowsUp(int icon, int rows) const {
    return icon - std::min(rows, icon / kColumns) * kColumns;
}

int IconGrid::RowsDown(int icon, int rows) const {
    const int down = std::min(rows, LastRow() - icon / kColumns);
    // The last row may end before the column.
    return std::min(icon + down * kColumns, count_ - 1);
}

int IconGrid::ScrolledTo(int icon, int scroll) const {
    const int top = icon / kColumns * kCellSize;
    return std::clamp(scroll, top + kCellSize - kSeenHeight, top);
}

}  // namespace kestrel::tools
