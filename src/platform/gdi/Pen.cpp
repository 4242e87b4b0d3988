#include "platform/gdi/Pen.h"

#include <algorithm>

namespace kestrel::gdi {
namespace {

using std::int64_t;

// The first of first, first + step, ... that is not negative.
int64_t FirstInside(int64_t first, int step) {
    return first >= 0 ? first : first + (step - 1 - first) / step * step;
}

}  // namespace

Pen::Pen(Surface& target, COLORREF color)
    : target_(target),
      keep_(target.state.drawMode == DrawMode::Invert ? kWhite : 0),
      flip_(target.state.drawMode == DrawMode::Invert ? kWhite : color & kWhite) {}

void Pen::Dot(int64_t x, int64_t y) const {
    if (x < 0 || x >= target_.Width() || y < 0 || y >= target_.Height()) return;
    Ink(target_.Row(static_cast<int>(y))[static_cast<std::size_t>(x)]);
}

void Pen::Row(int64_t y, int64_t first, int64_t last, int step) const {
    if (y < 0 || y >= target_.Height()) return;
    COLORREF* const row = target_.Row(static_cast<int>(y)).data();
    const int64_t end = std::min<int64_t>(last, target_.Width() - 1);
    const int64_t begin = FirstInside(first, step);
    if (step == 1) {
        for (int64_t x = begin; x <= end; ++x)
            Ink(row[x]);
        return;
    }
    for (int64_t x = begin; x <= end; x += step)
        Ink(row[x]);
}

void Pen::Column(int64_t x, int64_t first, int64_t last, int step) const {
    if (x < 0 || x >= target_.Width()) return;
    const int64_t end = std::min<int64_t>(last, target_.Height() - 1);
    for (int64_t y = FirstInside(first, step); y <= end; y += step)
        Ink(target_.Row(static_cast<int>(y))[static_cast<std::size_t>(x)]);
}

}  // namespace kestrel::gdi
