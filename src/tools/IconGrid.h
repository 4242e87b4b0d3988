#pragma once

#include <optional>

#include "platform/gdi/Surface.h"

namespace kestrel::tools {

// Where the keyboard moves the selection box. Pages are as high as the part that is seen.
enum class GridMove { Left, Right, Up, Down, PageUp, PageDown, First, Last };

// Where the icons of a file stand: in rows of ten cells, each drawn at 32 x 32. Points and areas
// are in pixels of the whole grid; icons count from 0.
class IconGrid {
  public:
    static constexpr int kColumns = 10;
    static constexpr int kCellSize = 38;
    // The cells leave a margin at the right.
    static constexpr int kWidth = 390;
    static constexpr int kSeenHeight = 190;
    static constexpr int kSeenRows = kSeenHeight / kCellSize;
    // Icons of the rows that are seen, be it in part, while the grid is scrolled.
    static constexpr int kMostSeen = (kSeenRows + 1) * kColumns;

    explicit IconGrid(int count) : count_(count) {}

    int Count() const { return count_; }
    // At least what is seen of it.
    int Height() const;
    // 0 where all of it is seen.
    int ScrollMaximum() const { return Height() - kSeenHeight; }

    gdi::Rect PictureOf(int icon) const;
    // The outline that marks the selected icon.
    gdi::Rect BoxOf(int icon) const;
    // None on the margin and beyond the last icon.
    std::optional<int> IconAt(int x, int y) const;

    // The icon that a move leads to; the same one where it leads nowhere. Up and down keep to the
    // column as far as it goes.
    int Moved(int icon, GridMove move) const;
    // The nearest scroll value to this one with which the icon's whole cell is seen.
    int ScrolledTo(int icon, int scroll) const;

  private:
    int RowsUp(int icon, int rows) const;
    int RowsDown(int icon, int rows) const;
    int LastRow() const { return (count_ - 1) / kColumns; }

    int count_;
};

}  // namespace kestrel::tools
