#include "imaging/AreaAverage.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace kestrel::imaging {

namespace {

using gdi::COLORREF;

// Sums of what an area covers; the colours are weighted by their alpha, too.
struct Sums {
    void Add(COLORREF pixel, std::uint64_t share) {
        const std::uint64_t opaque = (pixel >> 24) * share;
        area += share;
        alpha += opaque;
        for (unsigned i = 0; i < colors.size(); ++i)
            colors[i] += (pixel >> (8 * i) & 0xFF) * opaque;
    }

    COLORREF Average() const {
        if (alpha == 0) return 0;
        COLORREF pixel = static_cast<COLORREF>((alpha + area / 2) / area) << 24;
        for (unsigned i = 0; i < colors.size(); ++i)
            pixel |= static_cast<COLORREF>((colors[i] + alpha / 2) / alpha) << (8 * i);
        return pixel;
    }

    std::uint64_t area = 0;
    std::uint64_t alpha = 0;
    std::array<std::uint64_t, 3> colors{};
};

// What pixel i of `to` covers of a line of `from` pixels. Lengths are in parts of which a pixel of
// the line has `to` and one of the result `from`, so that all of them are whole numbers.
struct Cover {
    Cover(int i, int from, int to)
        : start(i * from), end(start + from), step(to), first(start / to), last((end - 1) / to) {}

    std::uint64_t ShareOf(int pixel) const {
        return static_cast<std::uint64_t>(std::min(end, (pixel + 1) * step) -
                                          std::max(start, pixel * step));
    }

    int start;
    int end;
    int step;
    int first;
    int last;
};

COLORREF Average(const gdi::Surface& picture, const Cover& columns, const Cover& rows) {
    Sums sums;
    for (int y = rows.first; y <= rows.last; ++y) {
        const auto row = picture.Row(y);
        for (int x = columns.first; x <= columns.last; ++x)
            sums.Add(row[static_cast<std::size_t>(x)], rows.ShareOf(y) * columns.ShareOf(x));
    }
    return sums.Average();
}

}  // namespace

gdi::Surface AreaAverage(const gdi::Surface& picture, gdi::Size size) {
    gdi::Surface result(size.width, size.height);
    for (int y = 0; y < size.height; ++y) {
        const Cover rows(y, picture.Height(), size.height);
        for (int x = 0; x < size.width; ++x) {
            result.Row(y)[static_cast<std::size_t>(x)] =
                Average(picture, Cover(x, picture.Width(), size.width), rows);
        }
    }
    return result;
}

}  // namespace kestrel::imaging
