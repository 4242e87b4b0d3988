#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "platform/gdi/Draw.h"
#include "platform/gdi/Pen.h"

namespace kestrel::gdi {
namespace {

using std::int64_t;
using std::uint64_t;

// Holds the fourth power of any box side.
__extension__ using Wide = unsigned __int128;

Wide Square(uint64_t value) {
    return Wide{value} * value;
}

// The filled form of the ellipse that runs through the middles of the outermost pixels of a box
// of (spanX + 1) x (spanY + 1) pixels. A pixel belongs to it when the curve, rounded to whole
// pixels along its row or along its column, reaches it. Offsets x and y from the centre are
// doubled and never negative: 0, 2, ... span in an odd box, 1, 3, ... span in an even one.
class Form {
  public:
    Form(int64_t spanX, int64_t spanY)
        : spanX_(static_cast<uint64_t>(spanX)), spanY_(static_cast<uint64_t>(spanY)) {}

    // The largest x in the row at y, or -1 beyond the box; shrinks as y grows.
    int64_t Reach(int64_t row) const {
        const auto y = static_cast<uint64_t>(row);
        if (y > spanY_) return -1;
        if (y <= 1) return static_cast<int64_t>(spanX_);
        uint64_t x = Estimate(y);
        while (x < spanX_ && Holds(x + 2, y))
            x += 2;
        while (!Holds(x, y))
            x -= 2;
        return static_cast<int64_t>(x);
    }

  private:
    // Whether x is at most half a pixel (1, doubled) farther out than the curve at y.
    static bool Reaches(uint64_t x, uint64_t spanX, uint64_t y, uint64_t spanY) {
        return x <= 1 ||
               Square(x - 1) * Square(spanY) <= Square(spanX) * (Square(spanY) - Square(y));
    }
    bool Holds(uint64_t x, uint64_t y) const {
        return Reaches(x, spanX_, y, spanY_) || Reaches(y, spanY_, x, spanX_);
    }

    // The curve's x at y, for spanY > 0. The difference of squares is exact.
    double Curve(uint64_t y) const {
        const auto rest = static_cast<double>((spanY_ - y) * (spanY_ + y));
        return static_cast<double>(spanX_) * std::sqrt(rest) / static_cast<double>(spanY_);
    }
    // Within a few pixels of Reach(), for y > 1.
    uint64_t Estimate(uint64_t y) const {
        const auto x = static_cast<uint64_t>(std::max(Curve(y) + 1, Curve(y - 1)));
        return x >= spanX_ ? spanX_ : x - ((x ^ spanX_) & 1);
    }

    uint64_t spanX_;
    uint64_t spanY_;
};

}  // namespace

void Ellipse(Surface& target, int left, int top, int right, int bottom) {
    const auto [firstX, endX] = std::minmax(left, right);
    const auto [firstY, endY] = std::minmax(top, bottom);
    if (firstX == endX || firstY == endY) return;
    const int64_t spanX = int64_t{endX} - firstX - 1;
    const int64_t spanY = int64_t{endY} - firstY - 1;
    const Form form(spanX, spanY);
    const Pen outline(target, target.state.foreColor);
    const Pen inside(target, target.state.fillColor);
    const bool filled = target.state.fillStyle == FillStyle::Solid;

    const int lastRow = std::min(endY, target.Height());
    for (int row = std::max(firstY, 0); row < lastRow; ++row) {
        // The outline is what the next row outwards does not cover, at least the two ends.
        const int64_t y = std::abs(2 * (int64_t{row} - firstY) - spanY);
        const int64_t reach = form.Reach(y);
        const int64_t inner = std::min(form.Reach(y + 2), reach - 2);
        const int64_t outerLeft = firstX + (spanX - reach) / 2;
        const int64_t outerRight = firstX + (spanX + reach) / 2;
        if (inner < 0) {
            outline.Row(row, outerLeft, outerRight);
            continue;
        }
        const int64_t innerLeft = firstX + (spanX - inner) / 2;
        const int64_t innerRight = firstX + (spanX + inner) / 2;
        outline.Row(row, outerLeft, innerLeft - 1);
        if (filled) inside.Row(row, innerLeft, innerRight);
        outline.Row(row, innerRight + 1, outerRight);
    }
}

}  // namespace kestrel::gdi
