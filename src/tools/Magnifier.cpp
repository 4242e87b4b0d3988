#include "tools/Magnifier.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/gdi/Blit.h"

namespace kestrel::tools {

namespace {

constexpr gdi::COLORREF kMidGrey = 0x808080;
constexpr gdi::COLORREF kLightGrey = 0xC0C0C0;
constexpr float kLeastFactorOfGrid = 3;

float FactorOf(int percent) {
    return static_cast<float>(percent / 100.0);
}

int Whole(double value) {
    return static_cast<int>(std::floor(value));
}

// One axis: how many source pixels cover how many of the picture.
struct Extent {
    int source;
    int drawn;
};

Extent ExtentOf(int picture, double factor) {
    Extent extent{Whole(picture / factor), 0};
    extent.drawn = Whole(factor * extent.source);
    if (extent.drawn >= picture) return extent;
    // Halves go to the even neighbour.
    return {extent.source + 1, static_cast<int>(std::nearbyint(factor + extent.drawn))};
}

gdi::COLORREF GridColor(int x, int y) {
    return (x + y) % 2 == 0 ? kMidGrey : kLightGrey;
}

// The part of a rectangle that lies on a screen of this size.
gdi::Rect OnScreen(const gdi::Rect& area, gdi::Size screen) {
    const int left = std::clamp(area.left, 0, screen.width);
    const int top = std::clamp(area.top, 0, screen.height);
    return {left, top, std::clamp(area.left + area.width, left, screen.width) - left,
            std::clamp(area.top + area.height, top, screen.height) - top};
}

void Resize(gdi::Surface& surface, gdi::Size size) {
    if (surface.Width() != size.width || surface.Height() != size.height) {
        surface = gdi::Surface(size.width, size.height);
    }
}

}  // namespace

Magnification MagnificationAt(gdi::Point pointer, gdi::Size picture, float factor) {
    const Extent across = ExtentOf(picture.width, factor);
    const Extent down = ExtentOf(picture.height, factor);
    return {{pointer.x - Whole(picture.width / 2.0 / factor),
             pointer.y - Whole(picture.height / 2.0 / factor), across.source, down.source},
            {across.drawn, down.drawn}};
}

void DrawPixelGrid(gdi::Surface& rows, int top, float factor) {
    if (factor < kLeastFactorOfGrid) return;
    const double step = factor;
    for (int y = 0; y < rows.Height(); ++y) {
        const auto row = rows.Row(y);
        for (int k = 0; k * step < rows.Width(); ++k)
            row[static_cast<std::size_t>(k * step)] = GridColor(Whole(k * step), top + y);
    }
    for (int k = 0; k * step < top + rows.Height(); ++k) {
        const int y = Whole(k * step);
        if (y < top) continue;
        const auto row = rows.Row(y - top);
        for (int x = 0; x < rows.Width(); ++x)
            row[static_cast<std::size_t>(x)] = GridColor(x, y);
    }
}

bool Magnifier::Look(gdi::Point pointer, gdi::Size size) {
    Frame frame{MagnificationAt(pointer, size, FactorOf(percent_)), size, percent_, grid_, ground_};
    // Only what is there is copied: a large picture may show much more at a small factor.
    const gdi::Rect there = OnScreen(frame.shown.source, screen_.Size());
    Resize(next_, {there.width, there.height});
    const bool isEmpty = there.width == 0 || there.height == 0;
    if (!isEmpty && !screen_.Copy({there.left, there.top}, next_)) return false;
    frame.shown.source.left -= there.left;
    frame.shown.source.top -= there.top;
    if (frame == frame_ && next_.SamePixels(copied_)) return false;
    std::swap(next_, copied_);
    frame_ = frame;
    return true;
}

void Magnifier::DrawRows(gdi::Surface& rows, int top) const {
    const auto& [source, drawn] = frame_.shown;
    const bool isCovered = source == copied_.Bounds() && drawn.width >= rows.Width() &&
                           drawn.height >= top + rows.Height();
    rows.SetBackColor(frame_.ground);
    if (!isCovered) rows.Clear();
    gdi::StretchBlt(rows, {0, -top, drawn.width, drawn.height}, copied_, source,
                    gdi::RasterOp::Copy);
    if (frame_.grid) DrawPixelGrid(rows, top, FactorOf(frame_.percent));
}

}  // namespace kestrel::tools
