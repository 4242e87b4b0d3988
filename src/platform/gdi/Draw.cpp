#include "platform/gdi/Draw.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "platform/gdi/Blit.h"
#include "platform/gdi/Pen.h"

namespace kestrel::gdi {
namespace {

using std::int64_t;
using std::uint64_t;

// The desktop's button shadow and button highlight.
constexpr COLORREF kEdgeShadow = 0x808080;
constexpr COLORREF kEdgeHighlight = kWhite;

int StepOf(const Surface& target) {
    return target.state.lineStyle == LineStyle::Dot ? 2 : 1;
}

// A line's way along one axis.
struct Way {
    int64_t start;
    int64_t length;
    int64_t direction;

    Way(int from, int to)
        : start(from), length(std::abs(int64_t{to} - from)), direction(to < from ? -1 : 1) {}

    int64_t At(int64_t step) const { return start + direction * step; }
    // Steps first..end-1, the last point left out, are inside 0..limit-1.
    int64_t FirstInside(int limit) const {
        return std::max<int64_t>(0, direction > 0 ? -start : start - limit + 1);
    }
    int64_t EndInside(int limit) const {
        return std::min(length, direction > 0 ? limit - start : start + 1);
    }
};

// Corners put in order; both belong to the box.
struct Box {
    int64_t left;
    int64_t top;
    int64_t right;
    int64_t bottom;

    Box(int x1, int y1, int x2, int y2)
        : left(std::min(x1, x2)),
          top(std::min(y1, y2)),
          right(std::max(x1, x2)),
          bottom(std::max(y1, y2)) {}
};

}  // namespace

void DrawLine(Surface& target, int x1, int y1, int x2, int y2, COLORREF color) {
    const Way across(x1, x2);
    const Way down(y1, y2);
    const bool steep = down.length > across.length;
    const Way& major = steep ? down : across;
    const Way& minor = steep ? across : down;
    const int limit = steep ? target.Height() : target.Width();
    const int64_t first = major.FirstInside(limit);
    const int64_t end = major.EndInside(limit);
    if (first >= end) return;

    // Only steps inside the surface are walked; the state of the first is computed. Lengths are
    // below 2^32, so the product fits into 64 unsigned bits.
    const uint64_t travelled = static_cast<uint64_t>(first) * static_cast<uint64_t>(minor.length);
    const auto whole = static_cast<uint64_t>(major.length);
    auto aside = static_cast<int64_t>(travelled / whole);
    auto remainder = static_cast<int64_t>(travelled % whole);
    const Pen pen(target, color);
    const int step = StepOf(target);
    for (int64_t i = first; i < end; ++i) {
        // Half way between two pixels counts to the one nearer to the start.
        const int64_t along = major.At(i);
        const int64_t beside = minor.At(aside + (2 * remainder > major.length ? 1 : 0));
        if (i % step == 0) pen.Dot(steep ? beside : along, steep ? along : beside);
        remainder += minor.length;
        if (remainder >= major.length) {
            remainder -= major.length;
            ++aside;
        }
    }
}

void DrawBox(Surface& target, int x1, int y1, int x2, int y2, COLORREF color) {
    const Box box(x1, y1, x2, y2);
    const Pen pen(target, color);
    // Dots lie where the distances from the top left corner add up to an even number: that is
    // every second pixel all the way round. The columns leave the corners to the rows.
    const int step = StepOf(target);
    pen.Row(box.top, box.left, box.right, step);
    if (box.bottom > box.top) {
        pen.Row(box.bottom, box.left + (box.bottom - box.top) % step, box.right, step);
    }
    pen.Column(box.left, box.top + step, box.bottom - 1, step);
    if (box.right > box.left) {
        const int64_t first = box.top + step - (box.right - box.left) % step;
        pen.Column(box.right, first, box.bottom - 1, step);
    }
}

void FillBox(Surface& target, int x1, int y1, int x2, int y2, COLORREF color) {
    const Box box(x1, y1, x2, y2);
    const Pen pen(target, color);
    const int64_t bottom = std::min<int64_t>(box.bottom, target.Height() - 1);
    for (int64_t y = std::max<int64_t>(box.top, 0); y <= bottom; ++y)
        pen.Row(y, box.left, box.right);
}

void DrawSunkenEdge(Surface& target, int left, int top, int right, int bottom) {
    if (left >= right || top >= bottom) return;
    DrawState plain;
    std::swap(plain, target.state);
    DrawBox(target, left, top, right - 1, bottom - 1, kEdgeShadow);
    FillBox(target, right - 1, top, right - 1, bottom - 1, kEdgeHighlight);
    FillBox(target, left, bottom - 1, right - 1, bottom - 1, kEdgeHighlight);
    std::swap(plain, target.state);
}

}  // namespace kestrel::gdi
