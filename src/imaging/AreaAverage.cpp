#include "imaging/AreaAverage.h"

#include <algorithm>
#include <cstddef>

namespace kestrel::imaging {

namespace {

using gdi::COLORREF;

constexpr unsigned kAlphaShift = 24;
constexpr std::size_t kAlpha = 3;

// Calls take(cell, share) for each of the `to` cells of the result's line that pixel i of the
// picture's line of `from` pixels meets. Lengths are in parts of which a pixel of the picture has
// `to` and a cell `from`, so that all of them are whole numbers.
template <class Take>
void ForEachCell(int i, int from, int to, const Take& take) {
    const int end = (i + 1) * to;
    for (int at = i * to; at < end;) {
        const int cell = at / from;
        const int next = std::min(end, (cell + 1) * from);
        take(static_cast<std::size_t>(cell), static_cast<std::uint64_t>(next - at));
        at = next;
    }
}

}  // namespace

AreaAverager::AreaAverager(gdi::Size from, gdi::Size to)
    : from_(from),
      to_(to),
      sums_(static_cast<std::size_t>(to.width) * static_cast<std::size_t>(to.height)),
      row_(static_cast<std::size_t>(to.width)) {}

void AreaAverager::Add(const gdi::PixelRun& run) {
    std::ranges::fill(row_, Sums{});
    int x = run.x;
    for (const COLORREF pixel : run.pixels) {
        const std::uint64_t alpha = pixel >> kAlphaShift;
        const Sums weighted{(pixel & 0xFF) * alpha, (pixel >> 8 & 0xFF) * alpha,
                            (pixel >> 16 & 0xFF) * alpha, alpha};
        ForEachCell(x, from_.width, to_.width, [&](std::size_t column, std::uint64_t share) {
            for (std::size_t i = 0; i < weighted.size(); ++i)
                row_[column][i] += weighted[i] * share;
        });
        x += run.distance;
    }
    ForEachCell(run.y, from_.height, to_.height, [&](std::size_t line, std::uint64_t share) {
        Sums* sums = &sums_[line * row_.size()];
        for (const Sums& column : row_) {
            for (std::size_t i = 0; i < column.size(); ++i)
                (*sums)[i] += column[i] * share;
            ++sums;
        }
    });
}

gdi::Surface AreaAverager::Average() const {
    const auto area =
        static_cast<std::uint64_t>(from_.width) * static_cast<std::uint64_t>(from_.height);
    gdi::Surface result(to_.width, to_.height);
    const Sums* sums = sums_.data();
    for (int y = 0; y < to_.height; ++y) {
        for (COLORREF& pixel : result.Row(y)) {
            const std::uint64_t alpha = (*sums)[kAlpha];
            pixel = static_cast<COLORREF>((alpha + area / 2) / area) << kAlphaShift;
            for (unsigned i = 0; i < kAlpha && pixel > 0; ++i)
                pixel |= static_cast<COLORREF>(((*sums)[i] + alpha / 2) / alpha) << (8 * i);
            ++sums;
        }
    }
    return result;
}

gdi::Surface AreaAverage(const gdi::Surface& picture, gdi::Size size) {
    AreaAverager averager({picture.Width(), picture.Height()}, size);
    for (int y = 0; y < picture.Height(); ++y)
        averager.Add({.y = y, .pixels = picture.Row(y)});
    return averager.Average();
}

}  // namespace kestrel::imaging
