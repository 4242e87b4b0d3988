#pragma once

#include <cassert>
#include <cstddef>
#include <span>
#include <vector>

#include "platform/gdi/Color.h"

namespace kestrel::gdi {

struct Point {
    int x = 0;
    int y = 0;

    bool operator==(const Point&) const = default;
};

// A rectangle of pixels: left and top inside, width and height may be 0.
struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Rect&) const = default;
};

// In pixels.
struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

// How lines, boxes and ellipses meet the pixels under them.
enum class DrawMode { CopyPen, Invert };
enum class LineStyle { Solid, Dot };
enum class FillStyle { Transparent, Solid };

// What the drawing routines draw with; every surface carries its own, as a picture box does.
struct DrawState {
    COLORREF foreColor = kBlack;
    COLORREF fillColor = kBlack;
    DrawMode drawMode = DrawMode::CopyPen;
    LineStyle lineStyle = LineStyle::Solid;
    FillStyle fillStyle = FillStyle::Transparent;
};

// A block of COLORREF pixels: planes, views, memory images and icon images are all of this class.
// Reads outside give CLR_INVALID, writes outside do nothing. Stored colours are 24-bit.
class Surface {
  public:
    // Filled with `background`, which Clear() restores. Negative sizes count as 0.
    Surface(int width, int height, COLORREF background = kWhite);

    int Width() const { return width_; }
    int Height() const { return height_; }
    COLORREF BackColor() const { return backColor_; }
    Rect Bounds() const { return {0, 0, width_, height_}; }

    bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }
    COLORREF GetPixel(int x, int y) const;
    void SetPixel(int x, int y, COLORREF color);

    // Rows from the top, pixels from the left. `y` must lie inside.
    std::span<COLORREF> Row(int y);
    std::span<const COLORREF> Row(int y) const;
    std::span<const COLORREF> Pixels() const { return pixels_; }

    void SetBackColor(COLORREF color) { backColor_ = color & kWhite; }
    // Fills the surface with its background colour.
    void Clear();

    DrawState state;

    // Same size and same pixels; drawing state and background do not count.
    bool SamePixels(const Surface& other) const;

  private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }

    int width_;
    int height_;
    COLORREF backColor_;
    std::vector<COLORREF> pixels_;
};

inline COLORREF Surface::GetPixel(int x, int y) const {
    return Contains(x, y) ? pixels_[Index(x, y)] : CLR_INVALID;
}

inline void Surface::SetPixel(int x, int y, COLORREF color) {
    if (Contains(x, y)) pixels_[Index(x, y)] = color & kWhite;
}

inline std::span<COLORREF> Surface::Row(int y) {
    assert(y >= 0 && y < height_);
    return std::span(pixels_).subspan(Index(0, y), static_cast<std::size_t>(width_));
}

inline std::span<const COLORREF> Surface::Row(int y) const {
    assert(y >= 0 && y < height_);
    return std::span(pixels_).subspan(Index(0, y), static_cast<std::size_t>(width_));
}

}  // namespace kestrel::gdi
